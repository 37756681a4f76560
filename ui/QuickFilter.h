#pragma once

#include <functional>
#include <string>

#include <wx/panel.h>

class wxBitmapButton;
class wxStaticText;
class wxTextCtrl;

namespace vantrel {

class MessageTable;

/// The line at the foot of a pane in which the operator types what its names shall hold, hidden
/// until it is asked for: as long as names are left out it can be seen.
class QuickFilter : public wxPanel {
  public:
    QuickFilter(wxWindow* parent, const wxString& name);

    void applyCaptions(const MessageTable& messages);
    /// Shows the line and gives it the keyboard, with its text selected.
    void open();
    /// Hides the line and forgets its text, without a call but `onShownOrHidden`.
    void close();

    /// Called when the line has come or gone.
    std::function<void()> onShownOrHidden;
    /// Called with each new text, an empty one when the operator closes the line.
    std::function<void(const std::string& text)> onChanged;
    /// Called when the operator is done with the line, whether or not it stays.
    std::function<void()> onLeft;

  private:
    void keyPressed(wxKeyEvent& event);
    void leave();
    void closeByOperator();

    wxStaticText* label_;
    wxTextCtrl* text_;
    wxBitmapButton* close_;
};

} // namespace vantrel
