#include "ui/WindowPlace.h"

#include "app/settings/SettingsFile.h"
#include "app/window/ScreenGeometry.h"
#include "support/Windows.h"
#include "ui/look/WindowHolder.h"

#include <memory>

#include <wx/frame.h>
#include <wx/panel.h>

namespace vantrel::tests {
namespace {

constexpr int resolution = 96;

using Stored = std::array<std::int32_t, 8>;

/// A window at a stored place, on the screen and painted, before it has settled.
class WindowPlaceTest : public testing::Test {
  public:
    ~WindowPlaceTest() override {
        place.reset();
        runEvents();
    }

    void show(const Stored& stored) {
        bool isPainted = false;
        const auto onPaint = [&isPainted](wxPaintEvent& event) {
            event.Skip();
            isPainted = true;
        };
        surface->Bind(wxEVT_PAINT, onPaint);
        place->put(stored, resolution, false);
        window->Show();
        EXPECT_TRUE(waitFor([&] { return isPainted; }));
        surface->Unbind(wxEVT_PAINT, onPaint);
        runEvents();
    }
    WindowPlacement now() const { return place->placement(resolution, {0, 0, 0}); }
    void expectStored(const Stored& stored) const {
        const auto placement = now();
        EXPECT_EQ(placement.left, stored[0]);
        EXPECT_EQ(placement.top, stored[1]);
        EXPECT_EQ(placement.width, stored[2]);
        EXPECT_EQ(placement.height, stored[3]);
    }
    /// As the operator does with a corner.
    void resizeBy(int width, int height) {
        const wxSize wanted = window->GetSize() + wxSize(width, height);
        window->SetSize(wanted);
        ASSERT_TRUE(waitFor([&] { return window->GetSize() == wanted; }));
        runEvents();
    }

    WindowHolder<wxFrame> window{new wxFrame(nullptr, wxID_ANY, "placed")};
    wxPanel* surface = new wxPanel(window.get());
    std::unique_ptr<WindowPlace> place = std::make_unique<WindowPlace>(*window, *surface);
};

TEST_F(WindowPlaceTest, AnUntouchedWindowIsStoredAsItWasRead) {
    for (const Stored& stored :
         {Stored{150, 300, 9720, 7000}, Stored{0, 0, 4000, 3000}, Stored{-7, 11, 9727, 4699},
          Stored{1'000'000, 1'000'000, 9720, 7000}, Stored{10, 20, 30, 0}}) {
        window->Hide();
        show(stored);
        expectStored(stored);
        place->settle();
        expectStored(stored);
    }
}

TEST_F(WindowPlaceTest, ASizeThatWasRaisedGoesOnFromWhatIsSeen) {
    show({0, 0, 4000, 3000});
    place->settle();
    resizeBy(60, 30);
    const int width = pixelsFromTwips(8800, resolution) + 60;
    const int height = pixelsFromTwips(4700, resolution) + 30;
    EXPECT_EQ(now().width, twipsFromPixels(width, resolution));
    EXPECT_EQ(now().height, twipsFromPixels(height, resolution));
    EXPECT_EQ(now().left, 0);
}

TEST_F(WindowPlaceTest, APlaceThatWasBroughtBackGoesOnFromWhatIsSeen) {
    show({1'000'000, 1'000'000, 9720, 7000});
    place->settle();
    resizeBy(45, 0);
    EXPECT_EQ(now().width, 9720 + twipsFromPixels(45, resolution));
    EXPECT_EQ(now().height, 7000);
    EXPECT_EQ(now().left, 1'000'000) << "nobody has moved it";
}

TEST_F(WindowPlaceTest, AResizeBeforeTheWindowHasSettledCounts) {
    show({0, 0, 9720, 7000});
    resizeBy(60, 30);
    EXPECT_EQ(now().width, 9720 + twipsFromPixels(60, resolution));
    EXPECT_EQ(now().height, 7000 + twipsFromPixels(30, resolution));
    place->settle();
    EXPECT_EQ(now().width, 9720 + twipsFromPixels(60, resolution));
    EXPECT_EQ(now().height, 7000 + twipsFromPixels(30, resolution));
}

TEST_F(WindowPlaceTest, AMaximisedWindowHasNoPlaceThatItCouldSettleIn) {
    const Stored stored{0, 0, 9720, 7000};
    show(stored);
    const wxSize before = window->GetSize();
    window->Maximize();
    ASSERT_TRUE(waitFor([&] { return window->IsMaximized() && window->GetSize() != before; }));
    place->settle();
    window->Maximize(false);
    ASSERT_TRUE(waitFor([&] { return !window->IsMaximized() && window->GetSize() == before; }));
    expectStored(stored);
}

TEST_F(WindowPlaceTest, ThePlaceOnceMoreTakesNothingBack) {
    const Stored stored{0, 0, 9720, 7000};
    show(stored);
    resizeBy(60, 30);
    place->put(stored, resolution, false);
    EXPECT_EQ(now().width, 9720 + twipsFromPixels(60, resolution));
}

TEST_F(WindowPlaceTest, AnotherPlaceForAShownWindowIsTaken) {
    show({0, 0, 9720, 7000});
    place->put({0, 0, 10500, 7500}, resolution, false);
    EXPECT_TRUE(
        waitFor([this] { return window->GetSize().x == pixelsFromTwips(10500, resolution); }));
    EXPECT_EQ(now().width, 10500);
}

} // namespace
} // namespace vantrel::tests
