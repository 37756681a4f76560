#include "base/Text.h"
#include "console/BuiltProgramWorld.h"
#include "platform/ChildProcess.h"

#include <algorithm>
#include <thread>

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// Robots in processes of their own, each with a controller of the simulator.
class RobotProcessesTest : public tests::BuiltProgramWorld {
  protected:
    /// "R1" and so on at 10.0.1.1 and so on, with two jobs each.
    void makeRobots(int count) {
        std::string registry = "[Boot]\r\nName=R1\r\n";
        for (int robot = 1; robot <= count; ++robot) {
            const std::string number = std::to_string(robot);
            registry += "[Robot]\r\nName=R" + number + "\r\nIPaddr=" + address(robot) +
                        "\r\nPath=pc" + number + "\r\n";
            controllers_ += "[Controller" + number + "]\nFolder=robot" + number +
                            "\nAddress=" + address(robot) + "\n";
            folder_.makeFolder("pc" + number);
            put(robot, "A");
            put(robot, "B");
        }
        folder_.write("robot.ini", registry);
        disturb("");
    }

    void put(int robot, const std::string& name) {
        folder_.write("robot" + std::to_string(robot) + "/" + name + ".JBI",
                      job(name, std::to_string(robot)));
    }

    static std::string address(int robot) { return "10.0.1." + std::to_string(robot); }

    void disturb(const std::string& rows) {
        folder_.write("simulator.ini", controllers_ + "[Script]\n" + rows);
    }

    bool has(int robot, const std::string& name) const {
        return folder_.has("pc" + std::to_string(robot) + "/" + name + ".JBI");
    }

    ChildProcess started(const std::vector<std::string>& arguments) const {
        auto child = ChildProcess::start(
            {.program = program_, .arguments = arguments, .folder = folder_.path()});
        EXPECT_TRUE(child) << child.reason();
        return std::move(*child);
    }

    /// Until somebody works with the robot.
    void waitForLock(int robot) const {
        while (!folder_.has("locks/hispeed-" + address(robot) + ".lock"))
            std::this_thread::yield();
    }

    std::size_t linesWith(const std::string& text) const {
        return static_cast<std::size_t>(std::ranges::count_if(
            lines(output_), [&](auto line) { return line.find(text) != line.npos; }));
    }

    std::vector<std::string> sortedLines() const {
        std::vector<std::string> sorted;
        for (const std::string_view line : lines(output_))
            sorted.emplace_back(line);
        std::ranges::sort(sorted);
        return sorted;
    }

    std::string controllers_;
};

TEST_F(RobotProcessesTest, SeveralRobotsAtATimeGiveWhatOneAfterAnotherDoes) {
    makeRobots(3);
    EXPECT_EQ(run("get \"*.JBI\" --all-robots --parallel 2 --json"), 0);
    EXPECT_EQ(linesWith("\"end\":\"done\""), 6U);
    EXPECT_THAT(output_, HasSubstr("\"exit\":0,\"done\":6,\"skipped\":0,\"failed\":0"));
    EXPECT_EQ(linesWith("\"type\":\"end\""), 1U);
    EXPECT_TRUE(output_.ends_with("}\n"));
    EXPECT_EQ(folder_.read("pc3/B.JBI"), job("B", "3"));
    EXPECT_EQ(run("list --all-robots"), 0);
    const auto listed = sortedLines();
    EXPECT_EQ(run("list --all-robots --parallel 3"), 0);
    EXPECT_THAT(output_, AllOf(HasSubstr("R1\tA.JBI\n"), HasSubstr("R3\tB.JBI\n")));
    EXPECT_EQ(sortedLines(), listed);
    EXPECT_THAT(messages_, IsEmpty());
}

TEST_F(RobotProcessesTest, TheExitCodeIsThatOfOneProcess) {
    makeRobots(2);
    disturb("1=BscConnect 1+ fail 2040\n");
    EXPECT_EQ(run("list --all-robots --parallel 2 --json"), 12);
    EXPECT_THAT(output_, HasSubstr("\"exit\":12,\"done\":0,\"skipped\":0,\"failed\":2"));
    disturb("1=@10.0.1.2 BscConnect 1+ fail 2040\n");
    EXPECT_EQ(run("robots --check --parallel 2"), 3);
    EXPECT_EQ(run("doctor --parallel 2 --json"), 3);
    EXPECT_EQ(linesWith("\"check\":\"library\""), 1U);
    EXPECT_EQ(linesWith("\"check\":\"robot\""), 2U);
}

TEST_F(RobotProcessesTest, ARobotThatTakesTooLongIsAFailureOfItsOwn) {
    makeRobots(2);
    disturb("1=@10.0.1.1 BscFindFirst 1 slow 60000\n");
    EXPECT_EQ(run("get \"*.JBI\" --all-robots --timeout 3 --json"), 3);
    EXPECT_THAT(output_, AllOf(HasSubstr("\"type\":\"robot-failed\",\"robot\":\"R1\""),
                               HasSubstr("longer than 3 seconds"), HasSubstr("\"failed\":1")));
    EXPECT_THAT(messages_, HasSubstr("[R1]"));
    EXPECT_TRUE(has(2, "A") && has(2, "B"));
}

TEST_F(RobotProcessesTest, ACrashIsAFailureAndHarmsNothingElse) {
    makeRobots(2);
    folder_.write("pc1/B.JBI", "old");
    disturb("1=@10.0.1.1 BscUpLoad 2 crash\n");
    EXPECT_EQ(run("get \"*.JBI\" --all-robots --overwrite always --parallel 2"), 3);
    EXPECT_THAT(messages_, HasSubstr("[R1] The program for this robot stopped unexpectedly."));
    EXPECT_TRUE(has(2, "A") && has(2, "B"));
    disturb("");
    EXPECT_EQ(run("get A.JBI --overwrite always"), 0) << "the robot is free";
}

