#include "app/robots/RobotSelection.h"

#include "MainCommandsFixture.h"
#include "app/robots/Machine.h"
#include "app/robots/RobotFile.h"
#include "app/robots/RobotRegistry.h"
#include "base/PathRules.h"

#include <optional>

#include <gmock/gmock.h>

namespace vantrel::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The box of two robots, of which the operator chooses with the main window's real commands.
class RobotSelectionTest : public MainCommandsTest, public RobotBox {
  protected:
    RobotSelectionTest() {
        messages.replace({text(14, "PC: "), text(15, "Controller: "), text(16, " items"),
                          text(48, " folder not listed")});
        for (const char* name : {"R0", "R1"}) {
            state.RobotList.push_back(robotNamed(name));
            library.at(state.RobotList.back().IPaddr).put(std::string(name) + ".JBI", "x");
        }
        state.RobotList.push_back(emptyRobotList().front());
        state.CurrentRobot = state.RobotList[0];
        state.PCPath = pc.path("R0");
        state.TransMode = TransferMode::HispeedLink;
        state.CtrlListing.append("OLD.JBI", 0, DateText());
        // What is shown when the first call enters the library.
        library.onCall = [this](const std::string&) {
            if (!firstCall)
                firstCall = {view.address, view.folder, window.controller.names, state.Active};
        };
    }
    RobotRecord robotNamed(const std::string& name) const {
        RobotRecord record;
        record.Name = name;
        record.IPaddr = "10.0.0." + name.substr(1);
        record.Path = pc.makeFolder(name);
        return record;
    }
    void clear() override {}
    void add(const std::string&) override {}
    void select(int index) override { takenBackTo = index; }
    void expectNothingDone() {
        EXPECT_FALSE(firstCall);
        EXPECT_EQ(view.address, "");
        EXPECT_EQ(view.folder, "");
        EXPECT_EQ(state.CtrlListing.Count, 1);
    }
    /// The robot whose directory the controller pane shows.
    void expectRead(const std::string& robot) {
        EXPECT_THAT(window.controller.names, ElementsAre(robot + ".JBI"));
    }

    struct Picture {
        std::string address, folder;
        std::vector<std::string> controllerNames;
        ActiveSide active;
    };
    std::optional<Picture> firstCall;
    std::optional<int> takenBackTo;
    RobotSelection selection{services, main, *this, boxes};
};

TEST_F(RobotSelectionTest, ANewRobotBringsItsFolderItsAddressAndItsDirectory) {
    pc.write("R1/A.JBI", "x");
    window.pcFilter = allFiles;
    selection.choose(1);
    EXPECT_EQ(state.CurrentRobotIndex, 1);
    EXPECT_EQ(state.CurrentRobot.Name, "R1");
    EXPECT_EQ(state.PCPath, pc.path("R1"));
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI"));
    EXPECT_EQ(session.IPaddress, "10.0.0.1");
    EXPECT_EQ(view.address, "10.0.0.1");
    expectRead("R1");
    EXPECT_EQ(state.Active, ActiveSide::PC);
}

TEST_F(RobotSelectionTest, EverythingButTheDirectoryIsShownBeforeTheFirstCall) {
    selection.choose(1);
    ASSERT_TRUE(firstCall);
    EXPECT_EQ(firstCall->address, "10.0.0.1");
    EXPECT_EQ(firstCall->folder, pc.path("R1"));
    EXPECT_THAT(firstCall->controllerNames, IsEmpty()) << "the other machine's list is gone";
}

TEST_F(RobotSelectionTest, TheSameRobotInItsOwnFolderChangesNothing) {
    session.IPaddress = "10.0.0.0";
    selection.choose(0);
    expectNothingDone();
}

TEST_F(RobotSelectionTest, TheSameRobotInAnotherFolderIsANewChoice) {
    state.PCPath = pc.path();
    window.controller.names = {"OLD.JBI"};
    selection.choose(0);
    EXPECT_EQ(state.PCPath, pc.path("R0"));
    ASSERT_TRUE(firstCall);
    EXPECT_THAT(firstCall->controllerNames, ElementsAre("OLD.JBI")) << "the machine is the same";
    expectRead("R0");
}

TEST_F(RobotSelectionTest, ASeparatorAtTheEndMakesNoOtherFolder) {
    state.PCPath += PathRules().separator();
    selection.choose(0);
    state.PCPath = pc.path("R0");
    state.RobotList[0].Path += PathRules().separator();
    selection.choose(0);
    expectNothingDone();
}

