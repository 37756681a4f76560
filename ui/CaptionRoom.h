#pragma once

namespace vantrel {

struct MainWindowControls;

/// How much larger than designed the main window has to be so that the captions and the address
/// fit their rectangles in the font that is chosen: 1 or more, at most what leaves the smallest
/// window on its screen. `dpi` is pixels per inch without it.
double captionRoom(const MainWindowControls& controls, int dpi);

} // namespace vantrel
