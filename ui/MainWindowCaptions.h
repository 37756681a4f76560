#pragma once

namespace vantrel {

class MessageTable;
struct MainWindowControls;

/// Gives every control of the main window its caption, tool tip and column titles; the menus have
/// their own.
void captionControls(const MainWindowControls& controls, const MessageTable& messages);

} // namespace vantrel
