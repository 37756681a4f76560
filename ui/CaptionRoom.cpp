#include "ui/CaptionRoom.h"

#include "app/Twips.h"
#include "app/WindowLayout.h"
#include "ui/MainWindowControls.h"

#include <algorithm>

#include <wx/display.h>
#include <wx/stattext.h>

namespace vantrel {
namespace {

double neededRoom(const wxStaticText& label, const wxString& text, const Rectangle& place,
                  int dpi) {
    const wxSize needed = label.GetTextExtent(text);
    return std::max(needed.x / double(pixelsFromTwips(place.width, dpi)),
                    needed.y / double(pixelsFromTwips(place.height, dpi)));
}

double roomOnTheScreen(const wxWindow& window, int dpi) {
    const int index = wxDisplay::GetFromWindow(&window);
    const wxRect screen = wxDisplay(index == wxNOT_FOUND ? 0u : unsigned(index)).GetClientArea();
    return std::min(screen.width / double(pixelsFromTwips(minimumSize.width, dpi)),
                    screen.height / double(pixelsFromTwips(minimumSize.height, dpi)));
}

} // namespace

double captionRoom(const MainWindowControls& controls, int dpi) {
    const WindowLayout layout = windowLayout(designSize);
    const std::pair<const wxStaticText*, const Rectangle*> labels[] = {
        {controls.lblSerial, &layout.lblDisp[serialLabelIndex]},
        {controls.lblRbtName, &layout.lblRbtName},
        {controls.lblIPaddr, &layout.lblIPaddr},
        {controls.lblFolder, &layout.lblDisp[folderLabel]},
        {controls.lblPCFileType, &layout.lblDisp[pcTypeLabel]},
        {controls.lblCtrlFileType, &layout.lblDisp[controllerTypeLabel]},
        {controls.lblFile, &layout.lblDisp[viewerFileLabel]}};
    // The end of an address is what tells two robots apart.
    double room = neededRoom(*controls.lblIPAddr2, "255.255.255.255", layout.lblIPAddr2, dpi);
    for (const auto& [label, place] : labels)
        room = std::max(room, neededRoom(*label, label->GetLabelText(), *place, dpi));
    return std::clamp(room, 1.0, std::max(1.0, roomOnTheScreen(*controls.surface, dpi)));
}

} // namespace vantrel
