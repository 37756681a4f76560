#include "ui/IconSet.h"

#include "ui/dialogs/IconDrawings.h"

#include <algorithm>

#include <wx/icon.h>
#include <wx/iconbndl.h>

namespace vantrel {

wxBitmapBundle icon(std::string_view key, wxSize size) {
    const auto all = iconDrawings();
    const auto found = std::ranges::find(all, key, &IconDrawing::key);
    return found == all.end() ? wxBitmapBundle() : wxBitmapBundle::FromSVG(found->svg, size);
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
