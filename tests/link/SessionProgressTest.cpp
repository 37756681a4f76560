#include "link/SessionProgress.h"

#include "SessionWorld.h"

namespace vantrel {
namespace {

struct SessionProgressTest : testing::Test {
    MessageTable messages = tests::sessionMessages();
    tests::RecordingProgressView view;
    ProgressPanel panel;
    SessionProperties properties;
    SessionProgress progress{properties, messages, panel};

    SessionProgressTest() { panel.attach(&view); }

    void pressAtNextYield() {
        view.onYield = [this](int) {
            panel.pressCancel();
            view.onYield = nullptr;
        };
    }
};

TEST_F(SessionProgressTest, OpeningSetsTitleCaptionButtonBarAndMessage) {
    properties.MonitorTitle = "File transfer";
    progress.open("working", true, false);
    EXPECT_EQ(panel.title(), "File transfer");
    EXPECT_EQ(panel.cancelCaption(), "Cancel");
    EXPECT_TRUE(panel.cancelButtonShown());
    EXPECT_FALSE(panel.barShown());
    EXPECT_EQ(panel.message(), "working");
    EXPECT_EQ(panel.waitingFor(), "waiting");
    EXPECT_EQ(view.yields, 1);
}

TEST_F(SessionProgressTest, WithTheMonitorOffNothingHappensAtAll) {
    panel.show("command");
    panel.pressCancel();
    const auto painted = view.pictures.size();
    properties.DisplayMonitor = false;
    progress.begin();
    progress.open("working", false, false);
    progress.show("working");
    progress.step("item", 0, 3);
    progress.hide();
    EXPECT_FALSE(progress.isCancelledAfterYield());
    EXPECT_EQ(view.pictures.size(), painted);
    EXPECT_EQ(view.yields, 1);
    EXPECT_TRUE(panel.isCancelled());
}

TEST_F(SessionProgressTest, APressIsRememberedAcrossMessages) {
    progress.begin();
    pressAtNextYield();
    progress.open("first", true, true);
    progress.show("second");
    EXPECT_FALSE(panel.isCancelled());
    EXPECT_TRUE(progress.isCancelled());
}

TEST_F(SessionProgressTest, ThePressStaysToBeSeenUntilTheOperationEnds) {
    progress.begin();
    pressAtNextYield();
    progress.open("first", true, true);
    progress.show("second");
    progress.hide();
    progress.show("third");
    EXPECT_FALSE(panel.isCancelled());
    EXPECT_TRUE(panel.isPressTaken());
    progress.end();
    EXPECT_FALSE(panel.isVisible());
    EXPECT_FALSE(panel.isPressTaken());
}

TEST_F(SessionProgressTest, APressOfTheYieldAfterAnItemIsSeen) {
    progress.begin();
    progress.open("first", true, true);
    EXPECT_FALSE(progress.isCancelled());
    pressAtNextYield();
    EXPECT_TRUE(progress.isCancelledAfterYield());
}

TEST_F(SessionProgressTest, ANewOperationForgetsThePresses) {
    progress.begin();
    pressAtNextYield();
    progress.open("first", true, true);
    progress.hide();
    progress.begin();
    progress.open("again", true, true);
    EXPECT_FALSE(progress.isCancelled());
}

TEST_F(SessionProgressTest, AStaleTextOfAHiddenWindowIsNoPress) {
    panel.pressCancel();
    progress.begin();
    progress.open("first", true, true);
    EXPECT_FALSE(progress.isCancelledAfterYield());
}

TEST_F(SessionProgressTest, ATextInAVisibleWindowIsAPress) {
    panel.show("command");
    panel.pressCancel();
    progress.begin();
    progress.hide();
    progress.open("first", true, true);
    EXPECT_TRUE(progress.isCancelled());
}

TEST_F(SessionProgressTest, WhatTheOperationShowedIsHiddenThoughTheMonitorIsOffByThen) {
    progress.begin();
    progress.open("first", true, true);
    properties.DisplayMonitor = false;
    progress.end();
    EXPECT_FALSE(panel.isVisible());
    panel.show("command");
    progress.begin();
    progress.end();
    EXPECT_TRUE(panel.isVisible()) << "what a command shows is the command's";
}

TEST_F(SessionProgressTest, PassedOverItemsAreShownNowAndThenAndAtTheEnd) {
    progress.begin();
    progress.open("first", true, true);
    const auto painted = view.pictures.size();
    for (int item = 0; item < 9'999; ++item)
        EXPECT_FALSE(progress.isCancelledPassingOver("A", item, 10'000));
    EXPECT_LT(view.pictures.size(), painted + 20);
    EXPECT_GT(view.yields, 5);
    pressAtNextYield();
    EXPECT_TRUE(progress.isCancelledPassingOver("LAST", 9'999, 10'000));
    EXPECT_EQ(panel.message(), "Transferring LAST");
    EXPECT_TRUE(progress.isCancelledPassingOver("A", 0, 2)) << "a press is kept";
}

TEST_F(SessionProgressTest, TextsCarryTheName) {
    EXPECT_EQ(progress.transferring(), "Transferring ");
    EXPECT_EQ(progress.transferring("A.JBI"), "Transferring A.JBI");
    EXPECT_EQ(progress.deleting("A.JBI"), "Deleting A.JBI");
}

TEST_F(SessionProgressTest, AStepCountsFromOneForTheOperator) {
    progress.open("first", true, true);
    progress.step("item", 0, 3);
    EXPECT_EQ(panel.waitingFor(), "item 1 of 3  waiting");
    EXPECT_EQ(view.yields, 1);
}

} // namespace
} // namespace vantrel
