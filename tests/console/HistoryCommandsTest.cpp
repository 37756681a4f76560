#include "console/HistoryCommands.h"

#include "ConsoleProgramWorld.h"
#include "history/HistoryStore.h"
#include "platform/HeldFile.h"

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class HistoryCommandsTest : public tests::ConsoleProgramWorld {
  protected:
    /// At 10.0.0.9 there is nobody.
    void moveFirstTo(const std::string& address) {
        std::string robots = robots_;
        const std::string before = "10.0.0.1\r";
        program_.write("robot.ini",
                       robots.replace(robots.find(before), before.size(), address + "\r"));
    }
    std::string latest(const std::string& robot, const std::string& name,
                       const std::string& place = "history") {
        const auto history = HistoryStore::open(program_.path(place));
        if (!history)
            return history.reason();
        const auto content = history->read(robot, name);
        return content && *content ? **content : std::string("none");
    }
    std::string versionOf(const std::string& robot, const std::string& name, std::size_t back) {
        const auto history = HistoryStore::open(program_.path("history"));
        const auto entries = history->log({.robot = robot, .file = name});
        return entries && back < entries->size() ? (*entries)[back].version : std::string("none");
    }
};

TEST_F(HistoryCommandsTest, ABackupRecordsTheRobotInForce) {
    EXPECT_EQ(run({"backup"}), 0);
    EXPECT_EQ(output_, "first\trecorded\t3 new\n");
    EXPECT_EQ(messages_, "3 files read, 0 failed\n");
    EXPECT_EQ(latest("first", "OWN.JBI"), job("OWN", "first"));
    EXPECT_EQ(latest("second", "OWN.JBI"), "none");
    EXPECT_EQ(program_.read("history/first/OWN.JBI"), job("OWN", "first"));
    EXPECT_FALSE(program_.has("one/OWN.JBI"));
}

TEST_F(HistoryCommandsTest, ABackupSaysWhatIsNewSinceTheLastOne) {
    run({"backup"});
    EXPECT_EQ(run({"backup"}), 0);
    EXPECT_EQ(output_, "first\tunchanged\n");
    one_.put("OWN.JBI", job("OWN", "changed"));
    one_.put("NEW.JBI", job("NEW", "new"));
    one_.erase("SUB1.JBI");
    EXPECT_EQ(run({"backup", "--json"}), 0);
    EXPECT_THAT(output_,
                HasSubstr("\"type\":\"snapshot\",\"robot\":\"first\",\"end\":\"recorded\""));
    EXPECT_THAT(output_,
                HasSubstr("\"complete\":true,\"changed\":[\"OWN.JBI\"],\"new\":[\"NEW.JBI\"]"
                          ",\"gone\":[\"SUB1.JBI\"]"));
    EXPECT_EQ(values("end", "done"), "3 ");
}

TEST_F(HistoryCommandsTest, ARobotThatCannotBeReachedIsAFailureOfItsOwn) {
    moveFirstTo("10.0.0.9");
    EXPECT_EQ(run({"backup", "--all-robots"}), 3);
    EXPECT_THAT(output_, AllOf(StartsWith("first\tnot recorded\t"),
                               HasSubstr("\nsecond\trecorded\t1 new\n")));
    EXPECT_EQ(latest("second", "OWN.JBI"), job("OWN", "second"));
    EXPECT_EQ(run({"backup"}), 12);
}

TEST_F(HistoryCommandsTest, AFileThatCannotBeReadIsNamedAndTheBackupIsPartial) {
    library_.disturb({.function = "BscUpLoad", .call = 2, .code = 2000});
    EXPECT_EQ(run({"backup"}), 3);
    EXPECT_THAT(output_, AllOf(StartsWith("first\trecorded\t2 new, 1 not read\n"),
                               HasSubstr("first\tSUB1.JBI\tfailed\tBscUpLoad")));
    EXPECT_EQ(messages_, "2 files read, 1 failed\n");
}

