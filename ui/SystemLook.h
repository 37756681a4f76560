#pragma once

namespace vantrel {

/// Adjusts the system's look for the whole program, once, before the first window: the main window
/// is laid out for controls as dense as on the PCs that stand beside robots.
void applySystemLook();

} // namespace vantrel
