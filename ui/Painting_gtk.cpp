#include "ui/Painting.h"

#include <memory>
#include <vector>

#include <gdk/gdkx.h>
#include <gtk/gtk.h>
#include <poll.h>

namespace vantrel {

namespace {

struct EventEnd {
    void operator()(GdkEvent* event) const { gdk_event_free(event); }
};
using Event = std::unique_ptr<GdkEvent, EventEnd>;

bool isAboutWindow(const GdkEvent& event) {
    switch (event.type) {
    case GDK_EXPOSE:
    case GDK_DAMAGE:
    case GDK_CONFIGURE:
    case GDK_MAP:
    case GDK_UNMAP:
    case GDK_PROPERTY_NOTIFY:
    case GDK_WINDOW_STATE:
    case GDK_VISIBILITY_NOTIFY:
        return true;
    default:
        return false;
    }
}

/// A window that is never shown, to ask a window manager about.
class Probe {
  public:
    explicit Probe(Display* display)
        : display_(display),
          window_(XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 1, 1, 0, 0, 0)) {
        XSelectInput(display_, window_, PropertyChangeMask);
    }
    ~Probe() { XDestroyWindow(display_, window_); }
    Probe(const Probe&) = delete;
    Probe& operator=(const Probe&) = delete;

    void ask(Atom question) {
        XEvent event{};
        event.xclient.type = ClientMessage;
        event.xclient.window = window_;
        event.xclient.message_type = question;
        event.xclient.format = 32;
        XSendEvent(display_, DefaultRootWindow(display_), False,
                   SubstructureRedirectMask | SubstructureNotifyMask, &event);
    }
    bool isAnswered() {
        XEvent event{};
        return XCheckTypedWindowEvent(display_, window_, PropertyNotify, &event) == True;
    }

  private:
    Display* display_;
    Window window_;
};

/// Until the display has something to say, or the time is over.
bool awaitDisplay(Display* display, std::chrono::steady_clock::time_point deadline) {
    using namespace std::chrono;
    const auto left = duration_cast<milliseconds>(deadline - steady_clock::now()).count();
    pollfd connection{ConnectionNumber(display), POLLIN, 0};
    return left > 0 && poll(&connection, 1, static_cast<int>(left)) > 0;
}

} // namespace

// The toolkit lays out and paints by a clock, sixty times a second, when the program is idle: what
// its clock would do in its next beat is done now.
void paintChanges() {
    GList* const windows = gtk_window_list_toplevels();
    for (const GList* entry = windows; entry; entry = entry->next) {
        auto* const window = GTK_WIDGET(entry->data);
        if (!gtk_widget_get_mapped(window))
            continue;
        GdkFrameClock* const clock = gtk_widget_get_frame_clock(window);
        g_signal_emit_by_name(clock, "layout");
        g_signal_emit_by_name(clock, "paint");
    }
    g_list_free(windows);
    gdk_display_flush(gdk_display_get_default());
}

bool areWindowEventsPending() {
    return gdk_events_pending();
}

bool takeWindowEvents() {
    GdkDisplay* const display = gdk_display_get_default();
    gdk_display_sync(display);
    // All of them first: what the handling of one brings is for the next call, so that this one
    // ends.
    std::vector<Event> events;
    while (Event event{gdk_display_get_event(display)})
        events.push_back(std::move(event));
    bool tookSome = false;
    for (const Event& event : events)
        if (!isAboutWindow(*event)) {
            gdk_display_put_event(display, event.get());
        } else {
            gtk_main_do_event(event.get());
            tookSome = true;
        }
    return tookSome;
}

// Window managers work through what they are told in order, and all of them answer this question:
// toolkits put it before they show a window.
bool awaitWindowManager(std::chrono::steady_clock::time_point deadline) {
    constexpr const char* question = "_NET_REQUEST_FRAME_EXTENTS";
    GdkDisplay* const display = gdk_display_get_default();
    if (!GDK_IS_X11_DISPLAY(display) ||
        !gdk_x11_screen_supports_net_wm_hint(gdk_screen_get_default(),
                                             gdk_atom_intern_static_string(question)))
        return true;
    Display* const connection = GDK_DISPLAY_XDISPLAY(display);
    Probe probe(connection);
    probe.ask(gdk_x11_get_xatom_by_name_for_display(display, question));
    bool isAnswered = probe.isAnswered();
    while (!isAnswered && awaitDisplay(connection, deadline))
        isAnswered = probe.isAnswered();
    return isAnswered;
}

} // namespace vantrel