TEST_F(HistoryCommandsTest, TheHistoryIsWhereTheRequestOrTheSettingsSay) {
    EXPECT_EQ(run({"backup", "--history", "elsewhere"}), 0);
    EXPECT_EQ(latest("first", "OWN.JBI", "elsewhere"), job("OWN", "first"));
    EXPECT_FALSE(program_.has("history"));
    program_.write("Vantrel.ini", settings_ + "[History]\r\nFolder=kept\r\n");
    EXPECT_EQ(run({"backup"}), 0);
    EXPECT_EQ(latest("first", "OWN.JBI", "kept"), job("OWN", "first"));
    EXPECT_FALSE(program_.has("history"));
}

TEST_F(HistoryCommandsTest, AFolderThatIsNoHistoryIsLeftAlone) {
    program_.write("history/mine.txt", "mine");
    EXPECT_EQ(run({"backup"}), 1);
    EXPECT_THAT(output_, HasSubstr("not recorded\tThe history could not be opened"));
    EXPECT_FALSE(program_.has("history/.git"));
    EXPECT_EQ(library_.callCount("BscConnect"), 0);
}

TEST_F(HistoryCommandsTest, TheReportHoldsWhatIsSaid) {
    moveFirstTo("10.0.0.9");
    EXPECT_EQ(run({"backup", "--report", "night.txt"}), 12);
    EXPECT_THAT(program_.read("night.txt"),
                AllOf(HasSubstr("first\tnot recorded\t"), HasSubstr("0 files read, 1 failed\n")));
    moveFirstTo("10.0.0.1");
    EXPECT_EQ(run({"backup", "--json", "--report", program_.path("night.json")}), 0);
    EXPECT_EQ(program_.read("night.json"), output_);
    EXPECT_EQ(run({"backup", "--report", "none/night.txt"}), 3);
    EXPECT_THAT(messages_, HasSubstr("night.txt: "));
}

TEST_F(HistoryCommandsTest, TheLogListsTheLatestFirst) {
    run({"backup", "--all-robots"});
    one_.put("OWN.JBI", job("OWN", "changed"));
    run({"backup"});
    EXPECT_EQ(run({"history", "log"}), 0);
    const auto all = lines(output_);
    ASSERT_EQ(all.size(), 3U);
    EXPECT_THAT(std::string(all[0]), HasSubstr("\tfirst: 1 changed"));
    EXPECT_THAT(std::string(all[1]), HasSubstr("\tsecond: 1 new"));
    EXPECT_EQ(library_.callCount("BscOpen"), 0);
    EXPECT_EQ(run({"history", "log", "--robot", "second"}), 0);
    EXPECT_THAT(output_, AllOf(HasSubstr("second: 1 new"), Not(HasSubstr("first"))));
    EXPECT_EQ(run({"history", "log", "SUB1.JBI", "--robot", "first", "--json"}), 0);
    EXPECT_EQ(values("history-entry", "version"), versionOf("first", "SUB1.JBI", 0) + " ");
    EXPECT_EQ(run({"history", "log", "--most", "1"}), 0);
    EXPECT_EQ(lines(output_).size(), 1U);
}

TEST_F(HistoryCommandsTest, WhereThereIsNoHistoryNothingIsMade) {
    EXPECT_EQ(run({"history", "log"}), 1);
    EXPECT_EQ(run({"history", "restore", "OWN.JBI"}), 1);
    EXPECT_THAT(output_, HasSubstr("The history could not be opened"));
    EXPECT_FALSE(program_.has("history"));
}

TEST_F(HistoryCommandsTest, AFileIsListedForOneRobot) {
    run({"backup"});
    EXPECT_EQ(run({"history", "log", "OWN.JBI"}), 2);
}

TEST_F(HistoryCommandsTest, ANameThatTwoRobotsHaveIsNobodysHistory) {
    program_.write("robot.ini",
                   robots_ + "[Robot]\r\nName=first\r\nIPaddr=10.0.0.2\r\nPath=two\r\n");
    EXPECT_EQ(run({"backup", "--all-robots"}), 3);
    EXPECT_THAT(output_,
                AllOf(HasSubstr("first\tnot recorded\t[first]"), HasSubstr("second\trecorded")));
    EXPECT_EQ(latest("first", "OWN.JBI"), "none");
}

