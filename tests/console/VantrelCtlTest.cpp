#include "base/Text.h"
#include "console/BuiltProgramWorld.h"
#include "platform/ChildProcess.h"
#include "platform/Environment.h"
#include "platform/Files.h"

#include <cstdlib>
#include <filesystem>
#include <string>
#include <thread>

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

using VantrelCtlTest = tests::BuiltProgramWorld;

TEST_F(VantrelCtlTest, ListsRobotsAndFiles) {
    EXPECT_EQ(run("robots"), 0);
    EXPECT_THAT(output_, AllOf(HasSubstr("LINE1\t10.0.0.1\t"), HasSubstr("LINE2\t10.0.0.2\t")));
    EXPECT_EQ(run("list --robot LINE2"), 0);
    EXPECT_THAT(output_, AllOf(HasSubstr("OWN.JBI"), Not(HasSubstr("SUB.JBI"))));
    EXPECT_THAT(messages_, IsEmpty());
}

TEST_F(VantrelCtlTest, MovesFilesBothWaysAndDeletesThem) {
    EXPECT_EQ(run("get OWN.JBI --all-robots"), 0);
    EXPECT_EQ(folder_.read("one/OWN.JBI"), job("OWN", "first"));
    EXPECT_EQ(folder_.read("two/OWN.JBI"), job("OWN", "second"));
    folder_.write("two/NEW.JBI", job("NEW", "pc"));
    EXPECT_EQ(run("put NEW.JBI --robot LINE2"), 0);
    EXPECT_EQ(folder_.read("second/NEW.JBI"), job("NEW", "pc"));
    EXPECT_FALSE(folder_.has("first/NEW.JBI"));
    EXPECT_EQ(run("delete SUB.JBI"), 0);
    EXPECT_FALSE(folder_.has("first/SUB.JBI"));
}

TEST_F(VantrelCtlTest, NothingDoneIsOneAndPartlyDoneIsThree) {
    folder_.write("one/OWN.JBI", "old");
    EXPECT_EQ(run("get OWN.JBI"), 1);
    EXPECT_EQ(run("get \"*.JBI\""), 3);
    EXPECT_EQ(folder_.read("one/OWN.JBI"), "old");
    EXPECT_EQ(folder_.read("one/SUB.JBI"), job("SUB", "first"));
}

TEST_F(VantrelCtlTest, BacksUpSeveralRobotsAtATimeIntoOneHistory) {
    EXPECT_EQ(
        run("backup --all-robots --parallel 2 --report \"" + folder_.path("night.txt") + "\""), 0);
    EXPECT_EQ(folder_.read("history/LINE1/OWN.JBI"), job("OWN", "first"));
    EXPECT_EQ(folder_.read("history/LINE2/OWN.JBI"), job("OWN", "second"));
    EXPECT_THAT(messages_, HasSubstr("3 files read, 0 failed"));
    EXPECT_THAT(folder_.read("night.txt"),
                AllOf(HasSubstr("LINE1\trecorded\t2 new"), HasSubstr("LINE2\trecorded\t1 new")));
    folder_.write("first/OWN.JBI", job("OWN", "changed"));
    EXPECT_EQ(run("backup --all-robots --parallel 2"), 0);
    EXPECT_THAT(output_,
                AllOf(HasSubstr("LINE1\trecorded\t1 changed"), HasSubstr("LINE2\tunchanged")));
    EXPECT_EQ(run("history log OWN.JBI --robot LINE1"), 0);
    EXPECT_THAT(output_, AllOf(HasSubstr("LINE1: 1 changed"), HasSubstr("LINE1: 2 new"),
                               Not(HasSubstr("LINE2"))));
}

TEST_F(VantrelCtlTest, RunsListFilesBothWays) {
    folder_.write("first/variables.txt", "B001=5\nB002=6\n");
    folder_.write("one/V.lst", "B001=\r\nB002=\r\n");
    EXPECT_EQ(run("get-vars V"), 0);
    EXPECT_EQ(folder_.read("one/V.lst"), "B001=5\r\nB002=6\r\n");
    folder_.write("one/V.lst", "B001=5\r\nB002=7\r\n");
    EXPECT_EQ(run("vars-run V --receive"), 1);
    EXPECT_EQ(folder_.read("one/V.lst"), "B001=5\r\nB002=7\r\n");
    EXPECT_EQ(run("put-vars V.lst"), 0);
    EXPECT_THAT(folder_.read("first/variables.txt"), HasSubstr("B002=7"));
    folder_.write("one/V.lst", "B001=8\r\nB002=256\r\nB003=9\r\n");
    EXPECT_EQ(run("vars-run V --send"), 3);
    EXPECT_THAT(folder_.read("first/variables.txt"), Not(HasSubstr("B003")));
    folder_.write("one/L.lst", "SUB.JBI\r\n");
    EXPECT_EQ(run("jobs-run L --receive"), 0);
    EXPECT_EQ(folder_.read("one/SUB.JBI"), job("SUB", "first"));
    EXPECT_EQ(run("jobs-run L --send"), 1);
    EXPECT_EQ(run("jobs-run L --send --overwrite always"), 0);
    EXPECT_EQ(run("jobs-run L"), 2);
}

