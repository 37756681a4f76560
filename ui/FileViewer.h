#pragma once

#include "app/viewer/TextSearch.h"
#include "app/viewer/TextSlices.h"

#include <optional>
#include <string>
#include <string_view>

#include <wx/textctrl.h>

namespace vantrel {

/// `rtxFileDisp`: shows a text of any size, read-only. The first part is there at once; the rest is
/// appended whenever the program has nothing else to do, so that a file of 50 MB does not keep the
/// operator waiting. Of the keys only the arrows reach the text; copying is on its context menu.
class FileViewer : public wxTextCtrl {
  public:
    FileViewer(wxWindow* parent, const wxString& name);

    /// Replaces what is shown, and whatever of it is still to be appended. The text, UTF-8, is
    /// borrowed until the next call of this or of `clear`.
    void showText(std::string_view text);
    void clear();
    /// Whether everything has been appended.
    bool isWhole() const { return rest_.isDone(); }
    /// Seeks a text, UTF-8, from the selection on and selects it where it stands, as soon as that
    /// has been appended. Nothing changes when it stands nowhere.
    std::optional<FoundText> find(const std::string& wanted, SearchDirection direction);
    /// A fixed-pitch font of this size in points.
    void setFontSize(int points);

  private:
    void appendNext(wxIdleEvent& event);
    void keyPressed(wxKeyEvent& event);
    ShownRange selection() const;
    void selectAwaited();

    std::string_view text_;
    TextSlices rest_;
    std::optional<ShownRange> awaited_; ///< to be selected as soon as it is shown
};

} // namespace vantrel
