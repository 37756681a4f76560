#include "ui/look/CaptionButton.h"

#include "ui/look/WxText.h"

#include <wx/button.h>

namespace vantrel {

wxButton* newCaptionButton(wxWindow* parent, const std::string& caption, const std::string& name) {
    return new wxButton(parent, wxID_ANY, toWx(caption), wxDefaultPosition, wxDefaultSize, 0,
                        wxDefaultValidator, name);
}

} // namespace vantrel
