#include "files/TransferReports.h"

#include "CommandFixture.h"
#include "link/FetchMark.h"
#include "platform/Files.h"

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

/// What a copy says when it has not worked, and what it leaves.
class TransferReportsTest : public tests::CommandTest {};

TEST_F(TransferReportsTest, AFailureIsReportedWithFunctionCodeTextAndIndex) {
    for (const char* name : {"A", "B", "C"})
        pcJob(name);
    robot();
    selectOnPC({"A.JBI", "B.JBI", "C.JBI"});
    library.disturb({"BscDownLoad", 2, false, false, 2000});
    EXPECT_FALSE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(),
                ElementsAre("Transfer failed: BscDownLoad ( line broken (2000) ) (1)\n[B.JBI]"));
    EXPECT_EQ(boxes.shown[0].icon, BoxIcon::Exclamation);
    EXPECT_THAT(robot().names(), ElementsAre("A.JBI")) << "a copy ends at its first failure";
    EXPECT_THAT(window.controller.names, ElementsAre("A.JBI"));
}

TEST_F(TransferReportsTest, ACodeWithoutATextIsReportedAsItsNumber) {
    pcJob("A");
    robot();
    selectOnPC({"A.JBI"});
    library.disturb({"BscDownLoad", 1, false, false, -7});
    EXPECT_FALSE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("Transfer failed: BscDownLoad ( -7 ) (0)\n[A.JBI]"));
}

TEST_F(TransferReportsTest, AFailureOfOurOwnIsReportedThoughItHasNoFunction) {
    pcJob("A");
    robot();
    selectOnPC({"A.JBI"});
    ASSERT_TRUE(removeFile(pc.path("A.JBI")));
    EXPECT_FALSE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("Transfer failed:  ( not readable (21) ) (0)\n[A.JBI]"));
}

TEST_F(TransferReportsTest, ADirectoryThatCannotBeReadIsReportedAsNoSuchFile) {
    pcJob("A");
    robotJob("OLD");
    selectOnPC({"A.JBI"});
    library.disturb({"BscFindFirst", 1, false, false, 2000});
    EXPECT_FALSE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("no such file\nCOM1\nBscFind ( line broken (2000) )"));
    EXPECT_THAT(window.controller.names, ElementsAre("OLD.JBI"));
}

TEST_F(TransferReportsTest, ALineThatStaysDownIsReportedForTheTransferAndForTheList) {
    pcJob("A");
    robotJob("OLD");
    selectOnPC({"A.JBI"});
    library.disturb({"BscConnect", 1, true, false, 2000});
    EXPECT_FALSE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("Transfer failed: BscConnect ( line broken (2000) ) (0)",
                                           "not read\nCOM1\nBscConnect ( line broken (2000) )"))
        << "no file was tried";
    EXPECT_THAT(window.controller.names, ElementsAre("OLD.JBI")) << "the old list stays";
    EXPECT_EQ(window.controllerStatus, "Controller: 1 items");
}

TEST_F(TransferReportsTest, AFailedRereadAfterAGoodTransferIsReported) {
    pcJob("A");
    robot();
    selectOnPC({"A.JBI"});
    library.disturb({"BscFindFirst", 2, false, false, 2000});
    EXPECT_TRUE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("not read\nCOM1\nBscFind ( line broken (2000) )"));
    EXPECT_TRUE(robot().has("A.JBI"));
}

TEST_F(TransferReportsTest, AnUnsetAddressGivesTheSessionsOwnMessageAndNoOther) {
    pcJob("A");
    robotJob("OLD");
    selectOnPC({"A.JBI"});
    state.TransMode = TransferMode::HispeedLink;
    session.IPaddress = "0.0.0.0";
    EXPECT_FALSE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("address unset"));
    window.controller.click({"OLD.JBI"});
    EXPECT_FALSE(commands.receiveCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("address unset", "address unset"));
}

TEST_F(TransferReportsTest, AnUnsetAddressBringsUpNoStaleFailure) {
    pcJob("A");
    robot();
    selectOnPC({"A.JBI"});
    library.disturb({"BscDownLoad", 1, false, false, 2000});
    EXPECT_FALSE(commands.sendCopy());
    boxes.shown.clear();
    state.TransMode = TransferMode::HispeedLink;
    session.IPaddress = "0.0.0.0";
    window.pc.click({"A.JBI"});
    EXPECT_FALSE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("address unset"));
}

