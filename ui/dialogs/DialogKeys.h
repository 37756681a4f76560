#pragma once

class wxWindow;

namespace vantrel {

/// Swallows F1 in a window, so that no help opens from it.
void swallowF1(wxWindow& window);

} // namespace vantrel
