#include "ui/Painting.h"

#include <gtest/gtest.h>
#include <wx/dcclient.h>
#include <wx/frame.h>
#include <wx/msw/private.h>

namespace vantrel::tests {
namespace {

/// A window with a part of it that counts how often it is painted and pressed.
class PaintingTest : public testing::Test {
  protected:
    PaintingTest() {
        part_->Bind(wxEVT_PAINT, [this](wxPaintEvent&) {
            const wxPaintDC painted(part_);
            ++paints_;
        });
        part_->Bind(wxEVT_LEFT_DOWN, [this](wxMouseEvent&) { ++presses_; });
    }
    ~PaintingTest() override { delete frame_; }

    /// Shows the window, with everything painted.
    void show() {
        frame_->Show();
        paintChanges();
        paints_ = 0;
    }

    wxFrame* const frame_ = new wxFrame(nullptr, wxID_ANY, "painting", {20, 20}, {200, 150});
    wxWindow* const part_ = new wxWindow(frame_, wxID_ANY, {0, 0}, {100, 50});
    int paints_ = 0;
    int presses_ = 0;
};

TEST_F(PaintingTest, WhatHasChangedIsPaintedAtOnce) {
    show();
    part_->Refresh();
    EXPECT_EQ(paints_, 0);
    paintChanges();
    EXPECT_EQ(paints_, 1);
}

TEST_F(PaintingTest, WhatHasNotChangedIsLeftAlone) {
    show();
    paintChanges();
    EXPECT_EQ(paints_, 0);
}

TEST_F(PaintingTest, WhatTheOperatorDidStaysWhereItIs) {
    show();
    part_->Refresh();
    ::PostMessageW(GetHwndOf(part_), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    paintChanges();
    EXPECT_FALSE(takeWindowEvents());
    EXPECT_EQ(paints_, 1);
    EXPECT_EQ(presses_, 0);
    MSG message;
    EXPECT_TRUE(
        ::PeekMessageW(&message, GetHwndOf(part_), WM_LBUTTONDOWN, WM_LBUTTONDOWN, PM_REMOVE));
}

TEST_F(PaintingTest, NoWindowManagerIsWaitedFor) {
    show();
    EXPECT_FALSE(areWindowEventsPending());
    EXPECT_TRUE(awaitWindowManager(std::chrono::steady_clock::time_point::max()));
}

} // namespace
} // namespace vantrel::tests
