#pragma once

#include <cstdint>
#include <string>

#include <wx/colour.h>
#include <wx/panel.h>

namespace vantrel {

/// A colour of red, green and blue as the toolkit has it.
wxColour colourOf(std::uint32_t redGreenBlue);

/// Shows a colour and nothing else; an empty panel would be a stop of the Tab key.
class ColourSwatch final : public wxPanel {
  public:
    explicit ColourSwatch(wxWindow* parent, const wxString& name = wxPanelNameStr, long style = 0);

    /// `name` is what it is called where it is not seen.
    void showColour(std::uint32_t redGreenBlue, const std::string& name);

    bool AcceptsFocus() const override { return false; }
    bool AcceptsFocusRecursively() const override { return false; }
    bool AcceptsFocusFromKeyboard() const override { return false; }
};

} // namespace vantrel
