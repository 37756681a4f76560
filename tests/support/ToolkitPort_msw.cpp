#include "support/ToolkitPort.h"
#include "support/Windows.h"

#include <cstdio>
#include <map>
#include <string_view>

#include <wx/frame.h>
#include <wx/menu.h>
#include <wx/msgdlg.h>
#include <wx/msw/private.h>

namespace vantrel::tests {

namespace {

HMENU barOf(const wxFrame& window) {
    return static_cast<HMENU>(window.GetMenuBar()->GetHMenu());
}

BOOL CALLBACK keepWindow(HWND window, LPARAM windows) {
    if (::IsWindowVisible(window))
        reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
    return TRUE;
}

BOOL CALLBACK keepSystemsBox(HWND window, LPARAM box) {
    wchar_t kind[10]{};
    ::GetClassNameW(window, kind, int(std::size(kind)));
    if (std::wstring_view(kind) == L"#32770" && ::IsWindowVisible(window) &&
        !wxFindWinFromHandle(window))
        *reinterpret_cast<HWND*>(box) = window;
    return TRUE;
}

/// The system's own box for a message; null when it is not up, and for every other dialog.
HWND systemsBoxOf(const wxDialog& dialog) {
    HWND box = nullptr;
    if (dynamic_cast<const wxMessageDialog*>(&dialog))
        ::EnumThreadWindows(::GetCurrentThreadId(), keepSystemsBox, reinterpret_cast<LPARAM>(&box));
    return box;
}

/// This program's windows as the system has them at this moment, put together as the screen shows
/// them. Wine brings them to the screen later, when the program is idle.
class Picture {
  public:
    explicit Picture(const wxRect& area) {
        BITMAPINFO format{};
        format.bmiHeader.biSize = sizeof format.bmiHeader;
        format.bmiHeader.biWidth = area.width;
        format.bmiHeader.biHeight = -area.height; // from the top
        format.bmiHeader.biPlanes = 1;
        format.bmiHeader.biBitCount = 32;
        bitmap_ = ::CreateDIBSection(copy_, &format, DIB_RGB_COLORS, &pixels_, nullptr, 0);
        const HGDIOBJ before = ::SelectObject(copy_, bitmap_);
        std::vector<HWND> windows; // the foremost first
        ::EnumThreadWindows(::GetCurrentThreadId(), keepWindow, reinterpret_cast<LPARAM>(&windows));
        for (auto window = windows.rbegin(); window != windows.rend(); ++window)
            add(*window, area);
        ::GdiFlush();
        ::SelectObject(copy_, before);
    }
    ~Picture() {
        ::DeleteObject(bitmap_);
        ::DeleteDC(copy_);
    }
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    const std::uint32_t* pixels() const { return static_cast<const std::uint32_t*>(pixels_); }

  private:
    void add(HWND window, const wxRect& area) const {
        RECT at{};
        ::GetWindowRect(window, &at);
        const HDC content = ::GetWindowDC(window);
        ::BitBlt(copy_, at.left - area.x, at.top - area.y, at.right - at.left, at.bottom - at.top,
                 content, 0, 0, SRCCOPY);
        ::ReleaseDC(window, content);
    }

