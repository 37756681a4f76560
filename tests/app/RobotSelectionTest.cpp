#include "app/RobotSelection.h"

#include "AppFakes.h"
#include "app/RobotList.h"
#include "base/PathRules.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

class RecordingSelectionWindow final : public RobotSelectionWindow {
  public:
    explicit RecordingSelectionWindow(tests::Desk& desk) : desk_(desk) {}

    bool locked = false;

    bool isLocked() const override { return locked; }
    void selectRobot(int index) override { add("select " + std::to_string(index)); }
    void showAddress(const std::string& address) override { add("address " + address); }
    bool enterFolder(const std::string& folder) override {
        if (!desk_.panes.scanPC(folder))
            return false;
        desk_.panes.fill(ActiveSide::PC);
        add("folder " + folder);
        return true;
    }
    void refreshStates() override { add("states"); }
    void refreshActivePane() override {
        add(desk_.state.Active == ActiveSide::Controller
                ? "refresh Ctrl of " + desk_.session.IPaddress
                : "refresh PC");
    }

  private:
    void add(std::string entry) { desk_.log.push_back(std::move(entry)); }

    tests::Desk& desk_;
};

class RobotSelectionTest : public testing::Test {
  protected:
    RobotSelectionTest() {
        for (const char* name : {"R0", "R1"})
            desk_.state.RobotList.push_back(robot(name));
        desk_.state.RobotList.push_back(emptyRobotList().front());
        desk_.state.CurrentRobot = desk_.state.RobotList[0];
        desk_.state.PCPath = desk_.folder.path("R0");
        desk_.state.TransMode = TransferMode::HispeedLink;
        desk_.state.StartupDone = true;
        desk_.state.CtrlListing.append("OLD.JBI", 0, DateText());
    }
    RobotRecord robot(const std::string& name) const {
        RobotRecord record;
        record.Name = name;
        record.IPaddr = "10.0.0." + name.substr(1);
        record.Path = desk_.folder.makeFolder(name);
        return record;
    }

    tests::Desk desk_;
    RecordingSelectionWindow window_{desk_};
    RobotSelection selection_{{.state = desk_.state,
                               .session = desk_.session,
                               .panes = desk_.panes,
                               .messages = desk_.messages,
                               .boxes = desk_.boxes,
                               .window = window_}};
};

TEST_F(RobotSelectionTest, ANewRobotBringsItsFolderItsAddressAndItsDirectory) {
    desk_.folder.write("R1/A.JBI", "x");
    selection_.choose(1);
    EXPECT_EQ(desk_.state.CurrentRobotIndex, 1);
    EXPECT_EQ(desk_.state.CurrentRobot.Name, "R1");
    EXPECT_EQ(desk_.state.PCPath, desk_.folder.path("R1"));
    EXPECT_EQ(desk_.log, (tests::Log{"status Ctrl m150m16", "status PC m141m16",
                                     "folder " + desk_.folder.path("R1"), "address 10.0.0.1",
                                     "states", "refresh Ctrl of 10.0.0.1", "states"}));
    EXPECT_EQ(desk_.state.Active, ActiveSide::PC);
}

TEST_F(RobotSelectionTest, TheSessionHasTheAddressBeforeTheRefresh) {
    selection_.choose(1);
    EXPECT_EQ(desk_.log.at(desk_.log.size() - 2), "refresh Ctrl of 10.0.0.1");
}

TEST_F(RobotSelectionTest, TheOldMachinesListIsGoneAtOnce) {
    selection_.choose(1);
    EXPECT_EQ(desk_.state.CtrlListing.Count, 0);
    EXPECT_EQ(desk_.log.front(), "status Ctrl m150m16");
}

TEST_F(RobotSelectionTest, TheSameRobotInItsOwnFolderChangesNothing) {
    selection_.choose(0);
    EXPECT_TRUE(desk_.log.empty());
    EXPECT_EQ(desk_.state.CtrlListing.Count, 1);
}

TEST_F(RobotSelectionTest, TheSameRobotInAnotherFolderIsANewChoice) {
    desk_.state.PCPath = desk_.folder.path();
    selection_.choose(0);
    EXPECT_EQ(desk_.state.PCPath, desk_.folder.path("R0"));
    EXPECT_EQ(desk_.log.at(desk_.log.size() - 2), "refresh Ctrl of 10.0.0.0");
    EXPECT_EQ(desk_.state.CtrlListing.Count, 1) << "the machine is the same";
}

