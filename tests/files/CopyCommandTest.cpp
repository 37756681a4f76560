#include "CommandFixture.h"
#include "base/PathRules.h"
#include "platform/Files.h"

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class CopyCommandTest : public tests::CommandFixture {
  protected:
    void TearDown() override { expectLeftInOrder(); }
};

TEST_F(CopyCommandTest, SentJobsArriveByteForByteAndStayOnThePC) {
    pcJob("A");
    pcJob("B", "2");
    robot();
    selectOnPC({"A.JBI", "B.JBI"});
    EXPECT_TRUE(commands.sendCopy());
    EXPECT_EQ(robot().bytes("A.JBI"), job("A"));
    EXPECT_EQ(robot().bytes("B.JBI"), job("B", "2"));
    EXPECT_TRUE(pc.has("A.JBI"));
    EXPECT_TRUE(pc.has("B.JBI"));
    EXPECT_THAT(boxes.texts(), IsEmpty());
}

TEST_F(CopyCommandTest, TheJobListHoldsTheSelectedNamesInListOrder) {
    pcJob("C");
    pcJob("A");
    pcJob("B");
    robot();
    session.AddJobList("LEFTOVER.JBI");
    selectOnPC({"C.JBI", "A.JBI"});
    EXPECT_TRUE(commands.sendCopy());
    ASSERT_EQ(session.JobListCount(), 2);
    EXPECT_EQ(session.JobList(0), "A.JBI");
    EXPECT_EQ(session.JobList(1), "C.JBI");
}

TEST_F(CopyCommandTest, TheSessionIsGivenThePCFolderAndTheTitleOfACopy) {
    pcJob("A");
    robot();
    selectOnPC({"A.JBI"});
    session.path = "/elsewhere";
    library.onCall = [this](const std::string& function) {
        if (function == "BscDownLoad") {
            EXPECT_EQ(session.MonitorTitle, "File transfer");
            EXPECT_TRUE(session.DisplayMonitor);
        }
    };
    EXPECT_TRUE(commands.sendCopy());
    EXPECT_EQ(session.path, PathRules().withSeparator(pc.path()));
}

TEST_F(CopyCommandTest, TheWindowIsLockedUntilEverythingIsUpToDate) {
    pcJob("A");
    robot();
    selectOnPC({"A.JBI"});
    library.onCall = [this](const std::string&) { EXPECT_EQ(window.lockDepth, 1); };
    window.onYield = [this] { EXPECT_EQ(window.lockDepth, 1); };
    EXPECT_TRUE(commands.sendCopy());
    EXPECT_EQ(window.locks, 1);
}

TEST_F(CopyCommandTest, ProgressIsShownWithAClearedMarkAndACancelButton) {
    pcJob("A");
    robot();
    selectOnPC({"A.JBI"});
    progress.pressCancel();
    EXPECT_TRUE(commands.sendCopy());
    ASSERT_THAT(progressView.pictures, Not(IsEmpty()));
    const auto& first = progressView.pictures.front();
    EXPECT_TRUE(first.visible);
    EXPECT_EQ(first.title, "File transfer");
    EXPECT_EQ(first.message, "Transferring ");
    EXPECT_TRUE(first.cancelButton);
    EXPECT_EQ(progress.cancelCaption(), "Cancel");
    EXPECT_TRUE(robot().has("A.JBI"));
}

TEST_F(CopyCommandTest, AfterASendTheControllerPaneIsUpToDateAndThePCListHasTheFocus) {
    pcJob("NEW");
    robotJob("OLD");
    selectOnPC({"NEW.JBI"});
    EXPECT_TRUE(commands.sendCopy());
    EXPECT_THAT(window.controller.names, ElementsAre("NEW.JBI", "OLD.JBI"));
    EXPECT_EQ(window.controllerStatus, "Controller: 2 items");
    EXPECT_EQ(window.pc.focuses, 1);
    EXPECT_EQ(window.controller.focuses, 0);
    EXPECT_THAT(window.pc.selectedNames(), ElementsAre("NEW.JBI"));
}

