#pragma once

#include <string_view>

#include <wx/bmpbndl.h>

class wxIconBundle;

namespace vantrel {

/// The program's drawing of this key, crisp at every resolution; `size` is in device-independent
/// pixels beside texts of the usual size, and grows with larger ones. An unknown key gives an empty
/// bundle.
wxBitmapBundle icon(std::string_view key, wxSize size);

/// The program's icon for the title bars and the task list, in the usual sizes.
wxIconBundle programIcons();

} // namespace vantrel
