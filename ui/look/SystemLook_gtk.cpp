#include "ui/look/SystemLook.h"

#include <cstdlib>

#include <gdk/gdkx.h>
#include <gtk/gtk.h>
#include <wx/artprov.h>
#include <wx/treectrl.h>
#include <wx/window.h>

namespace vantrel {

namespace {

// The default theme gives a 16-pixel tool button 36 pixels and a one-line choice 34.
constexpr const char* denseControls = R"css(
toolbar { padding: 0; }
toolbar button { padding: 3px; min-height: 16px; min-width: 16px; }
toolbar separator { margin: 3px 2px; }
combobox button.combo { padding: 1px 6px; min-height: 20px; }
button.narrow { padding: 0; min-height: 12px; min-width: 12px; }
entry { padding: 1px 6px; min-height: 22px; }
button.text-button { padding: 3px 10px; min-height: 20px; }
)css";

} // namespace

// Nothing here is drawn by OpenGL. Without it the toolkit does not look for a driver at its start,
// which costs 40 MB and a quarter of a second where the driver is software.
void prepareSystem() {
    constexpr int keepOperatorsWish = 0;
    setenv("GDK_GL", "disable", keepOperatorsWish);
}

void applySystemLook() {
    // A button that fades to grey is still half black when a library call stops all painting.
    g_object_set(gtk_settings_get_default(), "gtk-enable-animations", FALSE, nullptr);
    auto* provider = gtk_css_provider_new();
    gtk_css_provider_load_from_data(provider, denseControls, -1, nullptr);
    gtk_style_context_add_provider_for_screen(gdk_screen_get_default(),
                                              GTK_STYLE_PROVIDER(provider),
                                              GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
    g_object_unref(provider);
}

double textScale() {
    constexpr double usual = 96; // dots per inch
    const double resolution = gdk_screen_get_resolution(gdk_screen_get_default());
    return resolution > 0 ? resolution / usual : 1;
}

wxBitmapBundle questionPicture() {
    return wxArtProvider::GetBitmapBundle(wxART_QUESTION, wxART_MESSAGE_BOX);
}

bool goesOnAtTheRight() {
    return true;
}

void allowNarrow(wxWindow& button) {
    gtk_style_context_add_class(gtk_widget_get_style_context(button.GetHandle()), "narrow");
}

void hideScrollBars(wxTreeCtrl& tree) {
    tree.ShowScrollbars(wxSHOW_SB_NEVER, wxSHOW_SB_NEVER);
    // What scrolls has a list's frame, which this theme leaves out.
    tree.SetWindowStyleFlag(tree.GetWindowStyleFlag() & ~(wxHSCROLL | wxVSCROLL));
}

// The toolkit's own tree scrolls up and down only.
void scrollToLeftEdge(wxTreeCtrl& /*tree*/) {}

wxSize oneLineSize(const wxTreeCtrl& /*tree*/, const wxSize& best) {
    return best;
}

// A control that scrolls has a window around its own, which the toolkit's Raise() leaves where it
// is. One that was placed while hidden does not go to its place by itself.
void bringToFront(wxWindow& control) {
    auto* const widget = control.GetHandle();
    if (auto* const window = gtk_widget_get_window(widget))
        gdk_window_raise(window);
    const wxRect place = control.GetRect();
    GtkAllocation allocation{place.x, place.y, place.width, place.height};
    gtk_widget_get_preferred_size(widget, nullptr, nullptr);
    gtk_widget_size_allocate(widget, &allocation);
}

bool isOnScreen(const wxWindow& window) {
    auto* const shown = gtk_widget_get_window(window.GetHandle());
    if (!shown || !gdk_window_is_viewable(shown))
        return false;
    if (!GDK_IS_X11_WINDOW(shown))
        return true;
    XWindowAttributes attributes;
    return XGetWindowAttributes(GDK_WINDOW_XDISPLAY(shown), GDK_WINDOW_XID(shown), &attributes) &&
           attributes.map_state == IsViewable;
}

void setAccessibleName(wxWindow& control, const wxString& name) {
    if (auto* accessible = gtk_widget_get_accessible(control.GetHandle()))
        atk_object_set_name(accessible, name.utf8_str());
}

void describeFocusedRow(wxWindow& surface, const wxString& row) {
    auto* const accessible = gtk_widget_get_accessible(surface.GetHandle());
    if (!accessible)
        return;
    atk_object_set_role(accessible, ATK_ROLE_LIST);
    const auto* const told = atk_object_get_description(accessible);
    if (!told || row != wxString::FromUTF8(told))
        atk_object_set_description(accessible, row.utf8_str());
}

void setOwner(wxWindow& window, wxWindow& owner) {
    gtk_window_set_transient_for(GTK_WINDOW(window.GetHandle()), GTK_WINDOW(owner.GetHandle()));
}

} // namespace vantrel
