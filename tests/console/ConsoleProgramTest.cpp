#include "console/ConsoleProgramWorld.h"
#include "link/MachineUse.h"
#include "platform/Environment.h"

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

using ConsoleProgramTest = tests::ConsoleProgramWorld;

TEST_F(ConsoleProgramTest, ListsTheRobotsWithoutReachingAny) {
    EXPECT_EQ(run({"robots"}), 0);
    EXPECT_THAT(output_, AllOf(HasSubstr("first\t10.0.0.1\t"), HasSubstr("second\t10.0.0.2\t")));
    EXPECT_EQ(library_.callCount(), 0);
}

TEST_F(ConsoleProgramTest, ChecksEachRobot) {
    library_.disturb({.function = "BscConnect", .code = 2040});
    EXPECT_EQ(run({"robots", "--check", "--json"}), 3);
    EXPECT_EQ(values("robot", "reached"), "false true ");
    EXPECT_THAT(values("robot", "reason"), HasSubstr("2040"));
    EXPECT_EQ(values("end", "exit"), "3 ");
}

TEST_F(ConsoleProgramTest, ListsTheFilesOfTheRobotInForce) {
    EXPECT_EQ(run({"list"}), 0);
    EXPECT_THAT(output_, AllOf(HasSubstr("OWN.JBI\n"), HasSubstr("SUB1.JBI\n")));
    EXPECT_THAT(messages_, IsEmpty());
}

TEST_F(ConsoleProgramTest, ListsSeveralRobotsByName) {
    EXPECT_EQ(run({"list", "--all-robots"}), 0);
    EXPECT_THAT(output_, AllOf(HasSubstr("first\tOWN.JBI\n"), HasSubstr("second\tOWN.JBI\n")));
}

TEST_F(ConsoleProgramTest, ARobotThatCannotBeReachedIsNoConnection) {
    EXPECT_EQ(run({"list", "--address", "10.0.0.9", "--json"}), 12);
    EXPECT_EQ(values("robot-failed", "robot"), "10.0.0.9 ");
    EXPECT_EQ(values("end", "exit"), "12 ");
    EXPECT_THAT(messages_, HasSubstr("10.0.0.9"));
}

TEST_F(ConsoleProgramTest, AMachineThatAnotherProgramWorksWithIsInUse) {
    MachineUse others(program_.path(), "Vantrel", "", false);
    const MachineUse::Command command(&others);
    others.take({TransferMode::HispeedLink, 1, "10.0.0.1"});
    EXPECT_EQ(run({"list", "--json"}), 11);
    EXPECT_THAT(values("robot-failed", "reason"), HasSubstr("10.0.0.1 is in use by Vantrel"));
    EXPECT_EQ(run({"get", "OWN.JBI", "SUB1.JBI"}), 11);
    EXPECT_THAT(output_, HasSubstr("10.0.0.1 is in use by Vantrel"));
    EXPECT_EQ(run({"doctor", "--robot", "first"}), 11);
    program_.write("one/V.lst", "B001=5\r\nB002=6\r\n");
    EXPECT_EQ(run({"put-vars", "V.lst", "--keep-going"}), 11);
    EXPECT_EQ(run({"get-vars", "V.lst", "--overwrite", "always"}), 11);
    EXPECT_EQ(program_.read("one/V.lst"), "B001=5\r\nB002=6\r\n");
    program_.write("one/L.lst", "SUB1.JBI\r\n");
    EXPECT_EQ(run({"jobs-run", "L.lst", "--receive"}), 11);
    EXPECT_EQ(run({"call", "JobDelete", "OWN.JBI"}), 11);
    EXPECT_THAT(output_, HasSubstr("10.0.0.1 is in use by Vantrel"));
    EXPECT_EQ(library_.callCount(), 0);
    EXPECT_EQ(run({"list", "--all-robots"}), 3) << "the other robot is free";
}

TEST_F(ConsoleProgramTest, WhereNobodyCanTellWhetherAMachineIsInUseNothingIsDone) {
    program_.write("locks", "no folder");
    EXPECT_EQ(run({"list"}), 1);
    EXPECT_THAT(messages_, HasSubstr(program_.path("locks")));
    EXPECT_EQ(library_.callCount(), 0);
}

TEST_F(ConsoleProgramTest, AnAddressThatIsNotSetIsNoConnection) {
    program_.write("robot.ini", "[Robot]\r\nName=first\r\nIPaddr=0.0.0.0\r\nPath=one\r\n");
    EXPECT_EQ(run({"list"}), 12);
    EXPECT_THAT(messages_, Not(IsEmpty()));
}

