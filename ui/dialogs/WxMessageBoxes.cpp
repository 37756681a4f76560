#include "ui/dialogs/WxMessageBoxes.h"

#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "ui/dialogs/DialogBasics.h"
#include "ui/look/IconSet.h"
#include "ui/look/WrappedText.h"
#include "ui/look/WxText.h"

#include <wx/dcmemory.h>
#include <wx/iconbndl.h>
#include <wx/settings.h>

namespace vantrel {
namespace {

/// Device-independent pixels.
constexpr int longestLine = 560;

/// The boxes break lines at blanks only, and a file's name may be long and without any.
wxString wrapped(const std::string& text) {
    wxMemoryDC dc;
    dc.SetFont(wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT));
    const auto widthOf = [&dc](std::string_view part) {
        return dc.GetTextExtent(toWx(std::string(part))).x;
    };
    return toWx(wrappedText(text, dc.FromDIP(longestLine), widthOf));
}

long styleOf(BoxIcon icon) {
    switch (icon) {
    case BoxIcon::Exclamation:
        return wxICON_WARNING;
    case BoxIcon::Question:
        return wxICON_QUESTION;
    case BoxIcon::None:
        break;
    }
    return noIconStyle;
}

} // namespace

void WxMessageBoxes::tell(const std::string& text, BoxIcon icon) {
    show(text, wxOK | styleOf(icon));
}

bool WxMessageBoxes::askOkCancel(const std::string& text, BoxIcon icon) {
    return show(text, wxOK | wxCANCEL | styleOf(icon)) == wxID_OK;
}

bool WxMessageBoxes::askYesNo(const std::string& text, BoxIcon icon) {
    return show(text, wxYES_NO | wxNO_DEFAULT | styleOf(icon)) == wxID_YES;
}

int WxMessageBoxes::show(const std::string& text, long style) const {
    const auto recorded = messages_.getMessage(message::title);
    const auto title = recorded.empty() ? wxString("Vantrel") : toWx(recorded);
    wxWindow* const parent = dialogParent();
    MessageBox box(parent, wrapped(text), title,
                   style | (parent ? wxCENTRE : wxCENTRE | wxDIALOG_NO_PARENT));
    box.SetIcons(programIcons());
    captionButtons(box, style);
    if (style & wxYES_NO)
        box.SetEscapeId(wxID_NO);
    return box.ShowModal();
}

void WxMessageBoxes::captionButtons(MessageBox& box, long style) const {
    const auto ok = toWx(messages_.getMessage(message::ok));
    const auto cancel = toWx(messages_.resourceMessage(message::resource::cancel));
    const auto yes = toWx(messages_.resourceMessage(message::resource::yes));
    const auto no = toWx(messages_.resourceMessage(message::resource::no));
    // Without a language the system's own words stay.
    if (style & wxYES_NO && !yes.empty() && !no.empty())
        box.SetYesNoLabels(yes, no);
    else if (style & wxCANCEL && !ok.empty() && !cancel.empty())
        box.SetOKCancelLabels(ok, cancel);
    else if (style & wxOK && !ok.empty())
        box.SetOKLabel(ok);
}

} // namespace vantrel