TEST_F(CopyCommandTest, TheSelectionOfARefilledPaneIsKeptByName) {
    pcJob("A");
    robotJob("M");
    robotJob("Z");
    selectOnPC({"A.JBI"});
    window.controller.click({"Z.JBI"});
    EXPECT_TRUE(commands.sendCopy());
    EXPECT_THAT(window.controller.names, ElementsAre("A.JBI", "M.JBI", "Z.JBI"));
    EXPECT_THAT(window.controller.selectedNames(), ElementsAre("Z.JBI"));
}

TEST_F(CopyCommandTest, ReceivedJobsArriveByteForByteAndStayOnTheController) {
    robotJob("A");
    robotJob("B", "2");
    selectOnController({"A.JBI", "B.JBI"});
    EXPECT_TRUE(commands.receiveCopy());
    EXPECT_EQ(pc.read("A.JBI"), job("A"));
    EXPECT_EQ(pc.read("B.JBI"), job("B", "2"));
    EXPECT_TRUE(robot().has("A.JBI"));
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI", "B.JBI"));
    EXPECT_EQ(window.pcStatus, "PC: 2 items");
    EXPECT_EQ(window.controller.focuses, 1);
    EXPECT_EQ(library.callCount("BscFindFirst"), 0) << "a receive does not read the controller";
}

TEST_F(CopyCommandTest, AFixedNameIsReceivedToo) {
    robot().put("FIXED.DAT", "values");
    showPanes();
    window.controllerFilter = 1;
    panes.fill(ActiveSide::Controller);
    window.controller.select({0});
    EXPECT_TRUE(commands.receiveCopy());
    EXPECT_EQ(pc.read("FIXED.DAT"), "values");
}

TEST_F(CopyCommandTest, WithoutASelectionNothingHappens) {
    pcJob("A");
    robot();
    selectOnPC({});
    window.controller.select({});
    EXPECT_TRUE(commands.sendCopy());
    EXPECT_TRUE(commands.receiveCopy());
    EXPECT_EQ(library.callCount(), 0);
    EXPECT_THAT(progressView.pictures, IsEmpty());
}

TEST_F(CopyCommandTest, RejectedFilesOnlyGiveOneMessageEachAndLeaveTheSessionAlone) {
    pc.write("A.TXT", "");
    pc.write("B.CND", "");
    robot();
    selectOnPC({"A.TXT", "B.CND"});
    EXPECT_TRUE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("[A.TXT] refused", "[B.CND] refused"));
    for (const auto& box : boxes.shown)
        EXPECT_EQ(box.icon, BoxIcon::Exclamation);
    EXPECT_EQ(library.callCount(), 0);
    EXPECT_EQ(window.pc.focuses, 1);
}

TEST_F(CopyCommandTest, ARejectedFileDoesNotStopTheOthers) {
    pcJob("A");
    pc.write("B.TXT", "");
    pcJob("C");
    robot();
    selectOnPC({"A.JBI", "B.TXT", "C.JBI"});
    EXPECT_TRUE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("[B.TXT] refused"));
    EXPECT_THAT(robot().names(), ElementsAre("A.JBI", "C.JBI"));
}

TEST_F(CopyCommandTest, TheProgressStepsAsideForEveryMessage) {
    pc.write("A.TXT", "");
    robot();
    selectOnPC({"A.TXT"});
    std::vector<bool> visible;
    commands.sendCopy();
    for (const auto& picture : progressView.pictures)
        visible.push_back(picture.visible);
    EXPECT_THAT(visible, ElementsAre(true, false, true, false));
}

