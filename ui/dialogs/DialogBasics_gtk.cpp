#include "ui/dialogs/DialogBasics.h"

#include <utility>

#include <gtk/gtk.h>
#include <wx/window.h>

namespace vantrel {

namespace {

using Action = std::function<void()>;

bool isEnter(const GdkEventKey& key) {
    return key.keyval == GDK_KEY_Return || key.keyval == GDK_KEY_KP_Enter ||
           key.keyval == GDK_KEY_ISO_Enter;
}

gboolean handled(GtkWidget*, GdkEvent* event, gpointer action) {
    if (event->type != GDK_KEY_PRESS || !isEnter(event->key))
        return FALSE;
    (*static_cast<Action*>(action))();
    return TRUE;
}

void release(gpointer action, GClosure*) {
    delete static_cast<Action*>(action);
}

} // namespace

/// The toolkit's list box has its say before any event of the window: it takes the key for a double
/// click and presses the default button as well, a quarter of a second later. So the key is caught
/// on its way to the list.
void onEnter(wxWindow& control, Action action) {
    g_signal_connect_data(control.GetConnectWidget(), "event", G_CALLBACK(handled),
                          new Action(std::move(action)), release, GConnectFlags(0));
}

// It opens a closed list, and no button hears of it.
void keepEnter(wxChoice& /*list*/) {}

} // namespace vantrel
