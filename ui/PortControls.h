#pragma once

#include <functional>
#include <string>

class wxFrame;
class wxString;
class wxTextCtrl;

namespace vantrel {

/// An entry of a window's menu bar that is a command itself. The toolkit puts menus only into a
/// menu bar, the systems commands as well.
class MenuBarEntry {
  public:
    /// At this place from 0 in the menu bar, which the window has already and keeps.
    MenuBarEntry(wxFrame& window, int place, std::function<void()> onChosen);
    ~MenuBarEntry();
    MenuBarEntry(const MenuBarEntry&) = delete;
    MenuBarEntry& operator=(const MenuBarEntry&) = delete;

    /// `caption` with "&" before its mnemonic.
    void setCaption(const wxString& caption);
    void enable(bool enabled);

  private:
    wxFrame& window_;
    int place_;
    std::function<void()> onChosen_;
    void* entry_ = nullptr; ///< the system's own
};

/// Adds UTF-8 text at the end of a multi-line control and leaves caret, selection and what is
/// scrolled into view as they are, which the toolkit's own way does not.
void appendQuietly(wxTextCtrl& control, const std::string& text);

} // namespace vantrel
