#include "ui/MenuBarEntry.h"

#include <utility>

#include <gtk/gtk.h>
#include <wx/frame.h>
#include <wx/menu.h>

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

} // namespace vantrel
