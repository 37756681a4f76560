#include "ui/look/Captions.h"

#include "ui/look/WxText.h"

#include <wx/button.h>
#include <wx/utils.h>

namespace vantrel {
/// The toolkit takes off the bracketed letter of East Asian captions at the end only, where the
/// points would come behind it.
std::string withoutMnemonic(std::string_view caption) {
    if (caption.ends_with("..."))
        caption.remove_suffix(3);
    return fromWx(
        wxStripMenuCodes(toWx(std::string(caption)), wxStrip_Mnemonics | wxStrip_CJKMnemonics));
}

wxButton* newCaptionButton(wxWindow* parent, const std::string& caption, const std::string& name) {
    return new wxButton(parent, wxID_ANY, toWx(caption), wxDefaultPosition, wxDefaultSize, 0,
                        wxDefaultValidator, name);
}

} // namespace vantrel