// One machine under two names, and one folder for two machines.
TEST_F(RobotProcessesTest, WhatWouldMeetIsDoneOneAfterAnother) {
    makeRobots(2);
    folder_.write("robot.ini", "[Robot]\r\nName=R1\r\nIPaddr=10.0.1.1\r\nPath=pc1\r\n"
                               "[Robot]\r\nName=R1AGAIN\r\nIPaddr=10.0.1.1\r\nPath=pc2\r\n"
                               "[Robot]\r\nName=R2\r\nIPaddr=10.0.1.2\r\nPath=pc2\r\n");
    EXPECT_EQ(run("get A.JBI --all-robots --overwrite always --parallel 3"), 0);
    EXPECT_THAT(output_,
                AllOf(HasSubstr("R1\tA.JBI"), HasSubstr("R1AGAIN\tA.JBI"), HasSubstr("R2\tA.JBI")));
    EXPECT_EQ(folder_.read("pc2/A.JBI"), job("A", "2"));
}

TEST_F(RobotProcessesTest, AMachineThatIsNotAsItWasMeantIsLeftAlone) {
    makeRobots(1);
    EXPECT_EQ(run("delete A.JBI --robot R1 \"--relay=0|10.0.1.9|R1|elsewhere\""), 1);
    EXPECT_THAT(output_, HasSubstr("robots were changed"));
    EXPECT_TRUE(folder_.has("robot1/A.JBI"));
}

TEST_F(RobotProcessesTest, AFolderIsThatOfWhoeverAsks) {
    makeRobots(1);
    folder_.write("pc1/C.JBI", job("C", "pc"));
    EXPECT_EQ(run("put C.JBI --folder \"" + folder_.path("pc1") + "\" --timeout 60"), 0);
    EXPECT_EQ(folder_.read("robot1/C.JBI"), job("C", "pc"));
}

TEST_F(RobotProcessesTest, AProcessEndsWithTheOneThatHasStartedIt) {
    makeRobots(1);
    disturb("1=BscFindFirst 1 slow 60000\n");
    ChildProcess parent = started({"list", "--timeout", "3600"});
    waitForLock(1);
    EXPECT_EQ(run("list"), 11);
    parent.kill();
    parent.exitCode();
    disturb("");
    while (run("list") == 11)
        std::this_thread::yield();
    EXPECT_EQ(run("list"), 0);
}

#ifndef _WIN32 // There the console tells all of its programs, and a test has none of its own.
TEST_F(RobotProcessesTest, AnInterruptionFinishesTheFileUnderWayAndSaysWhatWasNotTried) {
    makeRobots(3);
    disturb("1=BscUpLoad 1 slow 2000\n");
    ChildProcess parent =
        started({"get", "A.JBI", "B.JBI", "--all-robots", "--parallel", "1", "--json"});
    waitForLock(1);
    parent.interrupt();
    while (!parent.isAtEnd()) {
        ChildProcess* const one[] = {&parent};
        ChildProcess::wait(one, std::chrono::seconds(60));
        output_ += parent.read();
    }
    EXPECT_EQ(parent.exitCode(), 130);
    for (const char* robot : {"R1", "R2", "R3"})
        EXPECT_THAT(output_, HasSubstr("\"robot\":\"" + std::string(robot) + "\""));
    EXPECT_THAT(output_, AllOf(HasSubstr("\"end\":\"not-tried\""), HasSubstr("\"exit\":130"),
                               Not(HasSubstr("robot-failed"))));
    EXPECT_FALSE(has(3, "A"));
}
#endif

// As a task of every night does it, when much is wrong.
TEST_F(RobotProcessesTest, ANightWithFaultsOnAThirdOfManyRobotsLosesNothing) {
    constexpr int robots = 60, ofEachFault = 4;
    makeRobots(robots);
    std::string rows;
    const auto fault = [&rows](int robot, const std::string& what) {
        rows += std::to_string(rows.size()) + "=@" + address(robot) + " " + what + "\n";
    };
    for (int at = 1; at <= ofEachFault; ++at) {
        fault(at * 3, "BscConnect 1+ fail 2010");
        fault(at * 3 + 12, "BscUpLoad 2 fail 1210");
        fault(at * 3 + 24, "BscUpLoad 2 slow 60000");
        fault(at * 3 + 36, "BscUpLoad 2 crash");
        fault(at * 3 + 48, "BscFindNext 1+ nothing");
    }
    disturb(rows);
    EXPECT_EQ(run("get \"*.JBI\" --all-robots --keep-going --parallel 8 --timeout 5 --json"), 3);
    for (int robot = 1; robot <= robots; ++robot) {
        EXPECT_THAT(output_, HasSubstr("\"robot\":\"R" + std::to_string(robot) + "\"")) << robot;
        const bool isHealthy = robot % 3 != 0;
        EXPECT_EQ(has(robot, "B"), isHealthy) << robot;
        EXPECT_EQ(has(robot, "A"), isHealthy || (robot > 12 && robot <= 48)) << robot;
    }
    // Healthy ones two files each, and those whose second file was refused one.
    EXPECT_EQ(linesWith("\"end\":\"done\""), 84U);
    EXPECT_EQ(linesWith("\"type\":\"robot-failed\""), 8U);
    EXPECT_THAT(output_, HasSubstr("\"exit\":3,\"done\":84,\"skipped\":0,\"failed\":20"));
    EXPECT_EQ(run("get \"*.JBI\" --robot R27 --timeout 60 --dry-run"), 3)
        << "nothing is left locked";
}

} // namespace
} // namespace vantrel
