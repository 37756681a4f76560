#pragma once

#include "support/Windows.h"
#include "ui/Painting.h"

#include <algorithm>
#include <cstdint>
#include <set>
#include <vector>

#include <gdk/gdkx.h>
#include <gtk/gtk.h>

// What the screen shows at this moment, as the display has it, whatever the toolkit believes.

namespace vantrel::tests {

/// The pixels of a part of the screen.
class ScreenPicture {
  public:
    /// What lies outside the screen is left out.
    explicit ScreenPicture(wxRect area) : area_(area) {
        Display* const display = GDK_DISPLAY_XDISPLAY(gdk_display_get_default());
        const Window root = DefaultRootWindow(display);
        XWindowAttributes screen;
        XGetWindowAttributes(display, root, &screen);
        area_.Intersect(wxRect(0, 0, screen.width, screen.height));
        XImage* const image =
            XGetImage(display, root, area_.x, area_.y, static_cast<unsigned>(area_.width),
                      static_cast<unsigned>(area_.height), AllPlanes, ZPixmap);
        for (int y = 0; y < area_.height; ++y)
            for (int x = 0; x < area_.width; ++x)
                pixels_.push_back(static_cast<std::uint32_t>(XGetPixel(image, x, y)) & 0xFFFFFF);
        XDestroyImage(image);
    }
    /// Of a window, without its frame.
    explicit ScreenPicture(const wxWindow& window)
        : ScreenPicture(wxRect(window.ClientToScreen(wxPoint(0, 0)), window.GetClientSize())) {}

    bool operator==(const ScreenPicture& other) const { return pixels_ == other.pixels_; }
    std::size_t colours() const { return std::set(pixels_.begin(), pixels_.end()).size(); }
    /// Red, green and blue, a byte each.
    std::uint32_t at(int x, int y) const {
        return pixels_.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(area_.width) +
                          static_cast<std::size_t>(x));
    }
    int width() const { return area_.width; }
    int height() const { return area_.height; }

  private:
    wxRect area_;
    std::vector<std::uint32_t> pixels_;
};

/// How many windows with frames are to be seen, whosever they are.
inline int windowsOnScreen() {
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
            at.height > 20 && at.x + at.width > 0 && at.y + at.height > 0)
            ++seen;
    }
    XFree(children);
    gdk_x11_display_error_trap_pop_ignored(gdk_display_get_default());
    return seen;
}

/// Paints everything as the toolkit does when it is given all the time that it wants.
inline void paintInGoodTime() {
    awaitWindowManager(std::chrono::steady_clock::now() + std::chrono::seconds(5));
    runEvents();
    GList* const windows = gtk_window_list_toplevels();
    for (const GList* entry = windows; entry; entry = entry->next) {
        auto* const window = GTK_WIDGET(entry->data);
        if (!gtk_widget_get_mapped(window))
            continue;
        bool isPainted = false;
        GdkFrameClock* const clock = gtk_widget_get_frame_clock(window);
        const auto painted = +[](GdkFrameClock*, bool* mark) { *mark = true; };
        const gulong connection =
            g_signal_connect(clock, "after-paint", G_CALLBACK(painted), &isPainted);
        gtk_widget_queue_draw(window);
        EXPECT_TRUE(waitFor([&] { return isPainted; }));
        g_signal_handler_disconnect(clock, connection);
    }
    g_list_free(windows);
    gdk_display_sync(gdk_display_get_default());
}

} // namespace vantrel::tests
