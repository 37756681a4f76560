#pragma once

namespace vantrel {

struct MainWindowControls;
struct RobotRoom;
struct WindowLayout;

/// How much larger than designed the main window has to be so that the captions and the address
/// fit their rectangles in the font that is chosen: 1 or more, at most what leaves the smallest
/// window on its screen. `dpi` is pixels per inch without it.
double captionRoom(const MainWindowControls& controls, int dpi);

/// What the names in the robot box and the mark beside it ask for.
RobotRoom robotRoom(const MainWindowControls& controls, int dpi);

/// Moves every control of the main window to its rectangle, at `dpi` pixels per inch.
void placeControls(const MainWindowControls& controls, const WindowLayout& layout, int dpi);

} // namespace vantrel
