#include "ui/look/IconSet.h"

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

wxVector<wxBitmapBundle> folderImages() {
    constexpr int iconSize = 16;
    wxVector<wxBitmapBundle> images;
    for (const auto* key : {"drive", "open"})
        images.push_back(icon(key, wxSize(iconSize, iconSize)));
    return images;
}

int folderImage(std::string_view key) {
    return key == "drive" ? 0 : 1;
}

} // namespace vantrel
