#include "ui/look/FolderImages.h"

#include "ui/look/IconSet.h"

namespace vantrel {

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