TEST_F(TransferReportsTest, AJobThatIsGoneFromTheControllerIsAFailureOfItsUpload) {
    robotJob("A");
    robotJob("B");
    selectOnController({"A.JBI", "B.JBI"});
    robot().erase("B.JBI");
    EXPECT_FALSE(commands.receiveCopy());
    EXPECT_THAT(
        boxes.texts(),
        ElementsAre("Transfer failed: BscUpLoad ( not on the controller (1200) ) (1)\n[B.JBI]"));
    EXPECT_TRUE(pc.has("A.JBI"));
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI"));
}

TEST_F(TransferReportsTest, AFailedReceiveLeavesTheOldPCFileAsItWas) {
    pcJob("A", "old");
    robotJob("A", "new");
    selectOnController({"A.JBI"});
    question.answers = {Answer::Yes};
    library.disturb({"BscUpLoad", 1, false, false, 2000});
    EXPECT_FALSE(commands.receiveCopy());
    EXPECT_EQ(pc.read("A.JBI"), job("A", "old"));
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI")) << "nothing is left beside it";
}

TEST_F(TransferReportsTest, APCFolderThatIsGoneIsReportedAtTheEnd) {
    pc.write("SUB/X.TXT", "");
    robotJob("A");
    selectOnController({"A.JBI"});
    ASSERT_TRUE(panes.scanPC(pc.path("SUB")));
    panes.fill(ActiveSide::PC);
    ASSERT_TRUE(removeFile(pc.path("SUB/X.TXT")));
    std::filesystem::remove(pc.path("SUB"));
    EXPECT_FALSE(commands.receiveCopy());
    ASSERT_EQ(boxes.shown.size(), 2u);
    EXPECT_THAT(boxes.shown[0].text,
                StartsWith("Transfer failed:  ( folder not opened (42) ) (0)\n[" + pc.path("SUB")));
    EXPECT_THAT(boxes.shown[0].text, EndsWith(" )")) << "the system's reason";
    EXPECT_THAT(boxes.shown[0].text, Not(HasSubstr("A.JBI")));
    EXPECT_EQ(boxes.shown[1].text, "File Get Error!!");
}

TEST_F(TransferReportsTest, ALinkThatWillNotCloseAfterTheDirectoryNamesNoFileAndNoOlderPlace) {
    for (const char* name : {"A", "B"})
        pcJob(name);
    robot();
    selectOnPC({"A.JBI", "B.JBI"});
    library.disturb({"BscDownLoad", 2, false, false, 2000});
    EXPECT_FALSE(commands.sendCopy());
    boxes.shown.clear();
    for (const char* function : {"BscDisConnect", "BscClose"}) {
        library.disturb({function, 1, false, false, 2000});
        window.pc.click({"A.JBI", "B.JBI"});
        EXPECT_FALSE(commands.sendCopy());
        ASSERT_FALSE(boxes.shown.empty());
        EXPECT_EQ(boxes.shown[0].text,
                  std::string("Transfer failed: ") + function + " ( line broken (2000) ) (0)");
        boxes.shown.clear();
        ++linksLeftOpen; // on purpose
    }
}

/// What a library returns is never one of our own findings, though it has their number.
TEST_F(TransferReportsTest, ANumberOfOursThatALibraryFunctionReturnsIsANumber) {
    pcJob("A");
    robot();
    for (const int code : {2, 3, 4, 20, 21, 25, 30, -1, -10}) {
        boxes.shown.clear();
        selectOnPC({"A.JBI"});
        library.disturb({"BscDownLoad", 1, false, false, static_cast<std::int16_t>(code)});
        EXPECT_FALSE(commands.sendCopy());
        EXPECT_THAT(boxes.texts(), ElementsAre("Transfer failed: BscDownLoad ( " +
                                               std::to_string(code) + " ) (0)\n[A.JBI]"));
    }
}

TEST_F(TransferReportsTest, AFailedReadingNamesTheRobotAndItsAddress) {
    state.TransMode = TransferMode::HispeedLink;
    state.CurrentRobot.Name = "WELD1";
    session.IPaddress = "10.0.0.7";
    EXPECT_FALSE(commands.refresh(ActiveSide::Controller));
    EXPECT_THAT(boxes.texts(),
                ElementsAre("not read\n[WELD1] 10.0.0.7\nBscConnect ( unreachable (2040) )"));
}

