#include "console/ConsoleProgramWorld.h"
#include "link/SessionOperations.h"

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class OperationCallTest : public tests::ConsoleProgramWorld {
  protected:
    std::string line(const std::vector<std::string>& arguments) {
        EXPECT_EQ(run(arguments), 0) << messages_;
        return output_;
    }
};

TEST_F(OperationCallTest, SaysWhatAnOperationGives) {
    one_.variables[{0, 1}] = {5};
    EXPECT_EQ(line({"call", "VarUpLoad", "B001="}), "first\tVarUpLoad\tdone\tB001=5\n");
    EXPECT_EQ(line({"call", "JobListCount"}), "first\tJobListCount\tdone\t0\n");
    EXPECT_EQ(line({"call", "IPaddress"}), "first\tIPaddress\tdone\t10.0.0.1\n");
    EXPECT_THAT(line({"call", "ReadDirectory"}), HasSubstr("\tdone\tOWN.JBI\tSUB1.JBI\tSUB2.JBI"));
    EXPECT_EQ(line({"call", "JobListClear"}), "first\tJobListClear\tdone\n");
}

TEST_F(OperationCallTest, AnObjectHoldsArgumentsAndValues) {
    one_.variables[{0, 1}] = {5};
    EXPECT_EQ(run({"call", "VarUpLoad", "B001=", "--json"}), 0);
    EXPECT_THAT(output_,
                AllOf(HasSubstr("\"arguments\":[\"B001=\"]"), HasSubstr("\"values\":[\"B001=5\"]"),
                      HasSubstr("\"end\":\"done\""), HasSubstr("\"operation\":\"VarUpLoad\"")));
    EXPECT_EQ(values("end", "command"), "call ");
}

TEST_F(OperationCallTest, ReachesTheRobotThatWasNamed) {
    two_.variables[{0, 1}] = {9};
    EXPECT_EQ(line({"call", "VarUpLoad", "B001=", "--robot", "second"}),
              "second\tVarUpLoad\tdone\tB001=9\n");
    EXPECT_EQ(run({"call", "VarDownLoad", "B001=7", "--all-robots"}), 0);
    EXPECT_EQ((one_.variables[{0, 1}].front()), 7);
    EXPECT_EQ((two_.variables[{0, 1}].front()), 7);
}

TEST_F(OperationCallTest, AFailureHasItsReason) {
    library_.disturb({.function = "BscGetVarData", .code = 1500});
    EXPECT_EQ(run({"call", "VarUpLoad", "B001=", "--json"}), 1);
    EXPECT_EQ(values("call", "end"), "failed ");
    EXPECT_THAT(values("call", "reason"), HasSubstr("BscGetVarData"));
    library_.disturb({.function = "BscConnect", .code = 2040});
    EXPECT_EQ(run({"call", "ReadDirectory"}), 12);
    EXPECT_EQ(run({"call", "SetTansMode", "7"}), 1);
    EXPECT_EQ(output_, "first\tSetTansMode\tfailed\n");
}

TEST_F(OperationCallTest, WhatIsNotInTheTableIsWrongUsageWithTheTable) {
    EXPECT_EQ(run({"call", "Format"}), 2);
    for (const std::string& name : SessionOperations::names())
        EXPECT_THAT(messages_, HasSubstr("  " + name));
    EXPECT_THAT(messages_, AllOf(HasSubstr("Format: "), HasSubstr("JobUpLoad TEXT [FLAG]\n")));
    EXPECT_EQ(run({"call", "jobupload", "A.JBI"}), 2);
    EXPECT_EQ(run({"call", "JobUpLoad"}), 2);
    EXPECT_EQ(run({"call", "JobDelete", "A", "B"}), 2);
    EXPECT_EQ(run({"call", "SetTansMode", "fast", "--json"}), 2);
    EXPECT_EQ(values("end", "exit"), "2 ");
    EXPECT_EQ(run({"call"}), 2);
    EXPECT_EQ(library_.callCount(), 0);
    EXPECT_THAT(messages_, Not(IsEmpty()));
}

TEST_F(OperationCallTest, ARehearsalSaysWhatWouldBeCalled) {
    const tests::FakeController before = one_;
    EXPECT_EQ(line({"call", "JobDelete", "OWN.JBI", "--dry-run"}),
              "first\tJobDelete\twould be done\tOWN.JBI\n");
    EXPECT_EQ(library_.callCount(), 0);
    program_.write("one/OWN.JBI", job("OWN", "pc"));
    program_.write("one/NEW.JBI", job("NEW", "pc"));
    EXPECT_EQ(run({"call", "JobDownLoad", "OWN.JBI", "--dry-run", "--json"}), 1);
    EXPECT_EQ(values("call", "end"), "skipped ");
    EXPECT_EQ(run({"call", "JobDownLoad", "NEW.JBI", "--dry-run"}), 0);
    EXPECT_EQ(run({"call", "JobUpLoad", "OWN.JBI", "--dry-run"}), 1);
    EXPECT_EQ(run({"call", "JobUpLoad", "SUB1.JBI", "--dry-run"}), 0);
    EXPECT_TRUE(one_ == before);
    EXPECT_FALSE(program_.has("one/SUB1.JBI"));
}

