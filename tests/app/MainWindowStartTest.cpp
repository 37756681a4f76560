#include "app/start/MainWindowStart.h"

#include "MainCommandsFixture.h"
#include "base/PathRules.h"

#include <filesystem>

#include <gmock/gmock.h>

namespace vantrel::tests {
namespace {

using testing::ElementsAre;

class MainWindowStartTest : public MainCommandsTest {
  protected:
    MainWindowStartTest() {
        state.StartupDone = false;
        state.WindowPos[2] = 9720;
        panes.fillFilterChoices();
    }
    void start() { startMainWindow(services, main); }
};

TEST_F(MainWindowStartTest, DressesAndPlacesTheWindowBeforeItShowsAnything) {
    start();
    EXPECT_THAT(view.log,
                ElementsAre("font", "serial COM1: 9600bps DataLength:8  Parity:EVEN  StopBit:1",
                            "captions", "place 9720", "mode Vantrel  --  --"));
}

TEST_F(MainWindowStartTest, ListsTheStoredFolderWithItsCount) {
    pcJob("A");
    start();
    EXPECT_EQ(view.folder, pc.path());
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI"));
    EXPECT_EQ(window.pcStatus, "PC: 1 items");
}

TEST_F(MainWindowStartTest, AGoneFolderOpensTheNearestAboveItUpToTheRoot) {
    const std::string root = std::filesystem::path(pc.path()).root_path().string();
    state.PCPath = PathRules().join(root, PathRules().join("no such folder of anybody's", "jobs"));
    start();
    EXPECT_EQ(state.PCPath, root);
    EXPECT_EQ(view.folder, root);
    EXPECT_EQ(boxes.shown.size(), 1u);
}

TEST_F(MainWindowStartTest, AppliesBothViewsAndLeavesThePCPaneActive) {
    state.PCDispType = 3;
    state.CtrlDispType = 2;
    start();
    EXPECT_EQ(view.pcView, 3);
    EXPECT_EQ(view.controllerView, 2);
    EXPECT_EQ(state.Active, ActiveSide::PC);
    EXPECT_EQ(view.active, ActiveSide::PC);
    EXPECT_TRUE(shown("tlbMain DispDetail").checked);
}

TEST_F(MainWindowStartTest, AStoredHighSpeedModeIsRestored) {
    state.TransMode = TransferMode::HispeedLink;
    state.CurrentRobot.IPaddr = "10.0.0.1";
    start();
    EXPECT_TRUE(view.mode.showsRobot);
    EXPECT_EQ(view.address, "10.0.0.1");
    EXPECT_EQ(state.TransMode, TransferMode::HispeedLink);
}

TEST_F(MainWindowStartTest, AFolderThatIsGoneOpensTheNearestOneAboveAndSaysSo) {
    pcJob("A");
    state.PCPath = pc.path("gone/deeper");
    start();
    EXPECT_EQ(state.PCPath, pc.path());
    EXPECT_EQ(boxes.texts().size(), 1u);
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI"));
}

TEST_F(MainWindowStartTest, AFolderThatIsThereButCannotBeListedOpensTheOneAboveToo) {
    state.PCPath = pc.write("A.JBI", "no folder at all");
    start();
    EXPECT_EQ(state.PCPath, pc.path());
    EXPECT_EQ(view.folder, pc.path());
    EXPECT_EQ(boxes.texts().size(), 1u);
    EXPECT_EQ(window.pcStatus, "PC: 1 items");
}

TEST_F(MainWindowStartTest, WithoutAnyFolderTheWindowStillSaysWhere) {
    state.PCPath = "gone";
    start();
    EXPECT_EQ(view.folder, "gone");
    EXPECT_EQ(window.pcStatus, "PC: 0 items");
}

TEST_F(MainWindowStartTest, AModelWithoutTheLinkStartsWithTheSerialLine) {
    state.Controler = 1;
    state.TransMode = TransferMode::HispeedLink;
    start();
    EXPECT_EQ(state.TransMode, TransferMode::Bsc);
    EXPECT_TRUE(view.mode.showsSerialLine);
}

TEST_F(MainWindowStartTest, AFolderOfAnotherSystemEndsTheSearchWithAMessage) {
    for (const char* stored : {"C:\\JOBS", "gone", ""}) {
        boxes.shown.clear();
        state.PCPath = stored;
        start();
        EXPECT_FALSE(boxes.texts().empty()) << stored;
    }
}

TEST_F(MainWindowStartTest, AListThatWasReadBeforeStays) {
    robotJob("OLD");
    ASSERT_TRUE(panes.readController());
    panes.fill(ActiveSide::Controller);
    start();
    EXPECT_THAT(window.controller.names, testing::Contains("OLD.JBI"));
}

} // namespace
} // namespace vantrel::tests
