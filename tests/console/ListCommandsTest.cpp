#include "console/ConsoleProgramWorld.h"

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// List files in the folder of the first of two robots, which is in force.
class ListCommandsTest : public tests::ConsoleProgramWorld {
  protected:
    ListCommandsTest() {
        one_.variables[{0, 1}] = {5};
        one_.variables[{0, 2}] = {6};
        one_.variables[{1, 3}] = {-7};
    }

    double value(std::int16_t kind, std::int16_t number) {
        return one_.variables[{kind, number}].front();
    }
};

TEST_F(ListCommandsTest, ValuesComeIntoAListThatOnlyNamesItsVariables) {
    program_.write("one/V.lst", "B001=\r\n\r\nI003=\r\n");
    EXPECT_EQ(run({"get-vars", "V.lst", "--json"}), 0);
    EXPECT_EQ(program_.read("one/V.lst"), "B001=5\r\n\r\nI003=-7\r\n");
    EXPECT_EQ(values("variable", "end"), "done done ");
    EXPECT_EQ(values("variable", "name"), "B001= I003= ");
    EXPECT_EQ(values("end", "command"), "get-vars ");
}

TEST_F(ListCommandsTest, TheEndingOfAListsNameMayBeLeftOut) {
    program_.write("one/V.lst", "B001=\r\n");
    EXPECT_EQ(run({"vars-run", "V", "--receive"}), 0);
    EXPECT_EQ(program_.read("one/V.lst"), "B001=5\r\n");
    EXPECT_EQ(output_, "first\tB001=\treceived\n");
}

TEST_F(ListCommandsTest, ValuesThatAreThereAreKeptUnlessItIsSaidOtherwise) {
    const std::string old = "B001=1\r\nB002=6\r\n";
    program_.write("one/V.lst", old);
    EXPECT_EQ(run({"get-vars", "V.lst", "--json"}), 1);
    EXPECT_EQ(program_.read("one/V.lst"), old);
    EXPECT_EQ(values("variable", "end"), "skipped skipped ");
    EXPECT_THAT(values("variable", "reason"), HasSubstr("not replaced"));
    EXPECT_EQ(run({"get-vars", "V.lst", "--overwrite", "always"}), 0);
    EXPECT_EQ(program_.read("one/V.lst"), "B001=5\r\nB002=6\r\n");
}

TEST_F(ListCommandsTest, SomebodyWhoSitsThereIsAskedAboutValues) {
    program_.write("one/V.lst", "B001=1\r\n");
    EXPECT_EQ(run({"get-vars", "V.lst", "--overwrite", "ask"}), 2);
    world_.readLine = [] { return std::optional<std::string>("n"); };
    EXPECT_EQ(run({"get-vars", "V.lst", "--overwrite", "ask"}), 1);
    EXPECT_EQ(program_.read("one/V.lst"), "B001=1\r\n");
    world_.readLine = [] { return std::optional<std::string>("y"); };
    EXPECT_EQ(run({"get-vars", "V.lst", "--overwrite", "ask"}), 0);
    EXPECT_EQ(program_.read("one/V.lst"), "B001=5\r\n");
}

TEST_F(ListCommandsTest, UnlessAllValuesHaveComeTheListStays) {
    program_.write("one/V.lst", "B001=\r\nB002=\r\nI003=\r\n");
    library_.disturb({.function = "BscGetVarData", .call = 2, .code = 1500});
    EXPECT_EQ(run({"get-vars", "V.lst", "--json"}), 1);
    EXPECT_EQ(program_.read("one/V.lst"), "B001=\r\nB002=\r\nI003=\r\n");
    EXPECT_EQ(values("variable", "end"), "not-tried failed not-tried ");
    EXPECT_THAT(values("variable", "reason"), HasSubstr("BscGetVarData"));
}

TEST_F(ListCommandsTest, ARehearsalReadsValuesAndWritesNone) {
    program_.write("one/V.lst", "B001=\r\nB002=1\r\n");
    EXPECT_EQ(run({"get-vars", "V.lst", "--dry-run", "--json"}), 1);
    EXPECT_EQ(values("variable", "end"), "skipped skipped ");
    EXPECT_EQ(run({"get-vars", "V.lst", "--dry-run", "--json", "--overwrite", "always"}), 0);
    EXPECT_EQ(values("variable", "dry_run"), "true true ");
    library_.disturb({.function = "BscGetVarData", .call = 2, .code = 1500});
    EXPECT_EQ(run({"get-vars", "V.lst", "--dry-run", "--json"}), 1);
    EXPECT_EQ(values("variable", "end"), "not-tried failed ");
    EXPECT_EQ(program_.read("one/V.lst"), "B001=\r\nB002=1\r\n");
}

TEST_F(ListCommandsTest, SetsTheControllersVariables) {
    program_.write("one/V.lst", "B001=17\r\nI003=-4\r\n");
    EXPECT_EQ(run({"put-vars", "V.lst"}), 0);
    EXPECT_EQ(value(0, 1), 17);
    EXPECT_EQ(value(1, 3), -4);
    EXPECT_EQ(output_, "first\tB001=17\tsent\nfirst\tI003=-4\tsent\n");
}

