#include "ui/TextAppend.h"
#include "ui/look/WxText.h"

#include <limits>

#include <richedit.h>
#include <wx/msw/private.h>
#include <wx/textbuf.h>
#include <wx/textctrl.h>

namespace vantrel {

namespace {

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

} // namespace vantrel
