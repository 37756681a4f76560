#include "ui/MenuBarEntry.h"

#include <utility>

#include <wx/frame.h>
#include <wx/menu.h>
#include <wx/msw/private.h>
#include <wx/msw/wrapcctl.h>

namespace vantrel {

namespace {

/// Of the commands that the system sends; below those of the toolkit's own menus and controls.
UINT_PTR commandId(int place) {
    return 0x10 + UINT_PTR(place);
}

HMENU barOf(const wxFrame& window) {
    return static_cast<HMENU>(window.GetMenuBar()->GetHMenu());
}

LRESULT CALLBACK handled(HWND window, UINT message, WPARAM first, LPARAM second, UINT_PTR id,
                         DWORD_PTR onChosen) {
    // Of a menu, not of an accelerator or a control.
    if (message == WM_COMMAND && second == 0 && HIWORD(first) == 0 && LOWORD(first) == id) {
        (*reinterpret_cast<std::function<void()>*>(onChosen))();
        return 0;
    }
    return ::DefSubclassProc(window, message, first, second);
}

} // namespace

MenuBarEntry::MenuBarEntry(wxFrame& window, int place, std::function<void()> onChosen)
    : window_(window), place_(place), onChosen_(std::move(onChosen)), entry_(window.GetHWND()) {
    ::InsertMenuW(barOf(window_), UINT(place_), MF_BYPOSITION | MF_STRING, commandId(place_), L"-");
    ::SetWindowSubclass(static_cast<HWND>(entry_), handled, commandId(place_),
                        reinterpret_cast<DWORD_PTR>(&onChosen_));
}

MenuBarEntry::~MenuBarEntry() {
    ::RemoveWindowSubclass(static_cast<HWND>(entry_), handled, commandId(place_));
}

void MenuBarEntry::setCaption(const wxString& caption) {
    const UINT state =
        ::GetMenuState(barOf(window_), UINT(commandId(place_)), MF_BYCOMMAND) & MF_GRAYED;
    ::ModifyMenuW(barOf(window_), UINT(commandId(place_)), MF_BYCOMMAND | MF_STRING | state,
                  commandId(place_), caption.wc_str());
    ::DrawMenuBar(static_cast<HWND>(entry_));
}

void MenuBarEntry::enable(bool enabled) {
    ::EnableMenuItem(barOf(window_), UINT(commandId(place_)),
                     MF_BYCOMMAND | (enabled ? MF_ENABLED : MF_GRAYED));
    ::DrawMenuBar(static_cast<HWND>(entry_));
}

} // namespace vantrel
