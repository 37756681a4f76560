#include "ui/ChoiceKeys.h"

#include <gtk/gtk.h>
#include <wx/choice.h>

namespace vantrel {

void openList(wxChoice& choice) {
    if (choice.IsEnabled())
        gtk_combo_box_popup(GTK_COMBO_BOX(choice.GetHandle()));
}

bool isListOpen(const wxChoice& choice) {
    gboolean isOpen = FALSE;
    g_object_get(choice.GetHandle(), "popup-shown", &isOpen, nullptr);
    return isOpen != FALSE;
}

} // namespace vantrel