TEST_F(ConsoleProgramTest, FetchesIntoTheRobotsOwnFolder) {
    EXPECT_EQ(run({"get", "sub*.jbi", "--robot", "first"}), 0);
    EXPECT_EQ(program_.read("one/SUB1.JBI"), job("SUB1", "first"));
    EXPECT_EQ(program_.read("one/SUB2.JBI"), job("SUB2", "first"));
    EXPECT_FALSE(program_.has("one/OWN.JBI"));
    EXPECT_EQ(output_, "first\tSUB1.JBI\treceived\nfirst\tSUB2.JBI\treceived\n");
}

TEST_F(ConsoleProgramTest, EachOfSeveralRobotsHasItsOwnFolder) {
    EXPECT_EQ(run({"get", "OWN.JBI", "--all-robots"}), 0);
    EXPECT_EQ(program_.read("one/OWN.JBI"), job("OWN", "first"));
    EXPECT_EQ(program_.read("two/OWN.JBI"), job("OWN", "second"));
}

TEST_F(ConsoleProgramTest, WhatIsThereIsKeptUnlessItIsSaidOtherwise) {
    program_.write("one/OWN.JBI", "old");
    EXPECT_EQ(run({"get", "OWN.JBI", "SUB1.JBI", "--json"}), 3);
    EXPECT_EQ(program_.read("one/OWN.JBI"), "old");
    EXPECT_EQ(values("file", "end"), "skipped done ");
    EXPECT_THAT(values("file", "reason"), HasSubstr("not replaced"));
    EXPECT_EQ(run({"get", "OWN.JBI"}), 1);
    EXPECT_EQ(run({"get", "OWN.JBI", "--overwrite", "always"}), 0);
    EXPECT_EQ(program_.read("one/OWN.JBI"), job("OWN", "first"));
}

TEST_F(ConsoleProgramTest, SomebodyWhoSitsThereIsAsked) {
    program_.write("one/OWN.JBI", "old");
    EXPECT_EQ(run({"get", "OWN.JBI", "--overwrite", "ask"}), 2);
    world_.readLine = [] { return std::optional<std::string>("y"); };
    EXPECT_EQ(run({"get", "OWN.JBI", "--overwrite", "ask"}), 0);
    EXPECT_EQ(program_.read("one/OWN.JBI"), job("OWN", "first"));
}

TEST_F(ConsoleProgramTest, SendsFromTheRobotsOwnFolder) {
    program_.write("one/NEW.JBI", job("NEW", "pc"));
    program_.write("two/OTHER.JBI", job("OTHER", "pc"));
    EXPECT_EQ(run({"put", "*.JBI"}), 0);
    EXPECT_EQ(one_.bytes("NEW.JBI"), job("NEW", "pc"));
    EXPECT_FALSE(one_.has("OTHER.JBI") || two_.has("NEW.JBI"));
}

TEST_F(ConsoleProgramTest, AJobThatIsThereIsNotReplacedUnasked) {
    program_.write("one/OWN.JBI", job("OWN", "pc"));
    EXPECT_EQ(run({"put", "OWN.JBI"}), 1);
    EXPECT_EQ(one_.bytes("OWN.JBI"), job("OWN", "first"));
    EXPECT_EQ(run({"put", "OWN.JBI", "--overwrite", "always"}), 0);
    EXPECT_EQ(one_.bytes("OWN.JBI"), job("OWN", "pc"));
}

// The library replaces a data file without a question.
TEST_F(ConsoleProgramTest, ADataFileThatIsThereIsNotReplacedUnasked) {
    one_.put("TOOL.CND", "the robot's");
    program_.write("one/TOOL.CND", "the PC's");
    EXPECT_EQ(run({"put", "TOOL.CND"}), 1);
    EXPECT_EQ(one_.bytes("TOOL.CND"), "the robot's");
    world_.readLine = [] { return std::optional<std::string>("n"); };
    EXPECT_EQ(run({"put", "TOOL.CND", "--overwrite", "ask"}), 1);
    EXPECT_EQ(one_.bytes("TOOL.CND"), "the robot's");
    EXPECT_EQ(run({"put", "TOOL.CND", "--overwrite", "always"}), 0);
    EXPECT_EQ(one_.bytes("TOOL.CND"), "the PC's");
}

