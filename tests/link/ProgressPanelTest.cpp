#include "link/ProgressPanel.h"

#include "support/RecordingProgressView.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

using tests::RecordingProgressView;

struct ProgressPanelTest : testing::Test {
    RecordingProgressView view;
    ProgressPanel panel;

    ProgressPanelTest() { panel.attach(&view); }
};

TEST_F(ProgressPanelTest, ShowingAMessageMakesItVisibleAndYieldsOnce) {
    panel.show("working");
    EXPECT_TRUE(panel.isVisible());
    EXPECT_EQ(view.yields, 1);
    ASSERT_FALSE(view.pictures.empty());
    EXPECT_TRUE(view.pictures.back().visible);
    EXPECT_EQ(view.pictures.back().message, "working");
}

TEST_F(ProgressPanelTest, ShowingAMessageClearsTheTextOfAnEarlierPress) {
    panel.pressCancel();
    EXPECT_TRUE(panel.isCancelled());
    panel.show("working");
    EXPECT_FALSE(panel.isCancelled());
}

TEST_F(ProgressPanelTest, AKeptPressOutlastsItsText) {
    EXPECT_FALSE(panel.isPressTaken());
    panel.pressCancel();
    EXPECT_TRUE(panel.isPressTaken());
    panel.keepPress(true);
    panel.show("working");
    EXPECT_FALSE(panel.isCancelled());
    EXPECT_TRUE(panel.isPressTaken());
    panel.keepPress(false);
    EXPECT_FALSE(panel.isPressTaken());
}

TEST_F(ProgressPanelTest, APressOfTheYieldThatAMessageBringsStays) {
    view.onYield = [this](int) { panel.pressCancel(); };
    panel.show("working");
    EXPECT_TRUE(panel.isCancelled());
}

TEST_F(ProgressPanelTest, APaintComesBeforeTheYield) {
    std::size_t paintedAtYield = 0;
    view.onYield = [&](int) { paintedAtYield = view.pictures.size(); };
    panel.show("working");
    EXPECT_GT(paintedAtYield, 0u);
}

TEST_F(ProgressPanelTest, ShowingAgainKeepsPressAndTextsAndYieldsNothing) {
    panel.show("working");
    panel.pressCancel();
    panel.hide();
    EXPECT_FALSE(view.pictures.back().visible);
    panel.showAgain();
    EXPECT_TRUE(panel.isCancelled());
    EXPECT_EQ(panel.message(), "working");
    EXPECT_EQ(view.yields, 1);
    EXPECT_TRUE(view.pictures.back().visible);
}

TEST_F(ProgressPanelTest, AStepChangesTextsAndBarAloneAndYieldsNothing) {
    panel.show("working");
    panel.pressCancel();
    panel.step("file 3", 2, 9, "waiting");
    EXPECT_TRUE(panel.isCancelled());
    EXPECT_EQ(view.yields, 1);
    EXPECT_EQ(view.pictures.back().message, "file 3");
    EXPECT_EQ(view.pictures.back().item, 2);
    EXPECT_EQ(view.pictures.back().count, 9);
    EXPECT_EQ(view.pictures.back().waitingFor, "waiting");
}

TEST_F(ProgressPanelTest, AMessageLeavesTheBarWhereItIs) {
    panel.step("file 3", 2, 9, "waiting");
    panel.show("deleting");
    EXPECT_EQ(panel.item(), 2);
    EXPECT_EQ(panel.count(), 9);
    EXPECT_EQ(panel.waitingFor(), "waiting");
}

TEST_F(ProgressPanelTest, NothingIsPaintedWhileHidden) {
    panel.setTitle("Transfer");
    panel.setCancelCaption("Stop");
    panel.showBar(false);
    panel.showCancelButton(false);
    panel.step("file", 0, 1, "");
    panel.hide();
    EXPECT_TRUE(view.pictures.empty());
    panel.show("working");
    EXPECT_EQ(view.pictures.back().title, "Transfer");
    EXPECT_EQ(panel.cancelCaption(), "Stop");
    EXPECT_FALSE(view.pictures.back().bar);
    EXPECT_FALSE(view.pictures.back().cancelButton);
}

TEST_F(ProgressPanelTest, SettingsOfAVisibleWindowArePaintedAtOnce) {
    panel.show("working");
    panel.showBar(false);
    EXPECT_FALSE(view.pictures.back().bar);
    panel.showCancelButton(false);
    EXPECT_FALSE(view.pictures.back().cancelButton);
    panel.setTitle("Other");
    EXPECT_EQ(view.pictures.back().title, "Other");
}

TEST_F(ProgressPanelTest, TheWindowIsUnloadedOnceAndNeverTouchedAgain) {
    panel.show("working");
    const auto painted = view.pictures.size();
    panel.unload();
    panel.unload();
    panel.show("working");
    panel.hide();
    EXPECT_EQ(view.unloads, 1);
    EXPECT_EQ(view.pictures.size(), painted);
    EXPECT_EQ(view.yields, 1);
}

TEST(ProgressPanelWithoutWindow, WorksAlike) {
    ProgressPanel panel;
    panel.show("working");
    panel.step("file", 0, 1, "");
    EXPECT_TRUE(panel.isVisible());
    panel.hide();
    panel.unload();
    EXPECT_FALSE(panel.isVisible());
}

TEST(ProgressPanelPress, OnlyTheCancelButtonSetsIt) {
    ProgressPanel panel;
    EXPECT_FALSE(panel.isCancelled());
    EXPECT_STREQ(ProgressPanel::cancelled, "CANCEL");
    panel.pressCancel();
    panel.clearCancel();
    EXPECT_FALSE(panel.isCancelled());
}

struct ProgressPaceTest : ProgressPanelTest {
    std::chrono::milliseconds now{1000};

    ProgressPaceTest() {
        panel.setClock([this] { return now; });
    }
    void pace() {
        panel.setPace([](int item, int count, std::chrono::milliseconds worked) {
            return std::to_string(item) + "/" + std::to_string(count) + " " +
                   std::to_string(worked.count());
        });
    }
};

TEST_F(ProgressPaceTest, FollowsTheStepsAndTheTimeSinceItWasSet) {
    panel.show("working");
    now += std::chrono::milliseconds(50);
    pace();
    now += std::chrono::milliseconds(7);
    panel.step("next", 1, 3, "");
    EXPECT_EQ(view.pictures.back().pace, "1/3 7");
    panel.setPace({});
    panel.step("last", 2, 3, "");
    EXPECT_EQ(view.pictures.back().pace, "");
}

TEST_F(ProgressPaceTest, NoTimePassesWhileTheWindowIsHidden) {
    pace();
    now += std::chrono::milliseconds(100);
    panel.show("working");
    EXPECT_EQ(view.pictures.back().pace, "0/0 0");
    now += std::chrono::milliseconds(3);
    panel.hide();
    now += std::chrono::milliseconds(500);
    panel.showAgain();
    EXPECT_EQ(view.pictures.back().pace, "0/0 3");
    now += std::chrono::milliseconds(4);
    panel.show("next");
    EXPECT_EQ(view.pictures.back().pace, "0/0 7");
}

TEST_F(ProgressPaceTest, WithoutAClockNoTimePasses) {
    panel.setClock({});
    panel.show("working");
    pace();
    panel.step("next", 1, 3, "");
    EXPECT_EQ(panel.pace(), "1/3 0");
}

} // namespace
} // namespace vantrel
