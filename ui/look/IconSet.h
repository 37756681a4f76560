#pragma once

#include <span>
#include <string_view>

#include <wx/bmpbndl.h>
#include <wx/vector.h>

class wxIconBundle;

namespace vantrel {

/// One of the program's own drawings: the key is the file's name in data/icons without ".svg".
struct IconDrawing {
    std::string_view key;
    const char* svg;
};

/// All drawings, embedded at build time.
std::span<const IconDrawing> iconDrawings();

/// The program's drawing of this key, crisp at every resolution; `size` is in device-independent
/// pixels beside texts of the usual size, and grows with larger ones. An unknown key gives an empty
/// bundle.
wxBitmapBundle icon(std::string_view key, wxSize size);

/// The program's icon for the title bars and the task list, in the usual sizes.
wxIconBundle programIcons();

/// The small images of drives and folders, for the trees.
wxVector<wxBitmapBundle> folderImages();
/// The place of "drive" or "open" among them.
int folderImage(std::string_view key);

} // namespace vantrel
