#include "base/Text.h"
#include "ui/NativeControls.h"

#include <utility>

#include <gtk/gtk.h>
#include <wx/choice.h>
#include <wx/frame.h>
#include <wx/menu.h>
#include <wx/textctrl.h>

namespace vantrel {
namespace {

void activated(GtkMenuItem*, gpointer onChosen) {
    (*static_cast<std::function<void()>*>(onChosen))();
}

wxString withSystemsMnemonic(wxString caption) {
    caption.Replace("_", "__");
    caption.Replace("&", "_");
    return caption;
}

gboolean rightPressed(GtkWidget*, GdkEventButton* press, gpointer pressed) {
    if (press->type != GDK_BUTTON_PRESS || press->button != GDK_BUTTON_SECONDARY)
        return FALSE;
    auto& choice = *static_cast<wxChoice*>(pressed);
    wxContextMenuEvent event(wxEVT_CONTEXT_MENU, choice.GetId(),
                             wxPoint(int(press->x_root), int(press->y_root)));
    event.SetEventObject(&choice);
    choice.HandleWindowEvent(event);
    return TRUE;
}

void tellOfButton(GtkWidget* part, gpointer choice) {
    if (GTK_IS_BUTTON(part))
        g_signal_connect(part, "button-press-event", G_CALLBACK(rightPressed), choice);
    else if (GTK_IS_CONTAINER(part))
        gtk_container_forall(GTK_CONTAINER(part), tellOfButton, choice);
}

} // namespace

MenuBarEntry::MenuBarEntry(wxFrame& window, int place, std::function<void()> onChosen)
    : window_(window), place_(place), onChosen_(std::move(onChosen)) {
    auto* const item = gtk_menu_item_new_with_mnemonic("");
    entry_ = g_object_ref_sink(item);
    gtk_menu_shell_insert(GTK_MENU_SHELL(window_.GetMenuBar()->GetHandle()), item, place_);
    gtk_widget_show(item);
    g_signal_connect(item, "activate", G_CALLBACK(activated), &onChosen_);
}

/// The menu bar may be gone by now, or stay a while longer.
MenuBarEntry::~MenuBarEntry() {
    g_signal_handlers_disconnect_by_data(entry_, &onChosen_);
    g_object_unref(entry_);
}

void MenuBarEntry::setCaption(const wxString& caption) {
    gtk_menu_item_set_label(GTK_MENU_ITEM(entry_), withSystemsMnemonic(caption).utf8_str());
}

void MenuBarEntry::enable(bool enabled) {
    gtk_widget_set_sensitive(GTK_WIDGET(entry_), enabled);
}

// The toolkit's own tree keeps none.
void tellReleases(wxTreeCtrl& /*tree*/) {}

void appendQuietly(wxTextCtrl& control, const std::string& text) {
    // The control is a scrolled window around the view.
    auto* view = gtk_bin_get_child(GTK_BIN(control.GetHandle()));
    auto* buffer = gtk_text_view_get_buffer(GTK_TEXT_VIEW(view));
    // GTK ends the program over bytes that are no UTF-8.
    const auto valid = isValidUtf8(text) ? text : utf8(codePoints(text));
    GtkTextIter end;
    gtk_text_buffer_get_end_iter(buffer, &end);
    gtk_text_buffer_insert(buffer, &end, valid.data(), int(valid.size()));
}

// The button, which lies above the toolkit's own part, lives as long as the choice.
void tellRightPresses(wxChoice& choice) {
    tellOfButton(choice.GetHandle(), &choice);
}

// The system's own list is as wide as they are.
void showWholeEntries(wxChoice& /*choice*/) {}

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
