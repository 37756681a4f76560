#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <wx/toolbar.h>

namespace vantrel {

/// A tool bar whose buttons are known by string keys; each key is its icon's name too. Buttons are
/// told apart by their keys, never by captions.
class KeyedToolBar : public wxToolBar {
  public:
    enum class Kind { Push, Check, Separator };
    struct Button {
        std::string_view key;
        Kind kind = Kind::Push;
    };

    KeyedToolBar(wxWindow* parent, const wxString& name, const std::vector<Button>& buttons);

    void setPressed(std::string_view key, bool pressed);
    bool isPressed(std::string_view key) const;
    void setEnabled(std::string_view key, bool enabled);
    bool isEnabled(std::string_view key) const;
    void setToolTip(std::string_view key, const wxString& text);
    wxString toolTip(std::string_view key) const;
    std::vector<std::string> keys() const;

    /// Called with the key of the button that was pressed. A check button's state is put back
    /// first: what is pressed follows from the state of the program, not from the click.
    std::function<void(const std::string& key)> onPressed;

  private:
    bool has(std::string_view key) const { return ids_.find(key) != ids_.end(); }
    int idOf(std::string_view key) const;
    void pressed(wxCommandEvent& event);

    std::map<std::string, int, std::less<>> ids_;
    std::map<int, bool> shouldBePressed_;
};

} // namespace vantrel
