#include "CommandFixture.h"

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

class DeleteCommandTest : public tests::CommandTest {
  protected:
    void robotJobs() {
        for (const char* name : {"A", "B", "C"})
            robotJob(name);
        selectOnController({"A.JBI", "B.JBI", "C.JBI"});
    }
    void pcJobs() {
        for (const char* name : {"A", "B", "C"})
            pcJob(name);
        robot();
        selectOnPC({"A.JBI", "B.JBI", "C.JBI"});
    }
};

TEST_F(DeleteCommandTest, EachJobIsAskedForByName) {
    robotJobs();
    question.answers = {Answer::Yes, Answer::No, Answer::Yes};
    EXPECT_TRUE(commands.deleteOnController());
    EXPECT_THAT(question.questions,
                ElementsAre("Delete [A.JBI] from COM1?", "Delete [B.JBI] from COM1?",
                            "Delete [C.JBI] from COM1?"));
    EXPECT_THAT(robot().names(), ElementsAre("B.JBI"));
    EXPECT_THAT(window.controller.names, ElementsAre("B.JBI"));
    EXPECT_EQ(window.controllerStatus, "Controller: 1 items");
    EXPECT_EQ(window.controller.focuses, 1);
}

TEST_F(DeleteCommandTest, ALanguageWithoutAPlaceForTheNameNamesTheFileAllTheSame) {
    messages.replace({text(10, " from the PC?"), text(11, " from the controller?")});
    robotJobs();
    commands.deleteOnController();
    pcJobs();
    commands.deleteOnPC();
    EXPECT_THAT(question.questions,
                ElementsAre("[A.JBI] from the controller?", "[A.JBI] from the PC?"));
}

TEST_F(DeleteCommandTest, TheControllerIsNamedWhereOneIsMeant) {
    progress.setUsualPlace([] { return "usual"; });
    robotJobs();
    commands.deleteOnController();
    pcJobs();
    commands.deleteOnPC();
    EXPECT_THAT(question.notes, ElementsAre("\u2192 COM1", ""));
    EXPECT_EQ(progress.place(), "usual") << "once the command has ended";
}

TEST_F(DeleteCommandTest, EachDeletionSaysWhichItemItIs) {
    robotJobs();
    question.answers = {Answer::No, Answer::All};
    std::vector<std::string> waitingFor;
    library.onCall = [&](const std::string& function) {
        if (function == "BscDeleteJob")
            waitingFor.push_back(progress.waitingFor());
    };
    EXPECT_TRUE(commands.deleteOnController());
    EXPECT_THAT(waitingFor, ElementsAre("item 2 of 3  waiting", "item 3 of 3  waiting"));
}

TEST_F(DeleteCommandTest, OnThePCTheProgressWaitsForNoController) {
    pcJobs();
    question.answers = {Answer::No, Answer::All};
    EXPECT_TRUE(commands.deleteOnPC());
    EXPECT_THAT(progressView.waits(), ElementsAre("", "item 2 of 3", "item 3 of 3"));
}

TEST_F(DeleteCommandTest, AllDeletesThisAndEveryFollowingJob) {
    robotJobs();
    question.answers = {Answer::No, Answer::All};
    EXPECT_TRUE(commands.deleteOnController());
    EXPECT_THAT(question.questions, SizeIs(2));
    EXPECT_THAT(robot().names(), ElementsAre("A.JBI"));
}

TEST_F(DeleteCommandTest, CancelEndsAtOnceAndKeepsTheRest) {
    robotJobs();
    question.answers = {Answer::Yes, Answer::Cancel};
    EXPECT_FALSE(commands.deleteOnController());
    EXPECT_THAT(question.questions, SizeIs(2));
    EXPECT_THAT(robot().names(), ElementsAre("B.JBI", "C.JBI"));
    EXPECT_THAT(window.controller.names, ElementsAre("B.JBI", "C.JBI"));
}

TEST_F(DeleteCommandTest, NoEverywhereLeavesTheSessionAlone) {
    robotJobs();
    question.answers = {Answer::No, Answer::No, Answer::No};
    EXPECT_TRUE(commands.deleteOnController());
    EXPECT_EQ(library.callCount(), 0);
    EXPECT_THAT(window.controller.selectedNames(), ElementsAre("A.JBI", "B.JBI", "C.JBI"));
}

TEST_F(DeleteCommandTest, CancelOfTheProgressStopsBeforeTheNextJob) {
    robotJobs();
    question.answers = {Answer::All};
    pressCancelAtYield(3); // shown, A, B
    EXPECT_FALSE(commands.deleteOnController());
    EXPECT_THAT(robot().names(), ElementsAre("B.JBI", "C.JBI"));
}

TEST_F(DeleteCommandTest, EachJobIsShownInTheCommandsOwnProgress) {
    robotJobs();
    question.answers = {Answer::All};
    EXPECT_TRUE(commands.deleteOnController());
    EXPECT_THAT(progressView.messages(),
                ElementsAre("Deleting ", "Deleting A.JBI", "Deleting B.JBI", "Deleting C.JBI",
                            "reading directory"));
}