TEST_F(OperationCallTest, WhatIsThereIsKeptUnlessItIsSaidOtherwise) {
    program_.write("one/OWN.JBI", job("OWN", "pc"));
    program_.write("one/TOOL.CND", "the PC's");
    one_.put("TOOL.CND", "the robot's");
    EXPECT_EQ(run({"call", "JobUpLoad", "OWN.JBI"}), 1);
    EXPECT_EQ(output_.find("first\tJobUpLoad\tskipped\t"), 0u);
    EXPECT_EQ(run({"call", "JobDownLoad", "OWN.JBI"}), 1);
    EXPECT_EQ(run({"call", "JobDownLoad", "TOOL.CND"}), 1);
    EXPECT_EQ(program_.read("one/OWN.JBI"), job("OWN", "pc"));
    EXPECT_EQ(one_.bytes("OWN.JBI"), job("OWN", "first"));
    EXPECT_EQ(one_.bytes("TOOL.CND"), "the robot's");
    EXPECT_EQ(run({"call", "JobDownLoad", "TOOL.CND", "--overwrite", "always"}), 0);
    EXPECT_EQ(one_.bytes("TOOL.CND"), "the PC's");
    EXPECT_EQ(run({"call", "JobDownLoad", "OWN.JBI", "--overwrite", "always"}), 0);
    EXPECT_EQ(one_.bytes("OWN.JBI"), job("OWN", "pc"));
}

TEST_F(OperationCallTest, SomebodyWhoSitsThereIsAsked) {
    program_.write("one/TOOL.CND", "the PC's");
    one_.put("TOOL.CND", "the robot's");
    EXPECT_EQ(run({"call", "JobDownLoad", "TOOL.CND", "--overwrite", "ask"}), 2);
    world_.readLine = [] { return std::optional<std::string>("n"); };
    EXPECT_EQ(run({"call", "JobDownLoad", "TOOL.CND", "--overwrite", "ask"}), 1);
    EXPECT_EQ(one_.bytes("TOOL.CND"), "the robot's");
    world_.readLine = [] { return std::optional<std::string>("y"); };
    EXPECT_EQ(run({"call", "JobDownLoad", "TOOL.CND", "--overwrite", "ask"}), 0);
    EXPECT_EQ(one_.bytes("TOOL.CND"), "the PC's");
}

// A new session's list is empty, so the file would be too.
TEST_F(OperationCallTest, AListFileThatIsThereIsNotReplacedUnasked) {
    program_.write("one/V.lst", "B001=5\r\n");
    EXPECT_EQ(run({"call", "WriteVarListFile", "V.lst"}), 1);
    EXPECT_EQ(program_.read("one/V.lst"), "B001=5\r\n");
    EXPECT_EQ(run({"call", "WriteVarListFile", "NEW.lst"}), 0);
    EXPECT_TRUE(program_.has("one/NEW.lst"));
}

TEST_F(OperationCallTest, AnOperationsOwnFlagReplacesNothingAgainstTheRule) {
    program_.write("one/OWN.JBI", job("OWN", "pc"));
    EXPECT_EQ(run({"call", "JobUpLoad", "OWN.JBI", "true"}), 2);
    EXPECT_EQ(run({"call", "JobUpLoad", "OWN.JBI", "0"}), 1);
    EXPECT_EQ(program_.read("one/OWN.JBI"), job("OWN", "pc"));
    EXPECT_EQ(run({"call", "JobUpLoad", "OWN.JBI", "1", "--overwrite", "always"}), 0);
    EXPECT_EQ(program_.read("one/OWN.JBI"), job("OWN", "first"));
}

TEST_F(OperationCallTest, AFileLeavesTheFolderOfAnotherRobotOnlyWhenItWasNamed) {
    program_.write("two/NEW.JBI", job("NEW", "pc"));
    program_.write("robot.ini", robots_ + "[Robot]\r\nName=third\r\nIPaddr=10.0.0.1\r\nPath=\r\n");
    program_.write("Vantrel.ini", "[Vantrel]\r\nTransMode=16\r\nPath=two\r\n"
                                  "[Language Info]\r\nLanguage=English\r\nLangSelect=0\r\n");
    EXPECT_EQ(run({"call", "JobDownLoad", "NEW.JBI", "--address", "10.0.0.1", "--json"}), 1);
    EXPECT_EQ(values("call", "end"), "not-tried ");
    EXPECT_FALSE(one_.has("NEW.JBI"));
    EXPECT_EQ(run({"call", "JobDownLoad", "NEW.JBI", "--address", "10.0.0.1", "--folder", "two"}),
              0);
    EXPECT_TRUE(one_.has("NEW.JBI"));
}

TEST_F(OperationCallTest, ANameOutsideTheFolderIsNoneOfIts) {
    program_.write("V.lst", "B001=5\r\n");
    EXPECT_EQ(run({"call", "WriteVarListFile", "../V.lst", "--json"}), 1);
    EXPECT_EQ(values("call", "end"), "failed ");
    EXPECT_EQ(run({"call", "WriteVarListFile", "../V.lst", "--overwrite", "always"}), 1);
    EXPECT_EQ(program_.read("V.lst"), "B001=5\r\n");
    EXPECT_EQ(run({"call", "JobDownLoad", "../V.lst", "--json"}), 1);
    EXPECT_EQ(values("call", "end"), "failed ");
}

TEST_F(OperationCallTest, AnInterruptionBeforeTheCallReachesNobody) {
    world_.isInterrupted = [] { return true; };
    EXPECT_EQ(run({"call", "JobDelete", "OWN.JBI", "--json"}), 130);
    EXPECT_EQ(values("call", "end"), "not-tried ");
    EXPECT_EQ(library_.callCount(), 0);
}

} // namespace
} // namespace vantrel
