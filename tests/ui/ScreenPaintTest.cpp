#include "ui/ScreenPaint.h"

#include "support/ScreenPicture.h"
#include "ui/look/WindowHolder.h"

#include <wx/frame.h>
#include <wx/panel.h>
#include <wx/timer.h>

namespace vantrel::tests {
namespace {

/// A window that is all of one colour.
class ColouredFrame : public wxFrame {
  public:
    ColouredFrame(const wxColour& colour, const wxRect& place)
        : wxFrame(nullptr, wxID_ANY, "coloured", place.GetPosition(), place.GetSize()) {
        panel->SetBackgroundColour(colour);
    }
    bool isPaintedIn(std::uint32_t colour) const {
        const ScreenPicture picture(*panel);
        return picture.colours() == 1 && picture.at(0, 0) == colour;
    }

    wxPanel* panel = new wxPanel(this);
};

constexpr std::uint32_t red = 0xFF0000, blue = 0x0000FF;

class ScreenPaintTest : public testing::Test {
  protected:
    ScreenPaintTest() { runEvents(); }
    ~ScreenPaintTest() override {
        lower.unload();
        upper.unload();
        runEvents();
    }

    /// What the display sends when the operator acts, without the time that its own takes.
    static void send(GdkEventType type, const wxWindow& window) {
        GdkDisplay* const display = gdk_display_get_default();
        GdkEvent* const event = gdk_event_new(type);
        event->any.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(window.GetHandle())));
        if (type == GDK_BUTTON_PRESS)
            event->button.button = GDK_BUTTON_PRIMARY;
        gdk_event_set_device(event, gdk_seat_get_pointer(gdk_display_get_default_seat(display)));
        gdk_display_put_event(display, event);
        gdk_event_free(event);
    }

    ScreenPaint screen;
    WindowHolder<ColouredFrame> lower{new ColouredFrame(*wxBLUE, wxRect(200, 200, 400, 300))};
    WindowHolder<ColouredFrame> upper{new ColouredFrame(*wxRED, wxRect(250, 250, 200, 100))};
};

TEST_F(ScreenPaintTest, AWindowThatWasJustShownIsPainted) {
    lower->Show();
    EXPECT_FALSE(lower->isPaintedIn(blue)) << "or there is nothing to wait for";
    screen.bringUpToDate();
    EXPECT_TRUE(lower->isPaintedIn(blue));
}

TEST_F(ScreenPaintTest, AWindowThatComesAndGoesAndComesBackIsPainted) {
    upper->Show();
    upper->Hide();
    upper->Show();
    screen.bringUpToDate();
    EXPECT_TRUE(upper->isPaintedIn(red));
    upper->Hide();
    lower->Show();
    upper->Show();
    screen.bringUpToDate();
    EXPECT_TRUE(upper->isPaintedIn(red));
}

TEST_F(ScreenPaintTest, AWindowThatWasHiddenIsGoneAndWhatWasBelowIsPainted) {
    lower->Show();
    screen.bringUpToDate();
    upper->Show();
    screen.bringUpToDate();
    ASSERT_FALSE(lower->isPaintedIn(blue));
    const int before = windowsOnScreen();
    upper->Hide();
    screen.bringUpToDate();
    EXPECT_TRUE(lower->isPaintedIn(blue));
    EXPECT_EQ(windowsOnScreen(), before - 1);
}

TEST_F(ScreenPaintTest, AWindowThatWasDestroyedIsGone) {
    lower->Show();
    upper->Show();
    screen.bringUpToDate();
    upper.unload();
    screen.bringUpToDate();
    EXPECT_TRUE(lower->isPaintedIn(blue));
}

TEST_F(ScreenPaintTest, AChangeWithoutAnyEventIsPainted) {
    lower->Show();
    screen.bringUpToDate();
    lower->panel->SetBackgroundColour(*wxRED);
    lower->panel->Refresh();
    screen.bringUpToDate();
    EXPECT_TRUE(lower->isPaintedIn(red));
}

TEST_F(ScreenPaintTest, NothingThatTheOperatorDidNorAnyTimerRunsBeforeTheNextYield) {
    lower->Show();
    screen.bringUpToDate();
    ASSERT_TRUE(waitFor([&] { return lower->IsActive(); }));
    int presses = 0, ticks = 0, calls = 0, closes = 0;
    lower->panel->Bind(wxEVT_LEFT_DOWN, [&](wxMouseEvent&) { ++presses; });
    lower->Bind(wxEVT_TIMER, [&](wxTimerEvent&) { ++ticks; });
    lower->Bind(wxEVT_CLOSE_WINDOW, [&](wxCloseEvent&) { ++closes; });
    wxTimer timer(lower.get());
    timer.StartOnce(0);
    lower->CallAfter([&] { ++calls; });
    send(GDK_BUTTON_PRESS, *lower->panel);
    send(GDK_DELETE, *lower);
    upper->Show();
    screen.bringUpToDate();
    EXPECT_TRUE(upper->isPaintedIn(red));
    EXPECT_EQ(presses + ticks + calls + closes, 0);
    EXPECT_TRUE(waitFor([&] { return presses * ticks * calls * closes == 1; }))
        << "nothing is lost either";
}

} // namespace
} // namespace vantrel::tests
