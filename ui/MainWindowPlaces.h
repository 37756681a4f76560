#pragma once

namespace vantrel {

struct MainWindowControls;
struct WindowLayout;

/// Moves every control of the main window to its rectangle, at `dpi` pixels per inch.
void placeControls(const MainWindowControls& controls, const WindowLayout& layout, int dpi);

} // namespace vantrel
