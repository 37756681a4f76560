#include "ui/dialogs/WxMessageBoxes.h"

#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "ui/dialogs/DialogParent.h"
#include "ui/dialogs/WxText.h"

#include <wx/msgdlg.h>

namespace vantrel {
namespace {

long styleOf(BoxIcon icon) {
    switch (icon) {
    case BoxIcon::Exclamation:
        return wxICON_WARNING;
    case BoxIcon::Question:
        return wxICON_QUESTION;
    case BoxIcon::None:
        break;
    }
    return wxICON_NONE;
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
    wxMessageDialog box(parent, toWx(text), title,
                        style | (parent ? wxCENTRE : wxCENTRE | wxDIALOG_NO_PARENT));
    captionButtons(box, style);
    return box.ShowModal();
}

void WxMessageBoxes::captionButtons(wxMessageDialog& box, long style) const {
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