TEST_F(ListCommandsTest, SendingVariablesStopsAtItsFirstFailureUnlessToldOtherwise) {
    program_.write("one/V.lst", "B001=17\r\nB002=18\r\nI003=19\r\n");
    library_.disturb({.function = "BscPutVarData", .call = 2, .code = 1510});
    EXPECT_EQ(run({"put-vars", "V.lst", "--json"}), 3);
    EXPECT_EQ(values("variable", "end"), "done failed not-tried ");
    EXPECT_EQ(value(1, 3), -7);
    library_.disturb({.function = "BscPutVarData", .call = 2, .code = 1510});
    EXPECT_EQ(run({"vars-run", "V.lst", "--send", "--keep-going", "--json"}), 3);
    EXPECT_EQ(values("variable", "end"), "done failed done ");
    EXPECT_EQ(value(0, 2), 6);
    EXPECT_EQ(value(1, 3), 19);
}

TEST_F(ListCommandsTest, ALineThatIsNoVariableFailsInARehearsalToo) {
    program_.write("one/V.lst", "B001=17\r\nnonsense\r\n");
    EXPECT_EQ(run({"put-vars", "V.lst", "--dry-run", "--json"}), 3);
    EXPECT_EQ(values("variable", "end"), "done failed ");
    EXPECT_EQ(library_.callCount(), 0);
    EXPECT_EQ(run({"put-vars", "V.lst", "--json"}), 3);
    EXPECT_EQ(values("variable", "end"), "done failed ");
}

TEST_F(ListCommandsTest, FetchesTheJobsOfAList) {
    program_.write("one/OWN.JBI", "old");
    program_.write("one/L.lst", "SUB1.JBI\r\nOWN.JBI\r\nNONE.JBI\r\nSUB2.JBI\r\n");
    EXPECT_EQ(run({"jobs-run", "L.lst", "--receive", "--json"}), 3);
    EXPECT_EQ(values("file", "end"), "done skipped failed not-tried ");
    EXPECT_EQ(program_.read("one/OWN.JBI"), "old");
    EXPECT_EQ(run({"jobs-run", "L.lst", "--receive", "--keep-going", "--overwrite", "always"}), 3);
    EXPECT_EQ(program_.read("one/OWN.JBI"), job("OWN", "first"));
    EXPECT_EQ(program_.read("one/SUB2.JBI"), job("SUB2", "first"));
}

TEST_F(ListCommandsTest, SendsTheJobsOfAListAndNoOther) {
    program_.write("one/NEW.JBI", job("NEW", "pc"));
    program_.write("one/OWN.JBI", job("OWN", "pc"));
    program_.write("one/TOOL.CND", "the PC's");
    program_.write("one/OTHER.JBI", job("OTHER", "pc"));
    one_.put("TOOL.CND", "the robot's");
    program_.write("one/L.lst", "TOOL.CND\r\nOWN.JBI\r\nNEW.JBI\r\n");
    EXPECT_EQ(run({"jobs-run", "L.lst", "--send", "--json"}), 3);
    EXPECT_EQ(values("file", "name"), "TOOL.CND OWN.JBI NEW.JBI ");
    EXPECT_EQ(values("file", "end"), "skipped skipped done ");
    EXPECT_EQ(one_.bytes("TOOL.CND"), "the robot's");
    EXPECT_EQ(run({"jobs-run", "L.lst", "--send", "--overwrite", "always"}), 0);
    EXPECT_EQ(one_.bytes("TOOL.CND"), "the PC's");
    EXPECT_EQ(one_.bytes("OWN.JBI"), job("OWN", "pc"));
    EXPECT_FALSE(one_.has("OTHER.JBI"));
}

TEST_F(ListCommandsTest, HalfAListIsSentOnlyToWhoeverWantsItSo) {
    program_.write("one/NEW.JBI", job("NEW", "pc"));
    program_.write("one/L.lst", "GONE.JBI\r\nNEW.JBI\r\n");
    EXPECT_EQ(run({"jobs-run", "L.lst", "--send", "--json"}), 1);
    EXPECT_EQ(values("file", "name"), "GONE.JBI NEW.JBI ");
    EXPECT_EQ(values("file", "end"), "failed not-tried ");
    EXPECT_EQ(library_.callCount(), 0);
    EXPECT_EQ(run({"jobs-run", "L.lst", "--send", "--keep-going", "--json"}), 3);
    EXPECT_EQ(values("file", "end"), "failed done ");
    EXPECT_EQ(one_.bytes("NEW.JBI"), job("NEW", "pc"));
}

