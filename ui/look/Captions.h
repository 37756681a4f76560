#pragma once

#include <string>
#include <string_view>

class wxButton;
class wxWindow;

namespace vantrel {

/// A menu's or button's caption as plain text, for titles: "&About..." becomes "About", and
/// "終了(&X)" becomes "終了".
std::string withoutMnemonic(std::string_view caption);

/// A button with a caption of the language. It has no standard id (OK, Cancel): where its caption
/// is the standard one too, some systems would then draw it in another size than its neighbours.
wxButton* newCaptionButton(wxWindow* parent, const std::string& caption, const std::string& name);

} // namespace vantrel
