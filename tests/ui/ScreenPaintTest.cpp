#include "ui/ScreenPaint.h"

#include "support/ScreenPicture.h"
#include "support/Windows.h"
#include "ui/look/WindowHolder.h"

#include <wx/dcclient.h>
#include <wx/frame.h>
#include <wx/panel.h>
#include <wx/timer.h>

namespace vantrel::tests {
namespace {

/// A window that is all of one colour, which is put on when the system has it paint.
class ColouredFrame : public wxFrame {
  public:
    ColouredFrame(const wxColour& colour, const wxRect& place)
        : wxFrame(nullptr, wxID_ANY, "coloured", place.GetPosition(), place.GetSize()) {
        panel->SetBackgroundStyle(wxBG_STYLE_PAINT);
        panel->SetBackgroundColour(colour);
        panel->Bind(wxEVT_PAINT, [this](wxPaintEvent&) {
            wxPaintDC canvas(panel);
            canvas.SetBackground(panel->GetBackgroundColour());
            canvas.Clear();
        });
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
    // A window manager takes its time to decide what the first window of a program lies behind.
    lower->Show();
    screen.bringUpToDate();
    lower->Hide();
    screen.bringUpToDate();
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
    sendPress(*lower->panel);
    sendClosing(*lower);
    upper->Show();
    screen.bringUpToDate();
    EXPECT_TRUE(upper->isPaintedIn(red));
    EXPECT_EQ(presses + ticks + calls + closes, 0);
    EXPECT_TRUE(waitFor([&] { return presses * ticks * calls * closes == 1; }))
        << "nothing is lost either";
}

} // namespace
} // namespace vantrel::tests
