#include "ui/dialogs/QuestionBox_msw.h"

#include <vector>

#include <commctrl.h>
#include <wx/modalhook.h>
#include <wx/msw/private.h>

namespace vantrel {
namespace {

using ShowTaskDialog = HRESULT(WINAPI*)(const TASKDIALOGCONFIG*, int*, int*, BOOL*);

/// Nothing where the common controls are older than this kind of box.
ShowTaskDialog systemsTaskDialog() {
    const HMODULE controls = ::GetModuleHandleW(L"comctl32.dll");
    if (!controls)
        return nullptr;
    const auto function = ::GetProcAddress(controls, "TaskDialogIndirect");
    return reinterpret_cast<ShowTaskDialog>(reinterpret_cast<void*>(function));
}

struct Button {
    int id, answer;
    wxString label;
};

std::vector<Button> buttonsOf(const wxMessageDialog& box) {
    const long style = box.GetMessageDialogStyle();
    std::vector<Button> buttons;
    if (style & wxYES_NO) {
        buttons.push_back({IDYES, wxID_YES, box.GetYesLabel()});
        buttons.push_back({IDNO, wxID_NO, box.GetNoLabel()});
    } else {
        buttons.push_back({IDOK, wxID_OK, box.GetOKLabel()});
    }
    if (style & wxCANCEL)
        buttons.push_back({IDCANCEL, wxID_CANCEL, box.GetCancelLabel()});
    return buttons;
}

/// Whatever else ends the box is the answer that stops.
int answerOf(const std::vector<Button>& buttons, int pressed) {
    for (const Button& button : buttons)
        if (button.id == pressed)
            return button.answer;
    return buttons.back().answer;
}

} // namespace

int QuestionBox::ShowModal() {
    const ShowTaskDialog show = systemsTaskDialog();
    const long style = GetMessageDialogStyle();
    if (!show || !(style & wxICON_QUESTION))
        return wxMessageDialog::ShowModal();
    WX_HOOK_MODAL_DIALOG();

    const auto buttons = buttonsOf(*this);
    std::vector<TASKDIALOG_BUTTON> captions;
    for (const Button& button : buttons)
        captions.push_back({button.id, button.label.wc_str()});
    const wxString title = GetCaption();
    const wxString text = GetMessage();
    TASKDIALOGCONFIG box{};
    box.cbSize = sizeof box;
    box.hwndParent = GetParent() ? GetHwndOf(GetParent()) : nullptr;
    box.dwFlags = TDF_USE_HICON_MAIN | TDF_POSITION_RELATIVE_TO_WINDOW | TDF_SIZE_TO_CONTENT;
    if (style & wxCANCEL)
        box.dwFlags |= TDF_ALLOW_DIALOG_CANCELLATION;
    box.pszWindowTitle = title.wc_str();
    box.hMainIcon = ::LoadIconW(nullptr, IDI_QUESTION);
    box.pszContent = text.wc_str();
    box.cButtons = static_cast<UINT>(captions.size());
    box.pButtons = captions.data();
    box.nDefaultButton = style & wxNO_DEFAULT ? IDNO : captions.front().nButtonID;
    int pressed = 0;
    if (FAILED(show(&box, &pressed, nullptr, nullptr)))
        return wxMessageDialog::ShowModal();
    return answerOf(buttons, pressed);
}

} // namespace vantrel