TEST_F(CopyCommandTest, ReceivingIsTestedByTheModelsUploadFlag) {
    robot().put("A.DAT", "x");
    showPanes();
    window.controllerFilter = 1;
    panes.fill(ActiveSide::Controller);
    window.controller.click({"A.DAT"});
    state.Controler = 1;
    EXPECT_TRUE(commands.receiveCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("[A.DAT] refused"));
    EXPECT_FALSE(pc.has("A.DAT"));
    state.Controler = cygna;
    EXPECT_TRUE(commands.receiveCopy());
    EXPECT_TRUE(pc.has("A.DAT"));
}

TEST_F(CopyCommandTest, AFolderIsNamedAndPassedOver) {
    pc.makeFolder("OLD.JBI");
    pcJob("A");
    robot();
    selectOnPC({"OLD.JBI", "A.JBI"});
    EXPECT_TRUE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("[OLD.JBI] is a folder"));
    EXPECT_THAT(robot().names(), ElementsAre("A.JBI"));
}

TEST_F(CopyCommandTest, AControllersNameWithAPathInItIsRefusedByName) {
    robot().put("C:EVIL.JBI", "x");
    robotJob("GOOD");
    selectOnController({"C:EVIL.JBI", "GOOD.JBI"});
    EXPECT_TRUE(commands.receiveCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("[C:EVIL.JBI] unusable name"));
    EXPECT_TRUE(pc.has("GOOD.JBI"));
    EXPECT_FALSE(pc.has("C:EVIL.JBI"));
}

TEST_F(CopyCommandTest, ANameThatTheControllerCannotHaveIsRefusedByName) {
    pc.write("한글.JBI", job("X"));
    pc.write("A:B.JBI", job("Y"));
    pcJob("GOOD");
    robot();
    selectOnPC({"한글.JBI", "A:B.JBI", "GOOD.JBI"});
    EXPECT_TRUE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(),
                testing::UnorderedElementsAre("[한글.JBI] not expressible",
                                              "Transfer failed: [A:B.JBI] ( unusable name )"));
    EXPECT_THAT(robot().names(), ElementsAre("GOOD.JBI"));
}

TEST_F(CopyCommandTest, TheSessionAsksBeforeItReplacesAJobAndNoKeepsIt) {
    pcJob("A", "new");
    pcJob("B", "new");
    robotJob("A", "old");
    robotJob("B", "old");
    selectOnPC({"A.JBI", "B.JBI"});
    question.answers = {Answer::No, Answer::Yes};
    EXPECT_TRUE(commands.sendCopy());
    EXPECT_THAT(question.titles, ElementsAre("File transfer", "File transfer"));
    EXPECT_EQ(robot().bytes("A.JBI"), job("A", "old"));
    EXPECT_EQ(robot().bytes("B.JBI"), job("B", "new"));
    EXPECT_THAT(boxes.texts(), IsEmpty());
}

TEST_F(CopyCommandTest, AllReplacesEveryLaterJobWithoutAnotherQuestion) {
    for (const char* name : {"A", "B", "C"}) {
        pcJob(name, "new");
        robotJob(name, "old");
    }
    selectOnPC({"A.JBI", "B.JBI", "C.JBI"});
    question.answers = {Answer::All};
    EXPECT_TRUE(commands.sendCopy());
    EXPECT_EQ(question.questions.size(), 1u);
    EXPECT_EQ(robot().bytes("C.JBI"), job("C", "new"));
}

TEST_F(CopyCommandTest, CancelAtTheQuestionKeepsWhatWasSentAndNeedsNoReport) {
    for (const char* name : {"A", "B", "C"})
        pcJob(name, "new");
    robotJob("B", "old");
    selectOnPC({"A.JBI", "B.JBI", "C.JBI"});
    question.answers = {Answer::Cancel};
    EXPECT_FALSE(commands.sendCopy());
    EXPECT_TRUE(robot().has("A.JBI"));
    EXPECT_EQ(robot().bytes("B.JBI"), job("B", "old"));
    EXPECT_FALSE(robot().has("C.JBI"));
    EXPECT_THAT(boxes.texts(), IsEmpty());
    EXPECT_THAT(window.controller.names, ElementsAre("A.JBI", "B.JBI")) << "refreshed all the same";
}

