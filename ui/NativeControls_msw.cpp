#include "ui/NativeControls.h"
#include "ui/look/WxText.h"

#include <limits>
#include <utility>

#include <richedit.h>
#include <wx/choice.h>
#include <wx/frame.h>
#include <wx/menu.h>
#include <wx/msw/private.h>
#include <wx/msw/wrapcctl.h>
#include <wx/textbuf.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>

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

/// Caret, selection and what is scrolled into view, as they were; nothing is drawn meanwhile.
class ViewKept {
  public:
    explicit ViewKept(HWND control) : control_(control) {
        ::SendMessageW(control_, WM_SETREDRAW, FALSE, 0);
        ::SendMessageW(control_, EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&selection_));
        ::SendMessageW(control_, EM_GETSCROLLPOS, 0, reinterpret_cast<LPARAM>(&place_));
    }
    ~ViewKept() {
        ::SendMessageW(control_, EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&selection_));
        ::SendMessageW(control_, EM_SETSCROLLPOS, 0, reinterpret_cast<LPARAM>(&place_));
        ::SendMessageW(control_, WM_SETREDRAW, TRUE, 0);
        ::InvalidateRect(control_, nullptr, TRUE);
    }
    ViewKept(const ViewKept&) = delete;
    ViewKept& operator=(const ViewKept&) = delete;

  private:
    HWND control_;
    CHARRANGE selection_{};
    POINT place_{};
};

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

void tellReleases(wxTreeCtrl& tree) {
    const HWND window = GetHwndOf(&tree);
    const auto style = ::GetWindowLongPtrW(window, GWL_STYLE);
    ::SetWindowLongPtrW(window, GWL_STYLE, style | TVS_DISABLEDRAGDROP);
}

void appendQuietly(wxTextCtrl& control, const std::string& text) {
    const HWND window = GetHwndOf(&control);
    const ViewKept kept(window);
    // The limit of characters is for typing, but the control holds to it here too.
    constexpr LPARAM noLimit = std::numeric_limits<LONG>::max() - 1;
    ::SendMessageW(window, EM_EXLIMITTEXT, 0, noLimit);
    CHARRANGE end{std::numeric_limits<LONG>::max(), std::numeric_limits<LONG>::max()};
    ::SendMessageW(window, EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&end));
    const wxString lines = wxTextBuffer::Translate(toWx(text), wxTextFileType_Dos);
    ::SendMessageW(window, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(lines.wc_str()));
}

// The toolkit hears of them.
void tellRightPresses(wxChoice& /*choice*/) {}

void showWholeEntries(wxChoice& choice) {
    ::SendMessageW(GetHwndOf(&choice), CB_SETDROPPEDWIDTH,
                   static_cast<WPARAM>(choice.GetBestSize().x), 0);
}

void openList(wxChoice& choice) {
    if (choice.IsEnabled())
        ::SendMessageW(GetHwndOf(&choice), CB_SHOWDROPDOWN, TRUE, 0);
}

bool isListOpen(const wxChoice& choice) {
    return ::SendMessageW(GetHwndOf(&choice), CB_GETDROPPEDSTATE, 0, 0) != 0;
}

} // namespace vantrel
