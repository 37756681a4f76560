#pragma once

#include <wx/choice.h>
#include <wx/listbox.h>
#include <wx/radiobut.h>

namespace vantrel::tests {

/// Tells a control what the operator did there; `number` is the entry that was chosen.
inline void tell(wxWindow& control, wxEventType what, int number = 0) {
    wxCommandEvent event(what, control.GetId());
    event.SetInt(number);
    event.SetEventObject(&control);
    control.HandleWindowEvent(event);
}

/// Chooses an entry of a list, as a click or a double click on it does.
inline void pick(wxListBox& list, int index, wxEventType how = wxEVT_LISTBOX) {
    list.SetSelection(index);
    tell(list, how, index);
}

/// Chooses an entry of a drop-down list.
inline void pick(wxChoice& list, int index) {
    list.SetSelection(index);
    tell(list, wxEVT_CHOICE, index);
}

/// Chooses a button and so none other of its group.
inline void pick(wxRadioButton& button) {
    button.SetValue(true);
    tell(button, wxEVT_RADIOBUTTON);
}

} // namespace vantrel::tests