TEST_F(CopyCommandTest, CancelPressedBeforeTheSessionBeginsSendsNothing) {
    pcJob("A");
    robot();
    selectOnPC({"A.JBI"});
    pressCancelAtYield(1);
    EXPECT_FALSE(commands.sendCopy());
    EXPECT_EQ(library.callCount(), 0);
    EXPECT_THAT(boxes.texts(), IsEmpty());
}

TEST_F(CopyCommandTest, AFailureIsReportedWithFunctionCodeTextAndIndex) {
    for (const char* name : {"A", "B", "C"})
        pcJob(name);
    robot();
    selectOnPC({"A.JBI", "B.JBI", "C.JBI"});
    library.disturb({"BscDownLoad", 2, false, false, 2000});
    EXPECT_FALSE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(),
                ElementsAre("Transfer failed: BscDownLoad ( line broken ) (1)\n[B.JBI]"));
    EXPECT_EQ(boxes.shown[0].icon, BoxIcon::Exclamation);
    EXPECT_THAT(robot().names(), ElementsAre("A.JBI")) << "a copy ends at its first failure";
    EXPECT_THAT(window.controller.names, ElementsAre("A.JBI"));
}

TEST_F(CopyCommandTest, ACodeWithoutATextIsReportedAsItsNumber) {
    pcJob("A");
    robot();
    selectOnPC({"A.JBI"});
    library.disturb({"BscDownLoad", 1, false, false, -7});
    EXPECT_FALSE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("Transfer failed: BscDownLoad ( -7 ) (0)\n[A.JBI]"));
}

TEST_F(CopyCommandTest, AFailureOfOurOwnIsReportedThoughItHasNoFunction) {
    pcJob("A");
    robot();
    selectOnPC({"A.JBI"});
    ASSERT_TRUE(removeFile(pc.path("A.JBI")));
    EXPECT_FALSE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("Transfer failed:  ( not readable ) (0)\n[A.JBI]"));
}

TEST_F(CopyCommandTest, ADirectoryThatCannotBeReadIsReportedAsNoSuchFile) {
    pcJob("A");
    robotJob("OLD");
    selectOnPC({"A.JBI"});
    library.disturb({"BscFindFirst", 1, false, false, 2000});
    EXPECT_FALSE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("no such file"));
    EXPECT_THAT(window.controller.names, ElementsAre("OLD.JBI"));
}

TEST_F(CopyCommandTest, ALineThatStaysDownIsReportedForTheTransferAndForTheList) {
    pcJob("A");
    robotJob("OLD");
    selectOnPC({"A.JBI"});
    library.disturb({"BscConnect", 1, true, false, 2000});
    EXPECT_FALSE(commands.sendCopy());
    EXPECT_THAT(
        boxes.texts(),
        ElementsAre("Transfer failed: BscConnect ( line broken ) (0)\n[A.JBI]", "not read"));
    EXPECT_THAT(window.controller.names, ElementsAre("OLD.JBI")) << "the old list stays";
    EXPECT_EQ(window.controllerStatus, "Controller: 1 items");
}

TEST_F(CopyCommandTest, AFailedRereadAfterAGoodTransferIsReported) {
    pcJob("A");
    robot();
    selectOnPC({"A.JBI"});
    library.disturb({"BscFindFirst", 2, false, false, 2000});
    EXPECT_TRUE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("not read"));
    EXPECT_TRUE(robot().has("A.JBI"));
}