TEST_F(ConsoleProgramTest, TheFolderOfAnotherRobotIsLeftOnlyWhenItWasNamed) {
    program_.write("two/NEW.JBI", job("NEW", "pc"));
    program_.write("robot.ini", robots_ + "[Robot]\r\nName=third\r\nIPaddr=10.0.0.1\r\nPath=\r\n");
    program_.write("Vantrel.ini", "[Vantrel]\r\nTransMode=16\r\nPath=two\r\n"
                                  "[Language Info]\r\nLanguage=English\r\nLangSelect=0\r\n");
    EXPECT_EQ(run({"put", "NEW.JBI", "--address", "10.0.0.1"}), 1);
    EXPECT_FALSE(one_.has("NEW.JBI"));
    EXPECT_THAT(output_, HasSubstr("not tried\t"));
    EXPECT_EQ(run({"put", "NEW.JBI", "--address", "10.0.0.1", "--folder", "two"}), 0);
    EXPECT_TRUE(one_.has("NEW.JBI"));
}

TEST_F(ConsoleProgramTest, ACopyStopsAtItsFirstFailure) {
    library_.disturb({.function = "BscUpLoad", .code = 1000});
    EXPECT_EQ(run({"get", "*.JBI", "--json"}), 1);
    EXPECT_EQ(values("file", "end"), "failed not-tried not-tried ");
    EXPECT_THAT(values("file", "reason"), HasSubstr("BscUpLoad"));
}

TEST_F(ConsoleProgramTest, ACopyGoesOnAfterAFailureWhenItIsToldTo) {
    library_.disturb({.function = "BscUpLoad", .code = 1000});
    EXPECT_EQ(run({"get", "*.JBI", "--keep-going", "--json"}), 3);
    EXPECT_EQ(values("file", "end"), "failed done done ");
    EXPECT_EQ(values("file", "name"), "OWN.JBI SUB1.JBI SUB2.JBI ");
    EXPECT_TRUE(program_.has("one/SUB2.JBI"));
}

TEST_F(ConsoleProgramTest, WithoutALinkNothingIsTriedAgainAndAgain) {
    library_.disturb({.function = "BscConnect", .call = 2, .fromThereOn = true, .code = 2040});
    EXPECT_EQ(run({"get", "*.JBI", "--keep-going"}), 12);
    EXPECT_LE(library_.callCount("BscConnect"), 4);
}

TEST_F(ConsoleProgramTest, DeletesUnaskedWhatWasNamedAndNothingElse) {
    EXPECT_EQ(run({"delete", "sub?.jbi"}), 0);
    EXPECT_FALSE(one_.has("SUB1.JBI") || one_.has("SUB2.JBI"));
    EXPECT_TRUE(one_.has("OWN.JBI"));
    EXPECT_TRUE(two_.has("OWN.JBI"));
}

TEST_F(ConsoleProgramTest, DeletingStopsAtItsFirstFailureUnlessToldOtherwise) {
    library_.disturb({.function = "BscDeleteJob", .code = 1210});
    EXPECT_EQ(run({"delete", "*.JBI", "--json"}), 1);
    EXPECT_EQ(values("file", "end"), "failed not-tried not-tried ");
    EXPECT_TRUE(one_.has("SUB1.JBI"));
    library_.disturb({.function = "BscDeleteJob", .code = 1210});
    EXPECT_EQ(run({"delete", "*.JBI", "--keep-going", "--json"}), 3);
    EXPECT_EQ(values("file", "end"), "failed done done ");
}

TEST_F(ConsoleProgramTest, ANameThatNoFileHasIsAFailureOfItsOwn) {
    EXPECT_EQ(run({"get", "NONE.JBI", "--json"}), 1);
    EXPECT_EQ(values("file", "end"), "failed ");
    EXPECT_EQ(run({"get", "NONE.JBI", "OWN.JBI", "--json"}), 3);
    EXPECT_EQ(values("file", "name"), "OWN.JBI NONE.JBI ");
    EXPECT_EQ(run({"delete", "X*"}), 1);
    EXPECT_EQ(run({"put", "X*"}), 1);
}

TEST_F(ConsoleProgramTest, ARehearsalTouchesNothing) {
    program_.write("one/OWN.JBI", "old");
    program_.write("one/NEW.JBI", job("NEW", "pc"));
    one_.put("TOOL.CND", "the robot's");
    program_.write("one/TOOL.CND", "the PC's");
    const tests::FakeController before = one_;
    EXPECT_EQ(run({"get", "*.JBI", "--dry-run", "--json"}), 3);
    EXPECT_EQ(values("file", "end"), "skipped done done ");
    EXPECT_EQ(values("file", "dry_run"), "true true true ");
    EXPECT_FALSE(program_.has("one/SUB1.JBI"));
    EXPECT_EQ(run({"put", "NEW.JBI", "OWN.JBI", "TOOL.CND", "--dry-run", "--json"}), 3);
    EXPECT_EQ(values("file", "name"), "TOOL.CND NEW.JBI OWN.JBI ");
    EXPECT_EQ(values("file", "end"), "skipped done skipped ");
    EXPECT_EQ(run({"delete", "*", "--dry-run"}), 0);
    EXPECT_TRUE(one_ == before);
    EXPECT_EQ(program_.read("one/OWN.JBI"), "old");
}

