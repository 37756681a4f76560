#pragma once

#include "app/viewer/TextSearch.h"

#include <functional>

#include <wx/panel.h>

class wxBitmapButton;
class wxStaticText;
class wxTextCtrl;

namespace vantrel {

class FileViewer;
class MessageTable;

/// The line in which the operator searches the text of the viewer, hidden until it is asked for.
/// What comes of a search is said beside the field.
class ViewerSearch : public wxPanel {
  public:
    /// The viewer is a sibling.
    ViewerSearch(wxWindow* parent, FileViewer& viewer, const wxString& name);

    void applyCaptions(const MessageTable& messages);
    /// Shows the line and gives it the keyboard, with the last text selected.
    void open();
    /// Hides the line. A keyboard that was in it goes to the viewer.
    void close();
    /// Searches on; opens the line when there is nothing to search for yet.
    void search(SearchDirection direction);

    /// Called when the line has come or gone.
    std::function<void()> onShownOrHidden;

  private:
    wxBitmapButton* newButton(const char* drawing, SearchDirection direction);
    void keyPressed(wxKeyEvent& event);
    void show(bool shown);
    void say(const wxString& note);

    FileViewer& viewer_;
    wxTextCtrl* text_;
    wxBitmapButton *previous_, *next_;
    wxStaticText* note_;
    wxString inVain_, wentToEnd_, wentToStart_;
};

} // namespace vantrel
