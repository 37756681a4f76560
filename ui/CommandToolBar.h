#pragma once

#include "app/commands/Commands.h"

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <wx/toolbar.h>

namespace vantrel {

class MessageTable;

/// A tool bar with the buttons that the table of commands has for it. A button goes by its
/// command's icon, never by a caption.
class CommandToolBar : public wxToolBar {
  public:
    /// The table outlives the bar.
    CommandToolBar(wxWindow* parent, const wxString& name, std::span<const CommandRow> table,
                   CommandPlace place);

    /// Draws the icons this much larger than the usual 16 pixels beside texts of the usual size.
    void enlarge(double factor);
    void applyTips(const MessageTable& messages);
    void applyStates(const CommandInput& input);

    /// Called with the command whose button was pressed, and the bar's place. A check button's
    /// state is put back first: what is pressed follows from the state of the program, not from the
    /// click.
    std::function<void(const CommandRow&, CommandPlace)> onPressed;

    /// In their order.
    std::vector<std::string> keys() const;
    void press(std::string_view key);
    bool isPressed(std::string_view key) const;
    bool isEnabled(std::string_view key) const;
    wxString toolTip(std::string_view key) const;

  private:
    struct Button {
        const CommandRow* command;
        int id;
        bool shouldBePressed = false;
    };

    int idOf(std::string_view key) const;
    void pressed(wxCommandEvent& event);

    CommandPlace place_;
    int iconSide_; ///< device-independent pixels
    std::vector<Button> buttons_;
};

} // namespace vantrel
