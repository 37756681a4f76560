#include "ui/look/IconSet.h"

#include "ui/look/IconDrawings.h"
#include "ui/look/SystemLook.h"

#include <algorithm>
#include <cmath>

#include <wx/icon.h>
#include <wx/iconbndl.h>

namespace vantrel {

namespace {

wxSize besideTexts(wxSize size) {
    const auto scaled = [scale = textScale()](int length) {
        return int(std::lround(length * scale));
    };
    return {scaled(size.x), scaled(size.y)};
}

} // namespace

wxBitmapBundle icon(std::string_view key, wxSize size) {
    const auto all = iconDrawings();
    const auto found = std::ranges::find(all, key, &IconDrawing::key);
    return found == all.end() ? wxBitmapBundle()
                              : wxBitmapBundle::FromSVG(found->svg, besideTexts(size));
}

wxIconBundle programIcons() {
    wxIconBundle icons;
    for (const int pixels : {16, 24, 32, 48, 64, 128, 256}) {
        const wxSize size(pixels, pixels);
        wxIcon one;
        one.CopyFromBitmap(icon("vantrel", size).GetBitmap(size));
        icons.AddIcon(one);
    }
    return icons;
}

} // namespace vantrel
