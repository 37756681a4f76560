#include "files/FolderOwner.h"

#include "CommandFixture.h"

#include <gmock/gmock.h>

namespace vantrel::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

RobotRecord robotIn(const std::string& name, const std::string& folder) {
    RobotRecord robot;
    robot.Name = name;
    robot.IPaddr = "10.0.0.1";
    robot.Path = folder;
    return robot;
}

class FolderOwnerTest : public CommandTest {
  protected:
    FolderOwnerTest() {
        state.TransMode = TransferMode::HispeedLink;
        robots({{"R1", pc.makeFolder("r1")}, {"R2", pc.path()}});
        session.IPaddress = "10.0.0.1";
        controller();
    }
    void robots(const std::vector<std::pair<std::string, std::string>>& all) {
        state.RobotList.clear();
        for (const auto& [name, folder] : all)
            state.RobotList.push_back(robotIn(name, folder));
        state.RobotList.push_back(robotIn(std::string(endOfRobots), ""));
        state.CurrentRobotIndex = 0;
        state.CurrentRobot = state.RobotList.front();
    }
    FakeController& controller() { return library.at("10.0.0.1"); }
};

TEST_F(FolderOwnerTest, IsTheOneRobotThatHasTheFolder) {
    EXPECT_EQ(otherOwnerOfPCFolder(state), "R2");
    state.CurrentRobotIndex = 1;
    EXPECT_EQ(otherOwnerOfPCFolder(state), "");
    state.PCPath = pc.path("r1");
    EXPECT_EQ(otherOwnerOfPCFolder(state), "R1");
    state.PCPath = pc.makeFolder("nobody");
    EXPECT_EQ(otherOwnerOfPCFolder(state), "");
}

TEST_F(FolderOwnerTest, AFolderOfSeveralIsEachOnesAndAllAreNamed) {
    robots({{"R1", pc.path("r1")}, {"R2", pc.path()}, {"R3", pc.path()}});
    EXPECT_EQ(otherOwnerOfPCFolder(state), "R2, R3");
    robots({{"R1", pc.path()}, {"R2", pc.path()}});
    EXPECT_EQ(otherOwnerOfPCFolder(state), "");
    robots({{"R1", pc.path("r1")}, {"R2", pc.path()}, {"R3", pc.path()}});
    state.CurrentRobotIndex = 2;
    EXPECT_EQ(otherOwnerOfPCFolder(state), "");
}

TEST_F(FolderOwnerTest, OverTheSerialLineThereIsNone) {
    state.TransMode = TransferMode::Bsc;
    EXPECT_EQ(otherOwnerOfPCFolder(state), "");
}

TEST_F(FolderOwnerTest, AFolderIsTheSameInEveryWayToWriteIt) {
    robots({{"R1", "C:\\r1"}, {"R2", "c:/Jobs/"}});
    state.PCPath = "C:\\jobs";
    EXPECT_EQ(otherOwnerOfPCFolder(state, PathRules(PathStyle::Windows)), "R2");
    robots({{"R1", "/r1"}, {"R2", "/jobs/"}});
    state.PCPath = "/jobs";
    EXPECT_EQ(otherOwnerOfPCFolder(state, PathRules(PathStyle::Posix)), "R2");
    state.PCPath = "/Jobs";
    EXPECT_EQ(otherOwnerOfPCFolder(state, PathRules(PathStyle::Posix)), "");
}

TEST_F(FolderOwnerTest, FilesOfItGoToAnotherRobotOnlyAfterYes) {
    pcJob("A");
    selectOnPC({"A.JBI"});
    for (const bool move : {false, true}) {
        boxes.answers = {false};
        EXPECT_FALSE(move ? commands.sendMove() : commands.sendCopy());
        EXPECT_THAT(boxes.texts(), ElementsAre("R2's folder, to R1?\n→ R1 (10.0.0.1)"));
        EXPECT_THAT(controller().names(), IsEmpty());
        EXPECT_EQ(library.callCount("BscConnect"), 0);
        EXPECT_EQ(window.result, "") << "nothing has begun";
        boxes.shown.clear();
    }
    boxes.answers = {true};
    EXPECT_TRUE(commands.sendCopy());
    EXPECT_THAT(controller().names(), ElementsAre("A.JBI"));
}

TEST_F(FolderOwnerTest, NobodyIsAskedForWhatComesOrForNothing) {
    controller().put("B.JBI", job("B"));
    pcJob("A");
    showPanes();
    window.pc.click({});
    EXPECT_TRUE(commands.sendCopy());
    window.controller.click({"B.JBI"});
    EXPECT_TRUE(commands.receiveCopy());
    EXPECT_THAT(boxes.texts(), IsEmpty());
}

} // namespace
} // namespace vantrel::tests
