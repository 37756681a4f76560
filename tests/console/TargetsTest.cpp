#include "console/Targets.h"

#include "app/robots/RobotFile.h"
#include "base/PathRules.h"
#include "console/ConsoleMessages.h"
#include "lang/LanguageFiles.h"
#include "lang/MessageTable.h"
#include "support/ProjectFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class TargetsTest : public testing::Test {
  protected:
    TargetsTest() {
        EXPECT_TRUE(LanguageFiles(tests::dataFolder()).readInto("English", messages_));
        for (const char* name : {"ONE", "TWO", "two"}) {
            RobotRecord robot;
            robot.Name = name;
            robot.IPaddr = "10.0.0." + std::to_string(state_.RobotList.size() + 1);
            robot.Path = std::string("folder of ") + name;
            state_.RobotList.push_back(robot);
        }
        state_.RobotList.push_back(emptyRobotList().front());
        state_.CurrentRobotIndex = 1;
        state_.CurrentRobot = state_.RobotList[1];
        state_.TransMode = TransferMode::HispeedLink;
        state_.Port = 5;
        state_.PCPath = "folder of the settings";
    }

    Result<Targets> choose() const { return chooseTargets(request_, state_, "work", messages_); }
    Targets chosen() const {
        const auto targets = choose();
        EXPECT_TRUE(targets) << targets.reason();
        return targets ? *targets : Targets();
    }
    void expectRefused(std::int32_t number) const {
        const auto targets = choose();
        ASSERT_FALSE(targets);
        EXPECT_THAT(targets.reason(), HasSubstr(messages_.getMessage(number)));
    }
    std::vector<std::string> addresses() const {
        std::vector<std::string> all;
        for (const Target& target : chosen().targets)
            all.push_back(target.robot.IPaddr);
        return all;
    }

    ApplicationState state_;
    MessageTable messages_;
    Request request_{.task = Request::Task::Get, .command = "get"};
};

TEST_F(TargetsTest, WithoutAWordItIsTheRobotInForceWithItsOwnFolder) {
    const Targets targets = chosen();
    ASSERT_EQ(targets.targets.size(), 1U);
    EXPECT_EQ(targets.mode, TransferMode::HispeedLink);
    EXPECT_EQ(targets.targets[0].robot.Name, "TWO");
    EXPECT_EQ(targets.targets[0].index, 1);
    EXPECT_EQ(targets.targets[0].folder, "folder of TWO");
}

TEST_F(TargetsTest, EachNamedRobotHasItsOwnFolder) {
    request_.robots = {"two", "one"};
    const Targets targets = chosen();
    ASSERT_EQ(targets.targets.size(), 2U);
    EXPECT_EQ(targets.targets[0].folder, "folder of two");
    EXPECT_EQ(targets.targets[1].folder, "folder of ONE");
    EXPECT_THAT(addresses(), ElementsAre("10.0.0.3", "10.0.0.1"));
}

TEST_F(TargetsTest, ANameThatTwoRobotsCouldHaveIsRefused) {
    request_.robots = {"Two"};
    expectRefused(message::consoleRobotShared);
    state_.RobotList[2].Name = "TWO";
    request_.robots = {"TWO"};
    expectRefused(message::consoleRobotShared);
}

TEST_F(TargetsTest, ARobotThatIsNotRegisteredIsRefused) {
    request_.robots = {"ONE", "FOUR"};
    expectRefused(message::consoleRobotUnknown);
    EXPECT_THAT(choose().reason(), HasSubstr("[FOUR]"));
    request_.robots = {std::string(endOfRobots)};
    expectRefused(message::consoleRobotUnknown);
}

TEST_F(TargetsTest, AllRobotsAreThoseBeforeTheEnd) {
    request_.allRobots = true;
    EXPECT_THAT(addresses(), ElementsAre("10.0.0.1", "10.0.0.2", "10.0.0.3"));
}