TEST_F(VantrelCtlTest, CallsAnOperationByItsName) {
    folder_.write("first/variables.txt", "B001=5\n");
    EXPECT_EQ(run("call VarUpLoad B001="), 0);
    EXPECT_EQ(output_, "LINE1\tVarUpLoad\tdone\tB001=5\n");
    EXPECT_EQ(run("call VarDownLoad B001=256"), 1);
    EXPECT_EQ(run("call JobDelete SUB.JBI --dry-run"), 0);
    EXPECT_TRUE(folder_.has("first/SUB.JBI"));
    EXPECT_EQ(run("call JobDelete SUB.JBI"), 0);
    EXPECT_FALSE(folder_.has("first/SUB.JBI"));
    EXPECT_EQ(run("call JobErase SUB.JBI"), 2);
    EXPECT_THAT(messages_, HasSubstr("JobDelete TEXT"));
}

TEST_F(VantrelCtlTest, WrongUsageIsTwo) {
    EXPECT_EQ(run(""), 2);
    EXPECT_EQ(run("list --robot LINE9"), 2);
    EXPECT_EQ(run("get OWN.JBI --overwrite ask"), 2);
    EXPECT_THAT(messages_, Not(IsEmpty()));
}

TEST_F(VantrelCtlTest, ALibraryThatCannotBeUsedIsTen) {
    folder_.write(libraryFileName(), "no library at all");
    EXPECT_EQ(run("list"), 10);
    EXPECT_EQ(run("doctor --json"), 10);
    EXPECT_THAT(output_, HasSubstr("\"check\":\"library\""));
    EXPECT_THAT(output_, HasSubstr("\"step\":\"library\",\"works\":false"));
}

TEST_F(VantrelCtlTest, NoConnectionIsTwelve) {
    simulated_.script("1=BscConnect 1+ fail 2040\n");
    EXPECT_EQ(run("list"), 12);
    EXPECT_EQ(run("get \"*\" --json"), 12);
    EXPECT_THAT(output_, HasSubstr("\"exit\":12"));
}

TEST_F(VantrelCtlTest, AFileThatIsCutOffIsAFailureAndLeavesNoHalfOne) {
    folder_.write("one/OWN.JBI", "old");
    simulated_.script("1=BscUpLoad 1 cut 5\n");
    EXPECT_EQ(run("get \"*.JBI\" --overwrite always --keep-going --json"), 3);
    EXPECT_THAT(output_, AllOf(HasSubstr("\"end\":\"failed\""), HasSubstr("\"end\":\"done\"")));
    EXPECT_EQ(folder_.read("one/OWN.JBI"), "old");
    EXPECT_EQ(folder_.read("one/SUB.JBI"), job("SUB", "first"));
}

TEST_F(VantrelCtlTest, AMachineIsOneProgramsUntilItEndsOrCrashes) {
    simulated_.script("1=@10.0.0.1 BscFindNext 1 slow 60000\n");
    auto first = ChildProcess::start(
        {.program = program_, .arguments = {"get", "OWN.JBI"}, .folder = folder_.path()});
    ASSERT_TRUE(first) << first.reason();
    const auto isHeld = [this] { // as others read it: a stream would want it for itself
        const auto entry = readFile(folder_.path("locks/hispeed-10.0.0.1.lock"));
        return entry && entry->find("process=") != std::string::npos;
    };
    while (!isHeld()) {
        static_cast<void>(first->read());
        ASSERT_FALSE(first->isAtEnd());
        std::this_thread::yield();
    }
    EXPECT_EQ(run("list"), 11);
    EXPECT_THAT(messages_, AllOf(HasSubstr("vantrelctl get"), HasSubstr(userName())));
    EXPECT_EQ(run("get OWN.JBI --json"), 11);
    EXPECT_THAT(output_, AllOf(HasSubstr("vantrelctl get"), HasSubstr("\"exit\":11")));
    EXPECT_EQ(run("list --robot LINE2"), 0);
    first->kill();
    EXPECT_EQ(first->exitCode(), std::nullopt);
    simulated_.script("");
    EXPECT_EQ(run("list"), 0);
    EXPECT_FALSE(folder_.has("locks/hispeed-10.0.0.1.lock"));
}

TEST_F(VantrelCtlTest, OutputIsUtf8InEveryLanguage) {
    EXPECT_EQ(run("doctor --lang Japanese"), 0);
    EXPECT_THAT(output_, HasSubstr("通信ライブラリ"));
    EXPECT_TRUE(isValidUtf8(output_));
}

// Code page 932 on the controller, UTF-8 here.
TEST_F(VantrelCtlTest, NamesBeyondAsciiComeAndGo) {
    folder_.write("first/溶接.JBI", job("\x97\x6E\x90\xDA", "first"));
    EXPECT_EQ(run("list"), 0);
    EXPECT_THAT(output_, HasSubstr("溶接.JBI"));
    EXPECT_EQ(run("get \"??.JBI\""), 0);
    EXPECT_TRUE(folder_.has("one/溶接.JBI"));
    std::filesystem::remove(std::filesystem::path(folder_.path("first")) / u8"溶接.JBI");
    EXPECT_EQ(run("put \"??.JBI\""), 0);
    EXPECT_TRUE(folder_.has("first/溶接.JBI"));
}

#ifndef _WIN32
TEST_F(VantrelCtlTest, OutputThatCannotBeWrittenIsToldAndIsNoSuccess) {
    const std::string command =
        "\"" + program_ + "\" robots >/dev/full 2>\"" + folder_.path("err") + "\"";
    EXPECT_EQ(tests::exitCodeOf(std::system(command.c_str())), 3);
    EXPECT_THAT(folder_.read("err"), Not(IsEmpty()));
}
#endif

} // namespace
} // namespace vantrel