TEST_F(HistoryCommandsTest, OverASerialLineTheNamedRobotIsRecorded) {
    library_.at("COM1").put("S.JBI", job("S", "serial"));
    EXPECT_EQ(run({"backup", "--mode", "bsc", "--port", "1", "--robot", "second"}), 0);
    EXPECT_EQ(latest("second", "S.JBI"), job("S", "serial"));
    EXPECT_EQ(run({"backup", "--port", "1"}), 0);
    EXPECT_EQ(latest("COM1", "S.JBI"), job("S", "serial"));
}

TEST_F(HistoryCommandsTest, ARestoreThatNobodyAgreedToReplacesNothing) {
    run({"backup"});
    program_.makeFolder("one/OWN.JBI");
    EXPECT_EQ(run({"history", "restore", "OWN.JBI", "--overwrite", "always"}), 1);
    EXPECT_EQ(run({"history", "restore", "OWN.JBI"}), 1);
    EXPECT_FALSE(program_.has("one/OWN.JBI.restored"));
}

TEST_F(HistoryCommandsTest, OlderVersionsComeBackIntoTheRobotsFolder) {
    run({"backup"});
    one_.put("OWN.JBI", job("OWN", "changed"));
    run({"backup"});
    const std::string older = versionOf("first", "OWN.JBI", 1);
    EXPECT_EQ(run({"history", "restore", "OWN.JBI", "--version", older.substr(0, 8)}), 0);
    EXPECT_EQ(program_.read("one/OWN.JBI"), job("OWN", "first"));
    EXPECT_EQ(library_.callCount("BscOpen"), 0);
    EXPECT_EQ(one_.bytes("OWN.JBI"), job("OWN", "changed"));
    EXPECT_EQ(run({"history", "restore", "OWN.JBI"}), 1) << "what is there stays";
    EXPECT_EQ(program_.read("one/OWN.JBI"), job("OWN", "first"));
    EXPECT_EQ(run({"history", "restore", "OWN.JBI", "--overwrite", "always"}), 0);
    EXPECT_EQ(program_.read("one/OWN.JBI"), job("OWN", "changed"));
}

TEST_F(HistoryCommandsTest, ARestoreTakesWildcardsAndAnotherFolder) {
    run({"backup"});
    EXPECT_EQ(run({"history", "restore", "SUB?.JBI", "NONE.JBI", "--folder", "two"}), 3);
    EXPECT_EQ(program_.read("two/SUB1.JBI"), job("SUB1", "first"));
    EXPECT_EQ(program_.read("two/SUB2.JBI"), job("SUB2", "first"));
    EXPECT_FALSE(program_.has("two/OWN.JBI"));
    EXPECT_THAT(output_, HasSubstr("NONE.JBI\tfailed\tThe history has no such file."));
}

TEST_F(HistoryCommandsTest, ARehearsalOfARestoreWritesNothing) {
    run({"backup"});
    EXPECT_EQ(run({"history", "restore", "OWN.JBI", "--dry-run"}), 0);
    EXPECT_FALSE(program_.has("one/OWN.JBI"));
}

TEST_F(HistoryCommandsTest, AVersionThatIsNotThereIsSaid) {
    run({"backup"});
    EXPECT_EQ(run({"history", "restore", "OWN.JBI", "--version", "0000000"}), 1);
    EXPECT_THAT(output_, HasSubstr("The history has no such version."));
    EXPECT_FALSE(program_.has("one/OWN.JBI"));
}

TEST(IsoTimeTest, HasTheZone) {
    EXPECT_EQ(isoTime(0, 0), "1970-01-01T00:00:00+00:00");
    EXPECT_EQ(isoTime(1'763'798'709, 540), "2025-11-22T17:05:09+09:00");
    EXPECT_EQ(isoTime(1'763'798'709, -210), "2025-11-22T04:35:09-03:30");
}

} // namespace
} // namespace vantrel
