#include "ui/look/SystemLook.h"

#include <wx/bmpbndl.h>
#include <wx/iconbndl.h>
#include <wx/msw/private.h>
#include <wx/treectrl.h>
#include <wx/window.h>

// The identifiers of the accessibility interfaces are made here.
#include <commctrl.h>
#include <initguid.h>
#include <oleacc.h>

namespace vantrel {

// The system offers to end a program that has not asked for its events for some seconds, which no
// library call does: it would be ended in the middle of a transfer.
//
// No library is ever taken from the current directory, which is an operator's folder at times, and
// a drive without a medium is an error for us, not for a box of the system's.
void prepareSystem() {
    ::DisableProcessWindowsGhosting();
    ::SetDllDirectoryW(L"");
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
}

// The system's own controls are as dense as the main window wants them.
void applySystemLook() {}
// The resolution of a window says it already.
double textScale() {
    return 1;
}

// The toolkit takes the system's picture for help, which is another one on some systems.
wxBitmapBundle questionPicture() {
    wxIcon icon;
    icon.CreateFromHICON(::CopyIcon(::LoadIconW(nullptr, IDI_QUESTION)));
    return wxBitmapBundle::FromIconBundle(wxIconBundle(icon));
}

bool goesOnAtTheRight() {
    return false;
}

void allowNarrow(wxWindow& /*button*/) {}

void hideScrollBars(wxTreeCtrl& tree) {
    const HWND window = GetHwndOf(&tree);
    const auto style = ::GetWindowLongPtrW(window, GWL_STYLE);
    ::SetWindowLongPtrW(window, GWL_STYLE, style | TVS_NOSCROLL);
}

void scrollToLeftEdge(wxTreeCtrl& tree) {
    ::SendMessageW(GetHwndOf(&tree), WM_HSCROLL, SB_LEFT, 0);
}

// The toolkit asks for room for several lines.
wxSize oneLineSize(const wxTreeCtrl& tree, const wxSize& best) {
    const auto line = static_cast<int>(::SendMessageW(GetHwndOf(&tree), TVM_GETITEMHEIGHT, 0, 0));
    return {best.x, line + tree.GetWindowBorderSize().y};
}

// The siblings draw over what lies above them unless they are told not to.
void bringToFront(wxWindow& control) {
    for (const wxWindow* sibling : control.GetParent()->GetChildren()) {
        const HWND window = GetHwndOf(sibling);
        const auto style = ::GetWindowLongPtrW(window, GWL_STYLE);
        ::SetWindowLongPtrW(window, GWL_STYLE, style | WS_CLIPSIBLINGS);
    }
    control.Raise();
}

bool isOnScreen(const wxWindow& window) {
    return window.IsShown();
}

// A window's own text would be drawn by some controls; the annotation is for screen readers only.
void setAccessibleName(wxWindow& control, const wxString& name) {
    IAccPropServices* services = nullptr;
    if (FAILED(::CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER,
                                  IID_IAccPropServices, reinterpret_cast<void**>(&services))))
        return;
    services->SetHwndPropStr(GetHwndOf(&control), static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF,
                             PROPID_ACC_NAME, name.wc_str());
    services->Release();
}

// The system's own list shows its rows to readers.
void describeFocusedRow(wxWindow& /*surface*/, const wxString& /*row*/) {}

void setOwner(wxWindow& window, wxWindow& owner) {
    // What is shown already may stay where it is. Not by the toolkit's own calls, with which a
    // modal dialog would end.
    const HWND handle = GetHwndOf(&window);
    const bool wasShown = ::ShowWindow(handle, SW_HIDE) != FALSE;
    ::SetWindowLongPtrW(handle, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(GetHwndOf(&owner)));
    if (wasShown)
        ::ShowWindow(handle, SW_SHOW);
}

} // namespace vantrel