TEST_F(RobotSelectionTest, ASeparatorAtTheEndMakesNoOtherFolder) {
    desk_.state.PCPath += PathRules().separator();
    selection_.choose(0);
    desk_.state.PCPath = desk_.folder.path("R0");
    desk_.state.RobotList[0].Path += PathRules().separator();
    selection_.choose(0);
    EXPECT_TRUE(desk_.log.empty());
}

TEST_F(RobotSelectionTest, WithoutSynchronisingTheFolderStays) {
    desk_.state.SyncroRobotDir = 0;
    const std::string before = desk_.state.PCPath;
    selection_.choose(1);
    EXPECT_EQ(desk_.state.PCPath, before);
    EXPECT_EQ(desk_.log, (tests::Log{"status Ctrl m150m16", "address 10.0.0.1", "states",
                                     "refresh Ctrl of 10.0.0.1", "states"}));
}

TEST_F(RobotSelectionTest, AFolderThatCannotBeListedIsNamedAndTheOldOneStays) {
    const std::string missing = desk_.folder.path("missing");
    desk_.state.RobotList[1].Path = missing;
    const std::string before = desk_.state.PCPath;
    selection_.choose(1);
    EXPECT_EQ(desk_.state.PCPath, before);
    EXPECT_EQ(desk_.boxes.texts(), (std::vector<std::string>{"[R1]m48\n" + missing}));
    EXPECT_EQ(desk_.log.at(desk_.log.size() - 2), "refresh Ctrl of 10.0.0.1");
}

TEST_F(RobotSelectionTest, AVeryLongNameAndFolderAreNamedShortened) {
    desk_.state.RobotList[1].Name = std::string(100'000, 'N');
    desk_.state.RobotList[1].Path = "/" + std::string(100'000, 'F');
    selection_.choose(1);
    ASSERT_EQ(desk_.boxes.shown.size(), 1U);
    EXPECT_LT(desk_.boxes.shown[0].text.size(), 450U);
}

TEST_F(RobotSelectionTest, DuringTheStartTheChoiceIsTakenBack) {
    desk_.state.StartupDone = false;
    selection_.choose(1);
    EXPECT_EQ(desk_.log, (tests::Log{"select 0"}));
    EXPECT_EQ(desk_.state.CurrentRobot.Name, "R0");
}

TEST_F(RobotSelectionTest, DuringTheStartAnotherMachineEmptiesNothing) {
    const Machine before = machineInForce(desk_.state);
    desk_.state.StartupDone = false;
    desk_.state.TransMode = TransferMode::Bsc;
    selection_.machineMayHaveChanged(before);
    EXPECT_EQ(desk_.state.CtrlListing.Count, 1);
    EXPECT_TRUE(desk_.log.empty());
}

TEST_F(RobotSelectionTest, WhileLockedTheChoiceIsTakenBack) {
    window_.locked = true;
    selection_.choose(1);
    EXPECT_EQ(desk_.log, (tests::Log{"select 0"}));
    EXPECT_EQ(desk_.state.CurrentRobot.Name, "R0");
    EXPECT_EQ(desk_.session.IPaddress, "");
}

TEST_F(RobotSelectionTest, AnIndexOutsideTheListIsIgnored) {
    for (const int index : {-1, 2, 3, 100000})
        selection_.choose(index);
    EXPECT_TRUE(desk_.log.empty());
    EXPECT_EQ(desk_.state.CurrentRobot.Name, "R0");
}

TEST_F(RobotSelectionTest, TheControllerStaysActiveWhenItWas) {
    desk_.state.Active = ActiveSide::Controller;
    selection_.choose(1);
    EXPECT_EQ(desk_.state.Active, ActiveSide::Controller);
}

TEST_F(RobotSelectionTest, AnotherMachineEmptiesThePaneWithoutConnecting) {
    const Machine before = machineInForce(desk_.state);
    desk_.state.TransMode = TransferMode::Bsc;
    selection_.machineMayHaveChanged(before);
    EXPECT_EQ(desk_.state.CtrlListing.Count, 0);
    EXPECT_EQ(desk_.log, (tests::Log{"status Ctrl m150m16"}));
}

TEST_F(RobotSelectionTest, TheSameMachineKeepsItsList) {
    const Machine before = machineInForce(desk_.state);
    desk_.state.Port = 9;
    selection_.machineMayHaveChanged(before);
    EXPECT_EQ(desk_.state.CtrlListing.Count, 1);
}

} // namespace
} // namespace vantrel
