#include "link/SessionOperations.h"

#include "SessionWorld.h"

#include <limits>

namespace vantrel {
namespace {

using testing::ElementsAre;
using tests::SessionWorld;
using Text = std::string;

struct SessionOperationsTest : testing::Test {
    SessionWorld world;
    SessionOperations operations{*world.session};
    std::vector<SessionValue> arguments;

    SessionValue call(std::string_view name, std::vector<SessionValue> given = {}) {
        arguments = std::move(given);
        auto result = operations.call(name, arguments);
        EXPECT_TRUE(result) << name << ": " << (result ? "" : result.reason());
        return result ? *result : SessionValue();
    }
    bool fails(std::string_view name, std::vector<SessionValue> given = {}) {
        return !operations.call(name, given);
    }
};

TEST_F(SessionOperationsTest, WithoutItsArgumentNothingIsOverwritten) {
    const std::string mine = SessionWorld::job("WELD", "MINE");
    world.pc.write("WELD.JBI", mine);
    world.controller().put("WELD.JBI", SessionWorld::job("WELD"));
    world.question.answers = {Answer::No, Answer::No};
    EXPECT_EQ(call("JobUpLoad", {Text("WELD.JBI")}), SessionValue(0.0));
    EXPECT_EQ(call("JobDownLoad", {Text("WELD.JBI")}), SessionValue(0.0));
    EXPECT_EQ(world.question.questions.size(), 2u);
    EXPECT_EQ(world.pc.read("WELD.JBI"), mine);
    EXPECT_EQ(world.controller().bytes("WELD.JBI"), SessionWorld::job("WELD"));
}

TEST_F(SessionOperationsTest, NamesAreExactlyTheInterfaceInItsOrder) {
    EXPECT_THAT(
        SessionOperations::names(),
        ElementsAre("port", "Baudrate", "parity", "DataLen", "StopBit", "path", "DisplayMonitor",
                    "MonitorTitle", "IPaddress", "JobListCount", "VarListCount", "ErrorCode",
                    "ErrorFunction", "ErrorIndex", "GetCTRLError", "JobList", "VarList",
                    "ReadDirectory", "JobDownLoad", "JobDelete", "JobUpLoad", "JobListDownLoad",
                    "JobListUpLoad", "AddJobList", "JobListClear", "RemoveJobList",
                    "SetJobListFile", "SetVarListFile", "ReadVarListFile", "VarListClear",
                    "AddVarList", "RemoveVarList", "SetLangageMode", "VarDownLoad", "VarUpLoad",
                    "VarListDownLoad", "VarListUpLoad", "WriteVarListFile", "Quit", "SetTansMode"));
}

/// As it is shown: "JobUpLoad text [flag]".
std::string formOf(std::string_view name) {
    for (const SessionForm& form : SessionOperations::forms()) {
        if (form.name != name)
            continue;
        std::string text = form.saysSuccess ? "ok " : "";
        for (const auto& [kind, isOptional, isGivenBack] : form.parameters)
            text += std::string(isGivenBack ? "&" : "") + "tnf"[static_cast<int>(kind)] +
                    (isOptional ? "? " : " ");
        return text;
    }
    return "unknown";
}

TEST_F(SessionOperationsTest, FormsSayWhatIsTakenAndGiven) {
    EXPECT_EQ(formOf("port"), "n? ");
    EXPECT_EQ(formOf("path"), "t? ");
    EXPECT_EQ(formOf("DisplayMonitor"), "f? ");
    EXPECT_EQ(formOf("JobListCount"), "");
    EXPECT_EQ(formOf("GetCTRLError"), "n ");
    EXPECT_EQ(formOf("ReadDirectory"), "ok ");
    EXPECT_EQ(formOf("JobDownLoad"), "ok t f? ");
    EXPECT_EQ(formOf("VarUpLoad"), "ok &t ");
    EXPECT_EQ(formOf("VarDownLoad"), "ok t ");
    EXPECT_EQ(formOf("AddJobList"), "t ");
    EXPECT_EQ(formOf("SetTansMode"), "ok n ");
}

TEST_F(SessionOperationsTest, OnlyJustTheRightArgumentsAreTheRightOnes) {
    const auto isRight = [](std::string_view name, const std::vector<SessionValue>& given) {
        return static_cast<bool>(SessionOperations::check(name, given));
    };
    EXPECT_TRUE(isRight("JobUpLoad", {Text("A.JBI")}));
    EXPECT_TRUE(isRight("JobUpLoad", {Text("A.JBI"), Text("true")}));
    EXPECT_FALSE(isRight("JobUpLoad", {Text("A.JBI"), Text("maybe")}));
    EXPECT_FALSE(isRight("JobUpLoad", {Text("A.JBI"), Text("1"), Text("1")}));
    EXPECT_FALSE(isRight("JobUpLoad", {}));
    EXPECT_TRUE(isRight("ReadDirectory", {}));
    EXPECT_FALSE(isRight("ReadDirectory", {Text("x")}));
    EXPECT_TRUE(isRight("SetTansMode", {Text("1")}));
    EXPECT_FALSE(isRight("SetTansMode", {Text("40000")}));
    EXPECT_FALSE(isRight("SetTansMode", {Text("one")}));
    EXPECT_TRUE(isRight("port", {}));
    EXPECT_TRUE(isRight("port", {Text("3")}));
    EXPECT_FALSE(isRight("port", {Text("COM3")}));
    EXPECT_FALSE(isRight("jobupload", {Text("A.JBI")}));
    EXPECT_EQ(world.library.callCount(), 0);
}

TEST_F(SessionOperationsTest, PropertiesAreReadAndSetByName) {
    EXPECT_TRUE(operations.set("port", 3.0));
    EXPECT_TRUE(operations.set("Baudrate", Text("19200")));
    EXPECT_TRUE(operations.set("IPaddress", Text("10.0.0.1")));
    EXPECT_TRUE(operations.set("DisplayMonitor", Text("False")));
    EXPECT_EQ(world.session->port, 3);
    EXPECT_EQ(world.session->Baudrate, 19200);
    EXPECT_EQ(world.session->IPaddress, "10.0.0.1");
    EXPECT_FALSE(world.session->DisplayMonitor);
    EXPECT_EQ(*operations.get("port"), SessionValue(3.0));
    EXPECT_EQ(*operations.get("DisplayMonitor"), SessionValue(0.0));
    EXPECT_EQ(*operations.get("MonitorTitle"), SessionValue(Text("Snappy")));
}

TEST_F(SessionOperationsTest, APropertysNameCanBeCalledToo) {
    EXPECT_EQ(call("StopBit", {2.0}), SessionValue());
    EXPECT_EQ(call("StopBit"), SessionValue(2.0));
}

TEST_F(SessionOperationsTest, ValuesThatDoNotConvertChangeNothing) {
    EXPECT_FALSE(operations.set("port", Text("COM1")));
    EXPECT_FALSE(operations.set("port", 70000.0));
    EXPECT_FALSE(operations.set("path", SessionValue()));
    EXPECT_TRUE(fails("port", {Text("COM1")}));
    EXPECT_EQ(world.session->port, 1);
}

TEST_F(SessionOperationsTest, NoPropertyIsSetToNothing) {
    for (const char* name : {"port", "Baudrate", "parity", "DataLen", "StopBit", "path",
                             "DisplayMonitor", "MonitorTitle", "IPaddress"}) {
        const auto before = operations.get(name);
        ASSERT_TRUE(before) << name;
        EXPECT_FALSE(operations.set(name, SessionValue())) << name;
        EXPECT_TRUE(fails(name, {SessionValue()})) << name;
        EXPECT_EQ(*operations.get(name), *before) << name;
    }
}

TEST_F(SessionOperationsTest, NumbersAreNotSetToWhatIsNoNumber) {
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    for (const char* name :
         {"port", "Baudrate", "parity", "DataLen", "StopBit", "DisplayMonitor"}) {
        const auto before = operations.get(name);
        ASSERT_TRUE(before) << name;
        for (const SessionValue& value :
             {SessionValue(Text()), SessionValue(Text("x")), SessionValue(notANumber)})
            EXPECT_FALSE(operations.set(name, value)) << name;
        EXPECT_EQ(*operations.get(name), *before) << name;
    }
}

TEST_F(SessionOperationsTest, EachDirectoryEntryStaysOneLine) {
    world.controller().put("A\nB\r.JBI", "x");
    world.controller().put("C\x7F\t.JBI", "x");
    EXPECT_EQ(call("ReadDirectory"), SessionValue(1.0));
    EXPECT_THAT(arguments,
                ElementsAre(SessionValue(Text("A\uFFFDB\uFFFD.JBI\nC\uFFFD\uFFFD.JBI\n"))));
}

TEST_F(SessionOperationsTest, UnknownNamesFail) {
    EXPECT_TRUE(fails("Nothing"));
    EXPECT_TRUE(fails("Nothing", {1.0}));
    EXPECT_TRUE(fails(""));
    EXPECT_TRUE(fails("SetTransMode"));
    EXPECT_FALSE(operations.get("JobDelete"));
    EXPECT_FALSE(operations.set("JobDelete", 1.0));
}

TEST_F(SessionOperationsTest, MissingOrWrongArgumentsFailWithoutACall) {
    EXPECT_TRUE(fails("JobDelete"));
    EXPECT_TRUE(fails("JobList"));
    EXPECT_TRUE(fails("JobList", {Text("first")}));
    EXPECT_TRUE(fails("SetTansMode", {70000.0}));
    EXPECT_TRUE(fails("VarUpLoad"));
    EXPECT_TRUE(fails("JobDownLoad", {Text("A.JBI"), Text("perhaps")}));
    EXPECT_EQ(world.library.callCount(), 0);
}

TEST_F(SessionOperationsTest, ListsAreKeptByName) {
    call("AddJobList", {Text("A.JBI")});
    call("AddJobList", {12.0});
    call("AddVarList", {Text("B1=5")});
    EXPECT_EQ(call("JobListCount"), SessionValue(2.0));
    EXPECT_EQ(call("JobList", {Text("1")}), SessionValue(Text("12")));
    call("RemoveJobList", {0.0});
    EXPECT_EQ(call("JobList", {0.0}), SessionValue(Text("12")));
    EXPECT_EQ(call("VarList", {0.0}), SessionValue(Text("B1=5")));
    call("RemoveVarList", {0.0});
    EXPECT_EQ(call("VarListCount"), SessionValue(0.0));
    call("JobListClear");
    call("VarListClear");
    EXPECT_EQ(call("JobListCount"), SessionValue(0.0));
}

TEST_F(SessionOperationsTest, JobsAreTransferredByName) {
    world.pc.write("WELD.JBI", SessionWorld::job("WELD"));
    EXPECT_EQ(call("JobDownLoad", {Text("WELD.JBI")}), SessionValue(1.0));
    EXPECT_EQ(call("JobDownLoad", {Text("WELD.JBI"), 1.0, Text("extra"), 5.0}), SessionValue(1.0));
    EXPECT_EQ(call("JobUpLoad", {Text("WELD.JBI"), Text("true")}), SessionValue(1.0));
    EXPECT_EQ(call("ReadDirectory"), SessionValue(1.0));
    EXPECT_THAT(arguments, ElementsAre(SessionValue(Text("WELD.JBI\n"))));
    EXPECT_EQ(call("ReadDirectory", {Text("old"), 5.0}), SessionValue(1.0));
    EXPECT_THAT(arguments, ElementsAre(SessionValue(Text("WELD.JBI\n")), SessionValue(5.0)));
    EXPECT_EQ(call("JobListDownLoad", {1.0}), SessionValue(1.0));
    EXPECT_EQ(call("JobListUpLoad"), SessionValue(1.0));
    EXPECT_EQ(call("JobDelete", {Text("WELD.JBI")}), SessionValue(1.0));
    EXPECT_FALSE(world.controller().has("WELD.JBI"));
}

TEST_F(SessionOperationsTest, VariablesAreTransferredByName) {
    EXPECT_EQ(call("VarDownLoad", {Text("B1=5")}), SessionValue(1.0));
    EXPECT_EQ(call("VarUpLoad", {Text("b1=")}), SessionValue(1.0));
    EXPECT_THAT(arguments, ElementsAre(SessionValue(Text("B001=5"))));
    call("AddVarList", {Text("B1=0")});
    EXPECT_EQ(call("VarListUpLoad"), SessionValue(1.0));
    EXPECT_EQ(call("WriteVarListFile", {Text("v.lst")}), SessionValue(1.0));
    call("SetVarListFile", {Text("v.lst")});
    EXPECT_EQ(call("ReadVarListFile"), SessionValue(1.0));
    EXPECT_EQ(call("VarListDownLoad"), SessionValue(1.0));
}

TEST_F(SessionOperationsTest, TheErrorRecordIsReadByName) {
    EXPECT_EQ(call("JobDelete", {Text("GONE.JBI")}), SessionValue(0.0));
    EXPECT_EQ(call("ErrorCode"), SessionValue(1200.0));
    EXPECT_EQ(call("ErrorFunction"), SessionValue(Text("BscSelectJob")));
    EXPECT_EQ(call("ErrorIndex"), SessionValue(0.0));
    EXPECT_EQ(call("GetCTRLError", {1000.0}), SessionValue(Text("first text")));
}

TEST_F(SessionOperationsTest, TheSessionItselfIsSetByName) {
    EXPECT_EQ(call("SetTansMode", {1.0}), SessionValue(1.0));
    EXPECT_EQ(world.mode, TransferMode::HispeedLink);
    EXPECT_EQ(call("SetTansMode", {2.0}), SessionValue(0.0));
    EXPECT_EQ(world.modeChanges, 2);
    call("SetLangageMode", {9.0});
    world.pc.write("jobs.lst", "A.JBI\n");
    EXPECT_EQ(call("SetJobListFile", {Text("jobs.lst"), 1.0}), SessionValue(1.0));
    EXPECT_EQ(call("SetJobListFile", {Text("none.lst")}), SessionValue(0.0));
    EXPECT_EQ(call("JobListCount"), SessionValue(1.0));
    call("Quit");
    EXPECT_EQ(world.view.unloads, 1);
}

} // namespace
} // namespace vantrel