TEST_F(ConsoleProgramTest, ARehearsalFindsAJobByTheNameInsideTheFile) {
    program_.write("one/OTHER.JBI", job("OWN", "pc"));
    EXPECT_EQ(run({"put", "OTHER.JBI", "--dry-run"}), 1);
    EXPECT_EQ(run({"put", "OTHER.JBI"}), 1);
    EXPECT_EQ(one_.bytes("OWN.JBI"), job("OWN", "first"));
}

TEST_F(ConsoleProgramTest, AnInterruptionFinishesTheFileUnderWayAndSaysWhatIsLeft) {
    int uploads = 0;
    library_.onCall = [&uploads](const std::string& function) {
        uploads += function == "BscUpLoad" ? 1 : 0;
    };
    world_.isInterrupted = [&uploads] { return uploads > 0; };
    EXPECT_EQ(run({"get", "*.JBI", "--json", "--all-robots"}), 130);
    EXPECT_EQ(values("file", "end"), "done not-tried not-tried not-tried ");
    EXPECT_EQ(program_.read("one/OWN.JBI"), job("OWN", "first"));
    EXPECT_EQ(library_.openLinks(), 0);
}

TEST_F(ConsoleProgramTest, AnInterruptionBeforeTheFirstLinkReachesNobody) {
    world_.isInterrupted = [] { return true; };
    EXPECT_EQ(run({"delete", "*.JBI"}), 130);
    EXPECT_EQ(run({"list"}), 130);
    EXPECT_EQ(library_.callCount(), 0);
}

TEST_F(ConsoleProgramTest, NeitherSettingsNorRobotsAreWritten) {
    EXPECT_EQ(run({"get", "OWN.JBI", "--robot", "second", "--mode", "hispeed"}), 0);
    EXPECT_EQ(program_.read("Vantrel.ini"), settings_);
    EXPECT_EQ(program_.read("robot.ini"), robots_);
    std::filesystem::remove(program_.path("robot.ini"));
    std::filesystem::remove(program_.path("Vantrel.ini"));
    run({"doctor"});
    EXPECT_FALSE(program_.has("robot.ini") || program_.has("Vantrel.ini"));
}

TEST_F(ConsoleProgramTest, TextsAreInTheLanguageThatWasAskedFor) {
    program_.write("one/OWN.JBI", "old");
    EXPECT_EQ(run({"get", "OWN.JBI", "--lang", "Japanese", "--json"}), 1);
    EXPECT_THAT(output_,
                AllOf(HasSubstr("上書きしませんでした"), HasSubstr("\"end\":\"skipped\"")));
    EXPECT_EQ(run({"get", "OWN.JBI", "--lang", "Klingon"}), 2);
    EXPECT_THAT(messages_, HasSubstr("Klingon.lng"));
}

TEST_F(ConsoleProgramTest, TheSettingsLanguageHoldsEvenWhereTheWindowProgramAsksForOne) {
    program_.write("Vantrel.ini", "[Language Info]\r\nLanguage=Japanese\r\nLangSelect=1\r\n");
    EXPECT_EQ(run({"list", "--robot", "nobody", "--mode", "hispeed"}), 2);
    EXPECT_THAT(messages_, HasSubstr("登録されていません"));
}

TEST_F(ConsoleProgramTest, WithoutATextNothingIsDone) {
    std::filesystem::remove(program_.path("English.lng"));
    std::filesystem::remove(program_.path("Japanese.lng"));
    EXPECT_EQ(run({"list", "--json"}), 1);
    EXPECT_EQ(values("end", "exit"), "1 ");
    EXPECT_EQ(library_.callCount(), 0);
    EXPECT_NE(run({"doctor", "--json"}), 0);
    EXPECT_THAT(values("check", "works"), HasSubstr("false"));
}

TEST_F(ConsoleProgramTest, WrongUsageIsAnObjectToo) {
    EXPECT_EQ(run({"format", "--json"}), 2);
    EXPECT_EQ(values("end", "exit"), "2 ");
    EXPECT_THAT(values("message", "text"), Not(IsEmpty()));
    EXPECT_EQ(run({"list", "--robot", "nobody", "--json"}), 2);
    EXPECT_EQ(values("end", "exit"), "2 ");
}

