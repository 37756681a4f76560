#include "files/CopyCommand.h"

#include "CommandFixture.h"
#include "base/PathRules.h"

#include <filesystem>

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class CopyCommandTest : public tests::CommandTest {};

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

TEST_F(CopyCommandTest, ProgressIsShownWithAClearedPressAndACancelButton) {
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

TEST_F(CopyCommandTest, ProgressAndQuestionsNameTheControllerAndTheDirection) {
    state.TransMode = TransferMode::HispeedLink;
    state.CurrentRobot.Name = "LINE1";
    state.CurrentRobot.IPaddr = session.IPaddress = "10.0.0.5";
    tests::FakeController& line1 = library.at("10.0.0.5");
    pcJob("A", "new");
    line1.put("A.JBI", job("A", "old"));
    selectOnPC({"A.JBI"});
    std::vector<std::string> places;
    library.onCall = [&](const std::string& function) {
        if (function == "BscFindFirst")
            places.push_back(progress.place());
    };
    progress.setUsualPlace([] { return "usual"; });
    question.answers = {Answer::Cancel, Answer::Yes};
    commands.sendCopy();
    EXPECT_THAT(places, ElementsAre("\u2192 LINE1 (10.0.0.5)", "usual"))
        << "the controller is read at the end of the command too";
    selectOnController({"A.JBI"});
    places.clear();
    library.onCall = [&](const std::string&) { places.push_back(progress.place()); };
    commands.receiveCopy();
    ASSERT_THAT(places, Not(IsEmpty()));
    EXPECT_EQ(places.front(), "\u2190 LINE1 (10.0.0.5)");
    EXPECT_THAT(question.notes, ElementsAre("\u2192 LINE1 (10.0.0.5)\nthe controller loses",
                                            "\u2190 LINE1 (10.0.0.5)\nthe PC loses"));
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

/// New files are brought to the disk together: that one has not reached it is found out later.
TEST_F(CopyCommandTest, EachReceivedFileThatDoesNotReachTheDiskIsToldAndNotedWithItsReason) {
    for (const char* name : {"A", "B", "C"})
        robotJob(name);
    selectOnController({"A.JBI", "B.JBI", "C.JBI"});
    library.onCall = [this](const std::string& function) {
        if (function == "BscUpLoad" && library.callCount(function) == 3)
            for (const char* name : {"A.JBI", "B.JBI"})
                std::filesystem::remove(pc.path(name));
    };
    EXPECT_FALSE(commands.receiveCopy());
    EXPECT_THAT(boxes.texts(),
                ElementsAre("[B.JBI] not flushed",
                            "Transfer failed: BscUpLoad ( not flushed (46) ) (0)\n[A.JBI]"));
    ASSERT_TRUE(results.last() && results.last()->items.size() == 3);
    const std::string reason = "BscUpLoad ( not flushed (46) )";
    for (const std::size_t item : {0u, 1u}) {
        EXPECT_EQ(results.last()->items[item].end, ItemEnd::Failed);
        EXPECT_EQ(results.last()->items[item].reason, reason);
    }
    EXPECT_EQ(results.last()->items[2].end, ItemEnd::Done);
    EXPECT_EQ(pc.read("C.JBI"), job("C"));
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

TEST_F(CopyCommandTest, CancelPressedWhileTheDirectoryIsReadCostsNoOtherReading) {
    pcJob("A");
    robotJob("B");
    selectOnPC({"A.JBI"});
    library.onCall = [this](const std::string& function) {
        if (function == "BscFindNext")
            progress.pressCancel();
    };
    EXPECT_FALSE(commands.sendCopy());
    EXPECT_EQ(library.callCount("BscFindFirst"), 1);
    EXPECT_THAT(robot().names(), ElementsAre("B.JBI"));
    EXPECT_THAT(window.controller.names, ElementsAre("B.JBI"));
    EXPECT_THAT(boxes.texts(), IsEmpty());
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

} // namespace
} // namespace vantrel
