#include "ui/dialogs/FirstPaint.h"

#include "support/Windows.h"
#include "ui/dialogs/WindowHolder.h"

#include <wx/frame.h>

namespace vantrel::tests {
namespace {

/// A window on the screen that no event ever reaches, as without a window manager.
class FirstPaintTest : public testing::Test {
  public:
    FirstPaintTest() { window->Show(); }
    ~FirstPaintTest() override { runEvents(); }

    int yieldsOfOneWait() {
        int yields = 0;
        FirstPaint::await(*window, paint, [&yields] { ++yields; });
        return yields;
    }

    WindowHolder<wxFrame> window{new wxFrame(nullptr, wxID_ANY, "never painted")};
    FirstPaint paint{*window};
};

TEST_F(FirstPaintTest, IsWaitedForOnceInEachShow) {
    for (int show = 0; show < 2; ++show) {
        paint.expect();
        EXPECT_GT(yieldsOfOneWait(), 1);
        EXPECT_EQ(yieldsOfOneWait(), 1) << "it was given up";
        EXPECT_EQ(yieldsOfOneWait(), 1);
    }
}

TEST_F(FirstPaintTest, AWindowThatIsPaintedNeedsOneYield) {
    runEvents();
    ASSERT_TRUE(waitFor([this] { return paint.isOver(); }));
    EXPECT_EQ(yieldsOfOneWait(), 1);
}

} // namespace
} // namespace vantrel::tests