TEST_F(ConsoleProgramTest, HelpIsOutput) {
    EXPECT_EQ(run({"get", "--help"}), 0);
    EXPECT_THAT(output_, HasSubstr("--overwrite"));
    EXPECT_THAT(messages_, IsEmpty());
}

TEST_F(ConsoleProgramTest, TheDoctorNamesWhatDoesNotWorkAndWhatToDo) {
    EXPECT_EQ(run({"doctor", "--json"}), 0);
    std::filesystem::remove(program_.path("FileTable.tbl"));
    library_.disturb({.function = "BscConnect", .code = 2040});
    EXPECT_EQ(run({"doctor"}), 3);
    EXPECT_THAT(output_, AllOf(HasSubstr("File table\t"), HasSubstr("does not work\t"),
                               HasSubstr("Check that the controller is on")));
    library_.disturb({.function = "BscConnect", .fromThereOn = true, .code = 2040});
    EXPECT_EQ(run({"doctor"}), 12);
}

TEST_F(ConsoleProgramTest, TheDoctorTestsEachConnectionStepByStep) {
    EXPECT_EQ(run({"doctor"}), 0);
    EXPECT_THAT(output_, HasSubstr("first\tCommunication library\tOK\n"
                                   "first\tAddress or port\tOK\n"
                                   "first\tOpen the link\tOK\n"
                                   "first\tAsk the controller\tOK\n"
                                   "first\tClose the link\tOK\n"));
    EXPECT_EQ(run({"doctor", "--robot", "second", "--json"}), 0);
    EXPECT_EQ(values("step", "step"), "library place link answer close ");
    EXPECT_EQ(values("step", "robot"), "second second second second second ");
    EXPECT_EQ(values("step", "works"), "true true true true true ");
}

TEST_F(ConsoleProgramTest, TheDoctorSaysAtWhichStepItEnds) {
    library_.disturb({.function = "BscConnect", .code = 2040});
    EXPECT_EQ(run({"doctor", "--robot", "first", "--json"}), 12);
    EXPECT_EQ(values("step", "works"), "true true false false false ");
    EXPECT_THAT(values("step", "detail"), AllOf(HasSubstr("BscConnect"), HasSubstr("not tried")));
    EXPECT_THAT(values("check", "detail"), HasSubstr("Open the link: failed"));
    library_.disturb({.function = "BscFindFirst", .code = 1000});
    EXPECT_EQ(run({"doctor", "--robot", "first", "--json"}), 1);
    EXPECT_EQ(values("step", "works"), "true true true false true ");
    program_.write("robot.ini", "[Robot]\r\nName=first\r\nIPaddr=0.0.0.0\r\nPath=one\r\n");
    EXPECT_EQ(run({"doctor", "--json"}), 12);
    EXPECT_EQ(values("step", "works"), "true false false false false ");
    EXPECT_EQ(library_.callCount(), 0);
}

TEST_F(ConsoleProgramTest, WithoutAUsableLibraryNoRobotIsReached) {
    world_.library = nullptr;
    program_.write(libraryFileName(), "no library at all");
    EXPECT_EQ(run({"list"}), 10);
    EXPECT_EQ(run({"get", "*"}), 10);
    EXPECT_EQ(run({"doctor", "--json"}), 10);
    EXPECT_THAT(values("check", "check"), HasSubstr("library"));
}

TEST_F(ConsoleProgramTest, AnErrorThatNobodyForesawHasAnEndOfItsOwn) {
    library_.onCall = [](const std::string& function) {
        if (function == "BscUpLoad")
            throw std::runtime_error("what nobody foresaw");
    };
    EXPECT_EQ(run({"get", "OWN.JBI", "--json"}), 70);
    EXPECT_EQ(values("end", "exit"), "70 ");
    EXPECT_EQ(values("end", "command"), "get ");
    EXPECT_EQ(messages_, "vantrelctl: what nobody foresaw\n");
}

TEST_F(ConsoleProgramTest, NamesFromAControllerShowNoControlCharacters) {
    one_.put("A\x1B[2J.JBI", job("A", "x"));
    EXPECT_EQ(run({"list"}), 0);
    EXPECT_THAT(output_, Not(HasSubstr("\x1B")));
    EXPECT_EQ(run({"get", "*", "--keep-going", "--json"}), 3);
    EXPECT_TRUE(isValidUtf8(output_));
}

} // namespace
} // namespace vantrel
