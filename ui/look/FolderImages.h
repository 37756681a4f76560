#pragma once

#include <string_view>

#include <wx/bmpbndl.h>
#include <wx/vector.h>

namespace vantrel {

/// The small images of drives and folders, for the trees.
wxVector<wxBitmapBundle> folderImages();
/// The place of "drive" or "open" among them.
int folderImage(std::string_view key);

} // namespace vantrel
