#pragma once

#include <wx/font.h>

class wxWindow;

namespace vantrel {

struct ApplicationState;

/// The font of all captions, from the application state's font fields. A face that this system
/// lacks is replaced by the system's own; a size that cannot be read on a screen is brought back to
/// one that can, and 0 or less (nothing recorded) means the system's size.
wxFont captionFont(const ApplicationState& state);

/// Gives the caption font to a window and everything in it, and lays it out again.
void applyCaptionFont(wxWindow& window, const ApplicationState& state);

} // namespace vantrel
