#include "ui/look/WindowFont.h"

#include "base/ApplicationState.h"
#include "ui/look/WxText.h"

#include <algorithm>

#include <wx/fontenum.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/toplevel.h>
#include <wx/window.h>

namespace vantrel {
namespace {

/// Points. A settings file may hold anything; with these every dialog still fits a small screen.
constexpr int smallestSize = 6;
constexpr int largestSize = 24;

int usableSize(int recorded, int systemSize) {
    return recorded <= 0 ? systemSize : std::clamp(recorded, smallestSize, largestSize);
}

void applyFont(wxWindow& window, const wxFont& font) {
    window.SetFont(font);
    for (wxWindow* const child : window.GetChildren())
        if (!child->IsTopLevel())
            applyFont(*child, font);
}

} // namespace

wxFont captionFont(const ApplicationState& state) {
    wxFont font = wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT);
    font.SetPointSize(usableSize(state.FontSize, font.GetPointSize()));
    const auto face = toWx(state.FontName);
    if (!face.empty() && wxFontEnumerator::IsValidFacename(face))
        font.SetFaceName(face);
    font.SetWeight(state.FontBold ? wxFONTWEIGHT_BOLD : wxFONTWEIGHT_NORMAL);
    font.SetStyle(state.FontItalic ? wxFONTSTYLE_ITALIC : wxFONTSTYLE_NORMAL);
    return font;
}

void applyCaptionFont(wxWindow& window, const ApplicationState& state) {
    applyFont(window, captionFont(state));
    window.Layout();
}

} // namespace vantrel