TEST_F(TargetsTest, ListsOfRobotsMeanAllOfThem) {
    request_.task = Request::Task::Doctor;
    EXPECT_EQ(chosen().targets.size(), 3U);
    request_.robots = {"ONE"};
    EXPECT_EQ(chosen().targets.size(), 1U);
}

TEST_F(TargetsTest, AFolderThatIsNamedCountsForAll) {
    request_.folder = "sub";
    EXPECT_EQ(chosen().targets[0].folder, PathRules().join("work", "sub"));
    request_.folder =
        PathRules().join(PathRules().style() == PathStyle::Windows ? "C:\\" : "/", "elsewhere");
    EXPECT_EQ(chosen().targets[0].folder, *request_.folder);
}

TEST_F(TargetsTest, OverASerialLineARobotsNameSaysNothing) {
    state_.TransMode = TransferMode::Bsc;
    const Targets targets = chosen();
    EXPECT_EQ(targets.mode, TransferMode::Bsc);
    EXPECT_EQ(targets.port, 5);
    ASSERT_EQ(targets.targets.size(), 1U);
    EXPECT_EQ(targets.targets[0].folder, "folder of the settings");
    request_.robots = {"ONE"};
    expectRefused(message::consoleSerialNamesNobody);
    request_.robots.clear();
    request_.allRobots = true;
    expectRefused(message::consoleSerialNamesNobody);
}

TEST_F(TargetsTest, ARobotWhosePortIsNamedIsThatOne) {
    request_.port = 3;
    request_.robots = {"ONE"};
    const Targets targets = chosen();
    EXPECT_EQ(targets.mode, TransferMode::Bsc);
    EXPECT_EQ(targets.port, 3);
    EXPECT_EQ(targets.targets[0].folder, "folder of ONE");
}

TEST_F(TargetsTest, AnAddressMeansTheHighSpeedLink) {
    state_.TransMode = TransferMode::Bsc;
    request_.address = "10.0.0.9";
    const Targets targets = chosen();
    EXPECT_EQ(targets.mode, TransferMode::HispeedLink);
    EXPECT_EQ(targets.targets[0].robot.IPaddr, "10.0.0.9");
    EXPECT_EQ(targets.targets[0].robot.Name, "10.0.0.9");
    EXPECT_EQ(targets.targets[0].index, -1);
    EXPECT_EQ(targets.targets[0].folder, "folder of the settings");
}

TEST_F(TargetsTest, AnAddressThatOneRobotHasMeansThatRobot) {
    request_.address = "10.0.0.1";
    EXPECT_EQ(chosen().targets[0].robot.Name, "ONE");
    EXPECT_EQ(chosen().targets[0].folder, "folder of ONE");
    state_.RobotList[2].IPaddr = "10.0.0.1";
    EXPECT_EQ(chosen().targets[0].index, -1);
}

TEST_F(TargetsTest, ARobotCanBeAtAnotherAddress) {
    request_.robots = {"ONE"};
    request_.address = "10.9.9.9";
    const Target target = chosen().targets[0];
    EXPECT_EQ(target.robot.Name, "ONE");
    EXPECT_EQ(target.robot.IPaddr, "10.9.9.9");
    EXPECT_EQ(target.folder, "folder of ONE");
}

TEST_F(TargetsTest, AModelWithoutTheHighSpeedLinkIsNotReachedByAnotherWay) {
    state_.Controler = 0;
    while (state_.Controler < 6) {
        request_.mode = TransferMode::HispeedLink;
        if (!choose())
            break;
        ++state_.Controler;
    }
    expectRefused(message::consoleNoHispeed);
}

TEST_F(TargetsTest, PuttingOneInForceLeavesNothingOfTheOneBefore) {
    request_.robots = {"ONE"};
    const Targets targets = chosen();
    putInForce(targets, targets.targets[0], state_);
    EXPECT_EQ(state_.CurrentRobot.Name, "ONE");
    EXPECT_EQ(state_.CurrentRobotIndex, 0);
    EXPECT_EQ(state_.PCPath, "folder of ONE");
    EXPECT_EQ(state_.TransMode, TransferMode::HispeedLink);
}

} // namespace
} // namespace vantrel
