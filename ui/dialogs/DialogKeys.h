#pragma once

#include <functional>

class wxWindow;

namespace vantrel {

/// Swallows F1 in a window, so that no help opens from it.
void swallowF1(wxWindow& window);

/// What Enter does in a list or a tree, and all that it does there: neither the control's own
/// meaning of the key nor the dialog's default button has a part in it. Text boxes do without: they
/// are made with wxTE_PROCESS_ENTER, since Enter may belong to an input method there.
void onEnter(wxWindow& control, std::function<void()> action);

} // namespace vantrel
