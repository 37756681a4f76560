#pragma once

namespace vantrel {

/// To be called before the toolkit starts: keeps it from loading what this program has no use for.
void prepareSystem();

/// Adjusts the system's look for the whole program, once, before the first window: the main window
/// is laid out for controls as dense as on the PCs that stand beside robots.
void applySystemLook();

} // namespace vantrel
