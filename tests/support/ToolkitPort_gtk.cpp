#include "support/TemporaryFolder.h"
#include "support/ToolkitPort.h"
#include "support/Windows.h"
#include "ui/Painting.h"

#include <cstdlib>
#include <filesystem>

#include <X11/Xatom.h>
#include <fcntl.h>
#include <gdk/gdkx.h>
#include <gtk/gtk.h>
#include <sys/file.h>
#include <unistd.h>
#include <wx/frame.h>
#include <wx/menu.h>

namespace vantrel::tests {

namespace {

void send(GdkEventType type, const wxWindow& window) {
    GdkDisplay* const display = gdk_display_get_default();
    GdkEvent* const event = gdk_event_new(type);
    event->any.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(window.GetHandle())));
    if (type == GDK_BUTTON_PRESS)
        event->button.button = GDK_BUTTON_PRIMARY;
    gdk_event_set_device(event, gdk_seat_get_pointer(gdk_display_get_default_seat(display)));
    gdk_display_put_event(display, event);
    gdk_event_free(event);
}

const wxWindow* windowOf(const wxWindow& above, const GtkWidget* widget) {
    for (const wxWindow* const child : above.GetChildren()) {
        if (child->GetHandle() == widget)
            return child;
        if (const auto* const found = windowOf(*child, widget))
            return found;
    }
    return nullptr;
}

std::vector<GtkMenuItem*> entriesOf(const wxFrame& window) {
    auto* const list = gtk_container_get_children(GTK_CONTAINER(window.GetMenuBar()->GetHandle()));
    std::vector<GtkMenuItem*> entries;
    for (const auto* entry = list; entry; entry = entry->next)
        entries.push_back(GTK_MENU_ITEM(entry->data));
    g_list_free(list);
    return entries;
}

} // namespace

DisplayLock::DisplayLock() {
    const char* const display = std::getenv("DISPLAY");
    std::string name = "vantrel-display-";
    for (const char* at = display ? display : ""; *at; ++at)
        name += *at == '/' ? '_' : *at;
    const auto path = std::filesystem::temp_directory_path() / name;
    handle_ = open(path.c_str(), O_CREAT | O_RDWR | O_CLOEXEC, 0666);
    if (handle_ >= 0)
        flock(static_cast<int>(handle_), LOCK_EX);
}

DisplayLock::~DisplayLock() {
    if (handle_ >= 0)
        close(static_cast<int>(handle_));
}

// The user's waste bin, above all, is not the tests' to fill.
void prepareToolkit() {
    static const TemporaryFolder userData;
    g_setenv("XDG_DATA_HOME", userData.path().c_str(), TRUE);
}

void awaitDisplay() {
    gdk_display_sync(gdk_display_get_default());
}

