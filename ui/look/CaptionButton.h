#pragma once

#include <string>

class wxButton;
class wxWindow;

namespace vantrel {

/// A button with a caption of the language. It has no standard id (OK, Cancel): where its caption
/// is the standard one too, some systems would then draw it in another size than its neighbours.
wxButton* newCaptionButton(wxWindow* parent, const std::string& caption, const std::string& name);

} // namespace vantrel
