#pragma once

#include "support/Windows.h"

#include <gtk/gtk.h>

namespace vantrel::tests {

/// Runs events until the toolkit has done all that a key press makes it do. It clicks the default
/// button only a while after Enter; a button of our own that is pressed in the same way after the
/// key is clicked later still.
inline void outwaitToolkit() {
    gdk_display_sync(gdk_display_get_default());
    runEvents();
    bool isClicked = false;
    auto* const window = gtk_offscreen_window_new();
    auto* const button = gtk_button_new();
    gtk_container_add(GTK_CONTAINER(window), button);
    gtk_widget_show_all(window);
    g_signal_connect_swapped(button, "clicked", G_CALLBACK(+[](bool* clicked) { *clicked = true; }),
                             &isClicked);
    gtk_widget_activate(button);
    EXPECT_TRUE(waitFor([&] { return isClicked; }));
    gtk_widget_destroy(window);
    runEvents();
}

/// A real key press, and all that follows from it.
inline void pressKeyAndWait(int keyCode, int modifiers = wxMOD_NONE) {
    pressKey(keyCode, modifiers);
    outwaitToolkit();
}

} // namespace vantrel::tests