    HDC copy_ = ::CreateCompatibleDC(nullptr);
    HBITMAP bitmap_ = nullptr;
    void* pixels_ = nullptr;
};

BOOL CALLBACK countWindow(HWND window, LPARAM count) {
    RECT at{};
    ::GetWindowRect(window, &at);
    const wxRect screen(0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
    constexpr LONG smallest = 20;
    if (::IsWindowVisible(window) && at.right - at.left > smallest &&
        at.bottom - at.top > smallest && screen.Intersects(wxRectFromRECT(at)))
        ++*reinterpret_cast<int*>(count);
    return TRUE;
}

} // namespace

DisplayLock::DisplayLock()
    : handle_(reinterpret_cast<std::intptr_t>(
          ::CreateMutexW(nullptr, FALSE, L"Local\\vantrel-display"))) {
    ::WaitForSingleObject(reinterpret_cast<HANDLE>(handle_), INFINITE);
}

DisplayLock::~DisplayLock() {
    ::ReleaseMutex(reinterpret_cast<HANDLE>(handle_));
    ::CloseHandle(reinterpret_cast<HANDLE>(handle_));
}

// Dialogs are not made without it. What was said is to be read of a program that hangs as well.
void prepareToolkit() {
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    wxSetInstance(::GetModuleHandleW(nullptr));
}

void awaitDisplay() {
    ::GdiFlush();
}

void outwaitToolkit() {
    EXPECT_TRUE(waitFor([] { return HIWORD(::GetQueueStatus(QS_ALLINPUT)) == 0; }));
    runEvents();
}

void paintInGoodTime() {
    runEvents();
    for (const wxWindow* const window : wxTopLevelWindows)
        if (window->IsShown())
            ::RedrawWindow(GetHwndOf(window), nullptr, nullptr,
                           RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN |
                               RDW_UPDATENOW);
    runEvents();
    awaitDisplay();
}

std::vector<std::uint32_t> pixelsOnScreen(wxRect& area) {
    area.Intersect({0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)});
    const Picture picture(area);
    std::vector<std::uint32_t> pixels(picture.pixels(),
                                      picture.pixels() + std::ptrdiff_t(area.width) * area.height);
    for (auto& pixel : pixels)
        pixel &= 0xFFFFFF;
    return pixels;
}

int windowsOnScreen() {
    int count = 0;
    ::EnumWindows(countWindow, reinterpret_cast<LPARAM>(&count));
    return count;
}

void sendPress(wxWindow& window) {
    ::PostMessageW(GetHwndOf(&window), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
}

void sendClosing(wxTopLevelWindow& window) {
    ::PostMessageW(GetHwndOf(&window), WM_CLOSE, 0, 0);
}

// The toolkit's own way has no Enter of the keypad, which is the other one with a mark.
void strikeKey(int keyCode, int modifiers) {
    if (keyCode != WXK_NUMPAD_ENTER) {
        wxUIActionSimulator().Char(keyCode, modifiers);
        return;
    }
    INPUT strokes[2]{};
    for (INPUT& stroke : strokes) {
        stroke.type = INPUT_KEYBOARD;
        stroke.ki.wVk = VK_RETURN;
        stroke.ki.dwFlags = KEYEVENTF_EXTENDEDKEY;
    }
    strokes[1].ki.dwFlags |= KEYEVENTF_KEYUP;
    ::SendInput(UINT(std::size(strokes)), strokes, sizeof strokes[0]);
}

bool isWaiting(const wxDialog& dialog) {
    return (dialog.IsModal() && dialog.IsShown()) || systemsBoxOf(dialog) != nullptr;
}

void answer(wxDialog& dialog, int button) {
    const HWND box = systemsBoxOf(dialog);
    if (!box)
        return dialog.EndModal(button);
    const std::map<int, WPARAM> answers{
        {wxID_OK, IDOK}, {wxID_CANCEL, IDCANCEL}, {wxID_YES, IDYES}, {wxID_NO, IDNO}};
    ::PostMessageW(box, WM_COMMAND, answers.at(button), 0);
}

bool leave(wxDialog& dialog) {
    if (!systemsBoxOf(dialog))
        return swallows(dialog, WXK_ESCAPE);
    const auto style = dynamic_cast<const wxMessageDialog&>(dialog).GetMessageDialogStyle();
    answer(dialog, style & wxCANCEL ? wxID_CANCEL : style & wxYES_NO ? wxID_NO : wxID_OK);
    return true;
}

const wxWindow* keyboardIn(const wxTopLevelWindow& window) {
    const wxWindow* const found = wxWindow::FindFocus();
    return found && wxGetTopLevelParent(const_cast<wxWindow*>(found)) == &window ? found : nullptr;
}

bool staysBefore(const wxWindow& window, const wxWindow& owner) {
    return ::GetWindow(GetHwndOf(&window), GW_OWNER) == GetHwndOf(&owner);
}

std::vector<std::string> menuBarEntries(const wxFrame& window) {
    std::vector<std::string> labels;
    const HMENU bar = barOf(window);
    for (int entry = 0; entry < ::GetMenuItemCount(bar); ++entry) {
        wchar_t label[100]{};
        ::GetMenuStringW(bar, UINT(entry), label, WXSIZEOF(label), MF_BYPOSITION);
        labels.push_back(wxString(label).utf8_string());
    }
    return labels;
}

bool isMenu(const wxFrame& window, std::size_t entry) {
    return ::GetSubMenu(barOf(window), int(entry)) != nullptr;
}

void chooseCommand(wxFrame& window, std::size_t entry) {
    ::SendMessageW(GetHwndOf(&window), WM_COMMAND, ::GetMenuItemID(barOf(window), int(entry)), 0);
}

void closeOpenMenu(wxMenu& /*menu*/) {
    ::EndMenu();
}

std::vector<LeftOut> casesLeftOut() {
    return {
        {"The boxes are the system's own, with nothing of the toolkit's in them to look at.",
         {"*WxMessageBoxesTest.ShowsATextAsItIs*",
          "*WxMessageBoxesTest.ALongNameWrapsInsteadOfWideningIt*",
          "*WxMessageBoxesTest.ABoxWithoutAnIconHasNone*"}},
        {"Esc leaves no box of the system's that has Yes and No only.",
         {"*KeyInABoxTest.EscIsNo*"}},
        {"Wine asks a drop-down list for no menu when Shift and F10 are pressed.",
         {"*ConnectionTestInMainWindowTest.TheMenuOfTheRobotBoxOffersIt*"}},
    };
}

} // namespace vantrel::tests