TEST_F(DeleteCommandTest, AVeryLongNameIsAskedForAndShownShortened) {
    const std::string name(240, 'A');
    robotJob(name);
    selectOnController({name + ".JBI"});
    question.answers = {Answer::Yes};
    EXPECT_TRUE(commands.deleteOnController());
    const std::string shown = std::string(200, 'A') + "\u2026";
    EXPECT_THAT(question.questions, ElementsAre("Delete [" + shown + "] from COM1?"));
    EXPECT_THAT(progressView.messages(),
                ElementsAre("Deleting ", "Deleting " + shown, "reading directory"));
}

TEST_F(DeleteCommandTest, JobsWhoseNamesDifferInLetterCaseOnlyAreNotDeleted) {
    robotJob("foo");
    robotJob("FOO");
    robotJob("B");
    selectOnController({"foo.JBI", "B.JBI"});
    question.answers = {Answer::Yes};
    EXPECT_TRUE(commands.deleteOnController());
    EXPECT_THAT(boxes.texts(), ElementsAre("[foo.JBI] is ambiguous"));
    EXPECT_THAT(question.questions, ElementsAre("Delete [B.JBI] from COM1?"));
    EXPECT_THAT(robot().names(), ElementsAre("foo.JBI", "FOO.JBI"));
}

TEST_F(DeleteCommandTest, AFileOfTheTableThatTheDirectorySpellsOtherwiseIsDeleted) {
    program.write("FileTable.tbl", "TOOL.JBI,1,1,1,1,1,1,1,1,1\r\n");
    ASSERT_TRUE(table.load(program.path()));
    state.Controler = 0;
    robotJob("tool");
    selectOnController({"tool.JBI"});
    ASSERT_THAT(state.CtrlListing.Names, ElementsAre("tool.JBI", "TOOL.JBI"));
    question.answers = {Answer::Yes};
    commands.deleteOnController();
    EXPECT_THAT(question.questions, ElementsAre("Delete [tool.JBI] from COM1?"));
    EXPECT_EQ(library.callCount("BscSelectJob"), 1) << "the controller is asked, not the listing";
    EXPECT_THAT(boxes.texts(), testing::Not(testing::Contains("[tool.JBI] is ambiguous")));
}

TEST_F(DeleteCommandTest, AFailureIsReportedAndTheNextJobFollows) {
    robotJobs();
    question.answers = {Answer::All};
    library.disturb({"BscSelectJob", 1, false, false, 2000});
    EXPECT_FALSE(commands.deleteOnController());
    EXPECT_THAT(boxes.texts(),
                ElementsAre("Delete failed: BscSelectJob ( line broken (2000) )\n[A.JBI]"));
    EXPECT_EQ(boxes.shown[0].icon, BoxIcon::Exclamation);
    EXPECT_THAT(robot().names(), ElementsAre("A.JBI"));
}

TEST_F(DeleteCommandTest, AnUnsetAddressEndsTheCommandWithOneMessage) {
    robotJobs();
    question.answers = {Answer::All};
    state.TransMode = TransferMode::HispeedLink;
    session.IPaddress = "0.0.0.0";
    EXPECT_FALSE(commands.deleteOnController());
    EXPECT_THAT(boxes.texts(), ElementsAre("address unset"));
}

TEST_F(DeleteCommandTest, FilesOfThePCAreAskedForAndDeleted) {
    pcJobs();
    question.answers = {Answer::Yes, Answer::No, Answer::Yes};
    EXPECT_TRUE(commands.deleteOnPC());
    EXPECT_THAT(question.questions,
                ElementsAre("Delete [A.JBI] from the PC?", "Delete [B.JBI] from the PC?",
                            "Delete [C.JBI] from the PC?"));
    EXPECT_FALSE(pc.has("A.JBI"));
    EXPECT_TRUE(pc.has("B.JBI"));
    EXPECT_THAT(window.pc.names, ElementsAre("B.JBI"));
    EXPECT_THAT(window.pc.selectedNames(), ElementsAre("B.JBI"));
    EXPECT_EQ(window.pcStatus, "PC: 1 items");
    EXPECT_EQ(window.pc.focuses, 1);
    EXPECT_EQ(library.callCount(), 0);
}

TEST_F(DeleteCommandTest, AllAndCancelCountOnThePCToo) {
    pcJobs();
    question.answers = {Answer::No, Answer::All};
    EXPECT_TRUE(commands.deleteOnPC());
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI"));
    question.answers = {Answer::Cancel};
    EXPECT_FALSE(commands.deleteOnPC());
    EXPECT_TRUE(pc.has("A.JBI"));
}

TEST_F(DeleteCommandTest, AClosedQuestionDeletesNothing) {
    pcJobs();
    EXPECT_FALSE(commands.deleteOnPC());
    EXPECT_THAT(question.questions, SizeIs(1));
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI", "B.JBI", "C.JBI"));
}