TEST_F(ListCommandsTest, ARehearsalOfAJobListTouchesNothing) {
    program_.write("one/NEW.JBI", job("NEW", "pc"));
    program_.write("one/OWN.JBI", job("OWN", "pc"));
    program_.write("one/MINE.JBI", job("MINE", "pc"));
    program_.write("one/LocalJob.lst", "MINE\r\n");
    program_.write("one/L.lst", "MINE.JBI\r\nOWN.JBI\r\nNEW.JBI\r\n");
    const tests::FakeController before = one_;
    EXPECT_EQ(run({"jobs-run", "L.lst", "--send", "--dry-run", "--json"}), 3);
    EXPECT_EQ(values("file", "end"), "skipped skipped done ");
    EXPECT_TRUE(one_ == before);
    EXPECT_EQ(run({"jobs-run", "L.lst", "--receive", "--dry-run", "--json"}), 1);
    EXPECT_EQ(program_.read("one/OWN.JBI"), job("OWN", "pc"));
}

TEST_F(ListCommandsTest, AListThatCannotBeReadIsAFailureWithItsReason) {
    EXPECT_EQ(run({"jobs-run", "NONE", "--send", "--json"}), 1);
    EXPECT_EQ(values("file", "name"), "NONE.lst ");
    EXPECT_THAT(values("file", "reason"), Not(HasSubstr("not tried")));
    EXPECT_THAT(messages_, HasSubstr("NONE.lst"));
    EXPECT_EQ(run({"get-vars", "NONE.lst", "--json"}), 1);
    EXPECT_EQ(values("variable", "end"), "failed ");
}

TEST_F(ListCommandsTest, AnEmptyListIsAFailure) {
    program_.write("one/L.lst", "\r\n  \r\n");
    for (const char* direction : {"--send", "--receive"}) {
        EXPECT_EQ(run({"jobs-run", "L.lst", direction}), 1) << direction;
        EXPECT_THAT(output_, HasSubstr("nothing to transfer")) << direction;
        EXPECT_EQ(run({"vars-run", "L.lst", direction}), 1) << direction;
    }
    EXPECT_EQ(library_.callCount(), 0);
}

TEST_F(ListCommandsTest, AListLeavesTheFolderOfAnotherRobotOnlyWhenItWasNamed) {
    program_.write("two/V.lst", "B001=17\r\n");
    program_.write("robot.ini", robots_ + "[Robot]\r\nName=third\r\nIPaddr=10.0.0.1\r\nPath=\r\n");
    program_.write("Vantrel.ini", "[Vantrel]\r\nTransMode=16\r\nPath=two\r\n"
                                  "[Language Info]\r\nLanguage=English\r\nLangSelect=0\r\n");
    EXPECT_EQ(run({"put-vars", "V.lst", "--address", "10.0.0.1", "--json"}), 1);
    EXPECT_EQ(values("variable", "end"), "not-tried ");
    EXPECT_EQ(value(0, 1), 5);
    EXPECT_EQ(run({"put-vars", "V.lst", "--address", "10.0.0.1", "--folder", "two"}), 0);
    EXPECT_EQ(value(0, 1), 17);
}

TEST_F(ListCommandsTest, EachRobotHasTheListOfItsOwnFolder) {
    program_.write("one/V.lst", "B001=11\r\n");
    program_.write("two/V.lst", "B001=22\r\n");
    EXPECT_EQ(run({"put-vars", "V.lst", "--all-robots"}), 0);
    EXPECT_EQ(value(0, 1), 11);
    EXPECT_EQ((two_.variables[{0, 1}].front()), 22);
}

TEST_F(ListCommandsTest, AnInterruptionFinishesTheEntryUnderWayAndSaysWhatIsLeft) {
    program_.write("one/V.lst", "B001=11\r\nB002=12\r\n");
    int sent = 0;
    library_.onCall = [&sent](const std::string& function) {
        sent += function == "BscPutVarData" ? 1 : 0;
    };
    world_.isInterrupted = [&sent] { return sent > 0; };
    EXPECT_EQ(run({"put-vars", "V.lst", "--json", "--keep-going"}), 130);
    EXPECT_EQ(values("variable", "end"), "done not-tried ");
    EXPECT_EQ(value(0, 1), 11);
    EXPECT_EQ(value(0, 2), 6);
}

TEST_F(ListCommandsTest, AnInterruptionBeforeTheFirstLinkReachesNobody) {
    program_.write("one/L.lst", "OWN.JBI\r\n");
    world_.isInterrupted = [] { return true; };
    EXPECT_EQ(run({"jobs-run", "L.lst", "--receive", "--json"}), 130);
    EXPECT_EQ(values("file", "end"), "not-tried ");
    EXPECT_EQ(library_.callCount(), 0);
}

TEST_F(ListCommandsTest, WithoutALinkNothingIsTriedAgainAndAgain) {
    program_.write("one/V.lst", "B001=11\r\nB002=12\r\nI003=13\r\n");
    library_.disturb({.function = "BscConnect", .fromThereOn = true, .code = 2040});
    EXPECT_EQ(run({"put-vars", "V.lst", "--keep-going"}), 12);
    EXPECT_EQ(library_.callCount("BscConnect"), 1);
    EXPECT_THAT(messages_, Not(IsEmpty()));
}

} // namespace
} // namespace vantrel