// The toolkit clicks the default button only a while after Enter; a button of our own that is
// pressed in the same way after the key is clicked later still.
void outwaitToolkit() {
    awaitDisplay();
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

void paintInGoodTime() {
    awaitWindowManager(std::chrono::steady_clock::now() + std::chrono::seconds(5));
    runEvents();
    GList* const windows = gtk_window_list_toplevels();
    for (const GList* entry = windows; entry; entry = entry->next) {
        auto* const window = GTK_WIDGET(entry->data);
        if (!gtk_widget_get_mapped(window))
            continue;
        bool isPainted = false;
        GdkFrameClock* const clock = gtk_widget_get_frame_clock(window);
        const auto painted = +[](GdkFrameClock*, bool* done) { *done = true; };
        const gulong connection =
            g_signal_connect(clock, "after-paint", G_CALLBACK(painted), &isPainted);
        gtk_widget_queue_draw(window);
        EXPECT_TRUE(waitFor([&] { return isPainted; }));
        g_signal_handler_disconnect(clock, connection);
    }
    g_list_free(windows);
    awaitDisplay();
}

std::vector<std::uint32_t> pixelsOnScreen(wxRect& area) {
    Display* const display = GDK_DISPLAY_XDISPLAY(gdk_display_get_default());
    const Window root = DefaultRootWindow(display);
    XWindowAttributes screen;
    XGetWindowAttributes(display, root, &screen);
    area.Intersect(wxRect(0, 0, screen.width, screen.height));
    XImage* const image =
        XGetImage(display, root, area.x, area.y, static_cast<unsigned>(area.width),
                  static_cast<unsigned>(area.height), AllPlanes, ZPixmap);
    std::vector<std::uint32_t> pixels;
    for (int y = 0; y < area.height; ++y)
        for (int x = 0; x < area.width; ++x)
            pixels.push_back(static_cast<std::uint32_t>(XGetPixel(image, x, y)) & 0xFFFFFF);
    XDestroyImage(image);
    return pixels;
}

/// A tool tip comes by itself wherever the pointer happens to rest.
static bool isToolTip(Display* display, Window window) {
    const Atom property = XInternAtom(display, "_NET_WM_WINDOW_TYPE", False);
    Atom type = None;
    int format = 0;
    unsigned long count = 0, rest = 0;
    unsigned char* value = nullptr;
    constexpr long one = 1;
    XGetWindowProperty(display, window, property, 0, one, False, XA_ATOM, &type, &format, &count,
                       &rest, &value);
    const bool isTip = value != nullptr && count == 1 &&
                       *reinterpret_cast<Atom*>(value) ==
                           XInternAtom(display, "_NET_WM_WINDOW_TYPE_TOOLTIP", False);
    if (value != nullptr)
        XFree(value);
    return isTip;
}

int windowsOnScreen() {
    Display* const display = GDK_DISPLAY_XDISPLAY(gdk_display_get_default());
    Window root = 0, parent = 0, *children = nullptr;
    unsigned count = 0;
    // Other programs' windows come and go meanwhile.
    gdk_x11_display_error_trap_push(gdk_display_get_default());
    XQueryTree(display, DefaultRootWindow(display), &root, &parent, &children, &count);
    int seen = 0;
    for (unsigned child = 0; child < count; ++child) {
        XWindowAttributes at;
        const bool isThere = XGetWindowAttributes(display, children[child], &at) != 0;
        // Window managers have tiny windows of their own, some beside the screen.
        if (isThere && at.map_state == IsViewable && at.c_class == InputOutput && at.width > 20 &&
            at.height > 20 && at.x + at.width > 0 && at.y + at.height > 0 &&
            !isToolTip(display, children[child]))
            ++seen;
    }
    XFree(children);
    gdk_x11_display_error_trap_pop_ignored(gdk_display_get_default());
    return seen;
}

void sendPress(wxWindow& window) {
    send(GDK_BUTTON_PRESS, window);
}

void sendClosing(wxTopLevelWindow& window) {
    send(GDK_DELETE, window);
}

// A control's own parts have no window of the toolkit's.
void strikeKey(int keyCode, int modifiers) {
    wxUIActionSimulator().Char(keyCode, modifiers);
}

bool isWaiting(const wxDialog& dialog) {
    return dialog.IsModal() && dialog.IsShown();
}

void answer(wxDialog& dialog, int button) {
    dialog.EndModal(button);
}

bool leave(wxDialog& dialog) {
    return swallows(dialog, WXK_ESCAPE);
}

const wxWindow* keyboardIn(const wxTopLevelWindow& window) {
    auto* part = gtk_window_get_focus(GTK_WINDOW(window.GetHandle()));
    for (; part; part = gtk_widget_get_parent(part))
        if (const auto* const found = windowOf(window, part))
            return found;
    return nullptr;
}

bool staysBefore(const wxWindow& window, const wxWindow& owner) {
    return gtk_window_get_transient_for(GTK_WINDOW(window.GetHandle())) ==
           GTK_WINDOW(owner.GetHandle());
}

std::vector<std::string> menuBarEntries(const wxFrame& window) {
    std::vector<std::string> labels;
    for (GtkMenuItem* const entry : entriesOf(window)) {
        std::string label = gtk_menu_item_get_label(entry);
        if (const auto key = label.find('_'); key != std::string::npos)
            label[key] = '&';
        labels.push_back(label);
    }
    return labels;
}

bool isMenu(const wxFrame& window, std::size_t entry) {
    return gtk_menu_item_get_submenu(entriesOf(window).at(entry)) != nullptr;
}

void chooseCommand(wxFrame& window, std::size_t entry) {
    gtk_menu_item_activate(entriesOf(window).at(entry));
}

void closeOpenMenu(wxMenu& menu) {
    gtk_menu_popdown(GTK_MENU(menu.m_menu));
}

std::vector<LeftOut> casesLeftOut() {
    return {};
}

} // namespace vantrel::tests

/// The font library keeps what it has read until the process ends; that is none of our leaks.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions() {
    return "leak:libfontconfig\n";
}

extern "C" __attribute__((visibility("default"))) const char* __lsan_default_options() {
    return "print_suppressions=0";
}
