#include "ui/look/ColourSwatch.h"

#include "ui/look/SystemLook.h"
#include "ui/look/WxText.h"

namespace vantrel {

wxColour colourOf(std::uint32_t redGreenBlue) {
    return {static_cast<unsigned char>(redGreenBlue >> 16),
            static_cast<unsigned char>(redGreenBlue >> 8),
            static_cast<unsigned char>(redGreenBlue)};
}

ColourSwatch::ColourSwatch(wxWindow* parent, const wxString& name, long style)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, style, name) {
    wxPanel::SetCanFocus(false);
}

void ColourSwatch::showColour(std::uint32_t redGreenBlue, const std::string& name) {
    SetBackgroundColour(colourOf(redGreenBlue));
    setAccessibleName(*this, toWx(name));
    SetToolTip(toWx(name));
    Refresh();
}

} // namespace vantrel
