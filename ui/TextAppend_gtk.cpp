#include "base/Text.h"
#include "ui/TextAppend.h"

#include <gtk/gtk.h>
#include <wx/textctrl.h>

namespace vantrel {

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

} // namespace vantrel