TEST_F(CopyCommandTest, AnUnsetAddressGivesTheSessionsOwnMessageAndNoOther) {
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

TEST_F(CopyCommandTest, AnUnsetAddressBringsUpNoStaleFailure) {
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

TEST_F(CopyCommandTest, AJobThatIsGoneFromTheControllerIsAFailureOfItsUpload) {
    robotJob("A");
    robotJob("B");
    selectOnController({"A.JBI", "B.JBI"});
    robot().erase("B.JBI");
    EXPECT_FALSE(commands.receiveCopy());
    EXPECT_THAT(boxes.texts(),
                ElementsAre("Transfer failed: BscUpLoad ( not on the controller ) (1)\n[B.JBI]"));
    EXPECT_TRUE(pc.has("A.JBI"));
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI"));
}

TEST_F(CopyCommandTest, AFailedReceiveLeavesTheOldPCFileAsItWas) {
    pcJob("A", "old");
    robotJob("A", "new");
    selectOnController({"A.JBI"});
    question.answers = {Answer::Yes};
    library.disturb({"BscUpLoad", 1, false, false, 2000});
    EXPECT_FALSE(commands.receiveCopy());
    EXPECT_EQ(pc.read("A.JBI"), job("A", "old"));
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI")) << "nothing is left beside it";
}

TEST_F(CopyCommandTest, WithRelatedJobsOnEachJobIsAskedForAsOne) {
    state.JBR = true;
    robotJob("A");
    robot().put("B.CND", "condition");
    showPanes();
    window.controllerFilter = 9;
    panes.fill(ActiveSide::Controller);
    window.controller.click({"A.JBI", "B.CND"});
    EXPECT_TRUE(commands.receiveCopy());
    EXPECT_TRUE(pc.has("A.JBR"));
    EXPECT_FALSE(pc.has("A.JBI"));
    EXPECT_TRUE(pc.has("B.CND"));
    EXPECT_EQ(session.JobList(0), "A.JBR");
}

TEST_F(CopyCommandTest, TheChangedNameIsTheOneThatIsTested) {
    program.write("FileTable.tbl", "*.JBI,1,1,1,1,1,1,1,1,1\n");
    ASSERT_TRUE(table.load(program.path()));
    state.JBR = true;
    robotJob("A");
    selectOnController({"A.JBI"});
    EXPECT_TRUE(commands.receiveCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("[A.JBR] refused"));
    EXPECT_EQ(library.callCount(), 0);
}

TEST_F(CopyCommandTest, OnlyTheFirstPlaceOfTheNameIsChanged) {
    state.JBR = true;
    program.write("FileTable.tbl", "A.JBR.JBI,0,0,0,0,0,0,1,1,1\n");
    ASSERT_TRUE(table.load(program.path()));
    robot().put("A.JBI.JBI", "x");
    selectOnController({"A.JBI.JBI"});
    commands.receiveCopy();
    EXPECT_EQ(session.JobList(0), "A.JBR.JBI");
}

TEST_F(CopyCommandTest, SendingIsNotTouchedByTheRelatedJobSetting) {
    state.JBR = true;
    pcJob("A");
    robot();
    selectOnPC({"A.JBI"});
    EXPECT_TRUE(commands.sendCopy());
    EXPECT_EQ(session.JobList(0), "A.JBI");
}

TEST_F(CopyCommandTest, APCFolderThatIsGoneIsReportedAtTheEnd) {
    pc.write("SUB/X.TXT", "");
    robotJob("A");
    selectOnController({"A.JBI"});
    ASSERT_TRUE(panes.scanPC(pc.path("SUB")));
    panes.fill(ActiveSide::PC);
    ASSERT_TRUE(removeFile(pc.path("SUB/X.TXT")));
    std::filesystem::remove(pc.path("SUB"));
    EXPECT_FALSE(commands.receiveCopy());
    ASSERT_EQ(boxes.shown.size(), 2u);
    EXPECT_THAT(boxes.shown[0].text, StartsWith("Transfer failed: "));
    EXPECT_EQ(boxes.shown[1].text, "File Get Error!!");
}

} // namespace
} // namespace vantrel