/// The box of the library itself is the one; here it is spoken for.
TEST_F(TransferReportsTest, AnUnusableLibraryIsOneBoxForOneCommand) {
    pcJob("A");
    pcJob("B");
    robotJob("C");
    showPanes();
    library.disturb({"BscOpen", 1, true, false, session_code::libraryUnusable});
    library.onCall = [this](const std::string& function) {
        if (function != "BscOpen")
            return;
        talk.tell("unusable", BoxIcon::Exclamation);
        session.noteOperatorTold();
    };
    const auto expectOneBox = [this](bool succeeded) {
        EXPECT_FALSE(succeeded);
        EXPECT_THAT(boxes.texts(), ElementsAre("unusable"));
        boxes.shown.clear();
    };
    window.pc.click({"A.JBI", "B.JBI"});
    expectOneBox(commands.sendCopy());
    window.pc.click({"A.JBI", "B.JBI"});
    expectOneBox(commands.sendMove());
    window.controller.click({"C.JBI"});
    expectOneBox(commands.receiveCopy());
    question.answers = {Answer::Yes};
    window.controller.click({"C.JBI"});
    expectOneBox(commands.deleteOnController());
    expectOneBox(commands.refresh(ActiveSide::Controller));
}

TEST_F(TransferReportsTest, AJobThatAFailedSendHasCostTheRobotIsToldAndLeavesTheListEvenUnread) {
    pcJob("A", "new");
    robotJob("A", "old");
    robotJob("B");
    selectOnPC({"A.JBI"});
    question.answers = {Answer::Yes};
    library.onCall = [this](const std::string& function) {
        if (function == "BscDeleteJob")
            library.disturb({"BscConnect", 1, true, false, 2000});
    };
    EXPECT_FALSE(commands.sendCopy());
    ASSERT_EQ(boxes.shown.size(), 2u);
    EXPECT_EQ(boxes.shown[0].text, "Transfer failed: BscConnect ( line broken (2000) ) (0)\n[A.JBI]"
                                   "\ngone and not replaced:\n[A.JBI]");
    EXPECT_THAT(window.controller.names, ElementsAre("B.JBI"));
    EXPECT_EQ(window.controllerStatus, "Controller: 1 items");
}

TEST_F(TransferReportsTest, AJobThatWasDeletedForAnotherIsToldAfterACopy) {
    pc.write("COPY.JBI", job("A"));
    robotJob("COPY", "old");
    selectOnPC({"COPY.JBI"});
    question.answers = {Answer::Yes};
    EXPECT_TRUE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("gone and not replaced:\n[COPY.JBI]"));
    EXPECT_THAT(window.controller.names, ElementsAre("A.JBI"));
}

TEST_F(TransferReportsTest, ACancelAfterTheDeletionStillTellsOfIt) {
    pc.write("COPY.JBI", job("A"));
    pcJob("D");
    robotJob("COPY", "old");
    robotJob("D", "old");
    selectOnPC({"COPY.JBI", "D.JBI"});
    question.answers = {Answer::Yes, Answer::Cancel};
    EXPECT_FALSE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("gone and not replaced:\n[COPY.JBI]"));
}

TEST_F(TransferReportsTest, AReceiveSaysNothingOfWhatAnEarlierSendHasCost) {
    pcJob("A");
    robotJob("A", "old");
    robotJob("B");
    selectOnPC({"A.JBI"});
    question.answers = {Answer::Yes};
    library.disturb({"BscDownLoad", 1, false, false, 2000});
    EXPECT_FALSE(commands.sendCopy());
    boxes.shown.clear();
    window.controller.click({"B.JBI"});
    library.disturb({"BscUpLoad", 1, false, false, 2000});
    EXPECT_FALSE(commands.receiveCopy());
    EXPECT_THAT(boxes.texts(),
                ElementsAre("Transfer failed: BscUpLoad ( line broken (2000) ) (0)\n[B.JBI]"));
}

TEST_F(TransferReportsTest, AMarkThatKeepsAFileFromBeingSentIsNamedBelowTheFile) {
    const std::string mark = FetchMark::fileNameFor("A.JBI");
    pcJob("A");
    robot();
    selectOnPC({"A.JBI"});
    pc.write(mark, "?");
    const std::string report = "\n[A.JBI]\n[" + mark + "]";
    EXPECT_FALSE(commands.sendCopy());
    ASSERT_FALSE(boxes.shown.empty());
    EXPECT_EQ(boxes.shown[0].text, "Transfer failed:  ( mark unusable (47) ) (0)" + report);
    boxes.shown.clear();
    EXPECT_FALSE(commands.sendMove());
    ASSERT_FALSE(boxes.shown.empty());
    EXPECT_EQ(boxes.shown[0].text, "Transfer failed:  ( mark unusable (47) )" + report);
    EXPECT_TRUE(pc.has("A.JBI"));
}

} // namespace
} // namespace vantrel