TEST_F(DeleteCommandTest, AFolderIsNamedAndNeverDeleted) {
    pc.makeFolder("EMPTY");
    pcJob("A");
    robot();
    selectOnPC({"EMPTY", "A.JBI"});
    question.answers = {Answer::All};
    EXPECT_TRUE(commands.deleteOnPC());
    EXPECT_THAT(boxes.texts(), ElementsAre("[EMPTY] is a folder"));
    EXPECT_THAT(window.pc.names, ElementsAre("EMPTY"));
}

TEST_F(DeleteCommandTest, AFileThatCannotBeDeletedIsNamedWithTheReasonAndTheNextFollows) {
    pcJobs();
    question.answers = {Answer::All};
    std::filesystem::remove(pc.path("A.JBI"));
    EXPECT_FALSE(commands.deleteOnPC());
    ASSERT_THAT(boxes.shown, SizeIs(1));
    EXPECT_THAT(boxes.shown[0].text, StartsWith("[A.JBI] not deleted ( "));
    EXPECT_THAT(window.pc.names, IsEmpty());
}

TEST_F(DeleteCommandTest, OnThePCItIsThePanesFolderThatIsMeant) {
    pcJob("A");
    pc.write("SUB/A.JBI", job("A"));
    robot();
    showPanes();
    ASSERT_TRUE(panes.scanPC(pc.path("SUB")));
    panes.fill(ActiveSide::PC);
    session.path = pc.path();
    window.pc.click({"A.JBI"});
    question.answers = {Answer::Yes};
    EXPECT_TRUE(commands.deleteOnPC());
    EXPECT_TRUE(pc.has("A.JBI"));
    EXPECT_FALSE(pc.has("SUB/A.JBI"));
}

TEST_F(DeleteCommandTest, ADeletedJobLeavesTheListThoughItCannotBeReadAgain) {
    robotJob("A");
    robotJob("B");
    selectOnController({"A.JBI"});
    question.answers = {Answer::Yes};
    library.disturb({"BscFindFirst", 1, true, false, 2000});
    EXPECT_TRUE(commands.deleteOnController());
    EXPECT_THAT(window.controller.names, testing::ElementsAre("B.JBI"));
    EXPECT_EQ(boxes.shown.size(), 1u) << "the failed reading is told all the same";
}

class DeleteToWasteBinTest : public DeleteCommandTest {
  protected:
    bool remove() {
        const MoveToWasteBin bin = [this](const std::string& path) {
            inBin.push_back(path);
            return binAnswer;
        };
        return TransferCommands(
                   {state, session, panes, window, table, messages, progress, talk, results, &bin})
            .deleteOnPC();
    }

    std::vector<std::string> inBin;
    Outcome binAnswer = Done{};
};

TEST_F(DeleteToWasteBinTest, IsOfferedUnchosenAndDeletesAsEver) {
    pcJobs();
    question.answers = {Answer::All};
    EXPECT_TRUE(remove());
    ASSERT_TRUE(question.choices.front());
    EXPECT_EQ(question.choices.front()->caption, "waste bin");
    EXPECT_FALSE(question.choices.front()->isChecked);
    EXPECT_THAT(inBin, IsEmpty());
    EXPECT_FALSE(pc.has("A.JBI"));
}

TEST_F(DeleteToWasteBinTest, AChosenBinGetsTheFilesAndTheChoiceStays) {
    pcJobs();
    question.answers = {Answer::Yes, Answer::All};
    question.checked = true;
    EXPECT_TRUE(remove());
    EXPECT_THAT(inBin, ElementsAre(pc.path("A.JBI"), pc.path("B.JBI"), pc.path("C.JBI")));
    EXPECT_TRUE(pc.has("A.JBI")) << "the bin's to take";
    EXPECT_TRUE(question.choices.back()->isChecked);
}

TEST_F(DeleteToWasteBinTest, AFileThatTheBinDoesNotTakeStaysAndIsTold) {
    pcJobs();
    window.pc.click({"A.JBI"});
    question.answers = {Answer::Yes};
    question.checked = true;
    binAnswer = Failure{"no bin here"};
    EXPECT_FALSE(remove());
    EXPECT_TRUE(pc.has("A.JBI"));
    EXPECT_THAT(boxes.texts(), ElementsAre("[A.JBI] not deleted ( no bin here )"));
}

TEST_F(DeleteToWasteBinTest, ACancelledQuestionChoosesNothing) {
    pcJobs();
    question.checked = true;
    EXPECT_FALSE(remove());
    EXPECT_FALSE(state.DeletesToWasteBin);
}

TEST_F(DeleteToWasteBinTest, IsNotOfferedForTheController) {
    robotJobs();
    question.answers = {Answer::All};
    EXPECT_TRUE(commands.deleteOnController());
    EXPECT_FALSE(question.choices.front());
}

} // namespace
} // namespace vantrel