TEST_F(RobotSelectionTest, WithoutSynchronisingTheFolderStays) {
    state.SyncroRobotDir = 0;
    selection.choose(1);
    EXPECT_EQ(state.PCPath, pc.path("R0"));
    EXPECT_EQ(view.folder, "");
    expectRead("R1");
}

TEST_F(RobotSelectionTest, AFolderThatCannotBeListedIsNamedAndTheOldOneStays) {
    const std::string missing = pc.path("missing");
    state.RobotList[1].Path = missing;
    selection.choose(1);
    EXPECT_EQ(state.PCPath, pc.path("R0"));
    EXPECT_THAT(boxes.texts(), ElementsAre("[R1] folder not listed\n" + missing));
    expectRead("R1");
}

TEST_F(RobotSelectionTest, AVeryLongNameAndFolderAreNamedShortened) {
    state.RobotList[1].Name = std::string(100'000, 'N');
    state.RobotList[1].Path = "/" + std::string(100'000, 'F');
    selection.choose(1);
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_LT(boxes.shown[0].text.size(), 450U);
}

TEST_F(RobotSelectionTest, DuringTheStartTheChoiceIsTakenBack) {
    state.StartupDone = false;
    selection.choose(1);
    EXPECT_EQ(takenBackTo, 0);
    EXPECT_EQ(state.CurrentRobot.Name, "R0");
    expectNothingDone();
}

TEST_F(RobotSelectionTest, WhileAnOperationRunsTheChoiceIsTakenBack) {
    state.Busy = true;
    selection.choose(1);
    EXPECT_EQ(takenBackTo, 0);
    EXPECT_EQ(state.CurrentRobot.Name, "R0");
    EXPECT_EQ(session.IPaddress, "");
    expectNothingDone();
}

TEST_F(RobotSelectionTest, AnIndexOutsideTheListIsIgnored) {
    for (const int index : {-1, 2, 3, 100000})
        selection.choose(index);
    EXPECT_EQ(state.CurrentRobot.Name, "R0");
    expectNothingDone();
}

TEST_F(RobotSelectionTest, TheControllerStaysActiveWhenItWas) {
    state.Active = ActiveSide::Controller;
    selection.choose(1);
    EXPECT_EQ(state.Active, ActiveSide::Controller);
}

TEST_F(RobotSelectionTest, LeavesThePaneThatWasActiveAsItWas) {
    main.activate(ActiveSide::Controller);
    main.activate(ActiveSide::PC);
    const int focuses = window.controller.focuses;
    selection.choose(1);
    expectRead("R1");
    EXPECT_EQ(state.Active, ActiveSide::PC);
    EXPECT_TRUE(shown("tlbPCButton PCButton").checked);
    EXPECT_TRUE(shown("tlbMain DispDetail").enabled);
    EXPECT_EQ(window.controller.focuses, focuses);
}

TEST_F(RobotSelectionTest, AnotherMachineEmptiesThePaneWithoutConnecting) {
    const Machine before = machineInForce(state);
    state.TransMode = TransferMode::Bsc;
    main.machineMayHaveChanged(before);
    EXPECT_EQ(state.CtrlListing.Count, 0);
    EXPECT_EQ(window.controllerStatus, "Controller: 0 items");
    EXPECT_FALSE(firstCall);
}

TEST_F(RobotSelectionTest, DuringTheStartAnotherMachineEmptiesNothing) {
    const Machine before = machineInForce(state);
    state.StartupDone = false;
    state.TransMode = TransferMode::Bsc;
    main.machineMayHaveChanged(before);
    EXPECT_EQ(state.CtrlListing.Count, 1);
}

TEST_F(RobotSelectionTest, TheSameMachineKeepsItsList) {
    const Machine before = machineInForce(state);
    state.Port = 9;
    main.machineMayHaveChanged(before);
    EXPECT_EQ(state.CtrlListing.Count, 1);
}

TEST_F(RobotSelectionTest, TheMarkIsThatOfTheRobotChosen) {
    state.RobotList[0].Label = "LIVE LINE";
    selection.choose(1);
    EXPECT_EQ(view.mark.text, "");
    selection.choose(0);
    EXPECT_EQ(view.mark.text, "LIVE LINE");
}

/// Its box stands over the window for as long as nobody answers.
TEST_F(RobotSelectionTest, NoOtherRobotsMarkIsSeenWhileTheFolderIsTold) {
    view.mark.text = "LIVE LINE"; // of the robot before
    state.RobotList[1].Path = pc.path("none");
    std::string seen = "nothing told";
    boxes.whileOpen = [&] { seen = view.mark.text; };
    selection.choose(1);
    EXPECT_EQ(seen, "");
}

} // namespace
} // namespace vantrel::tests
