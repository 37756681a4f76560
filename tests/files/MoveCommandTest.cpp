#include "CommandFixture.h"

#include <filesystem>
#include <utility>

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MoveCommandTest : public tests::CommandTest {};

TEST_F(MoveCommandTest, ASentFileLeavesThePC) {
    pcJob("A");
    pcJob("B");
    pcJob("STAYS");
    robot();
    selectOnPC({"A.JBI", "B.JBI"});
    EXPECT_TRUE(commands.sendMove());
    EXPECT_EQ(robot().bytes("A.JBI"), job("A"));
    EXPECT_EQ(robot().bytes("B.JBI"), job("B"));
    EXPECT_THAT(window.pc.names, ElementsAre("STAYS.JBI"));
    EXPECT_THAT(window.controller.names, ElementsAre("A.JBI", "B.JBI"));
    EXPECT_EQ(window.pcStatus, "PC: 1 items");
    EXPECT_EQ(window.controllerStatus, "Controller: 2 items");
    EXPECT_THAT(boxes.texts(), IsEmpty());
}

TEST_F(MoveCommandTest, AReceivedJobLeavesTheController) {
    robotJob("A");
    robotJob("STAYS");
    selectOnController({"A.JBI"});
    EXPECT_TRUE(commands.receiveMove());
    EXPECT_EQ(pc.read("A.JBI"), job("A"));
    EXPECT_THAT(window.controller.names, ElementsAre("STAYS.JBI"));
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI"));
    EXPECT_EQ(window.controller.focuses, 1);
}

TEST_F(MoveCommandTest, TheSessionWorksSilentlyWhileTheCommandShowsEachFile) {
    pcJob("A");
    pcJob("B");
    robot();
    selectOnPC({"A.JBI", "B.JBI"});
    std::vector<std::string> waitingFor;
    library.onCall = [&](const std::string& function) {
        if (function == "BscDownLoad") {
            EXPECT_FALSE(session.DisplayMonitor);
            EXPECT_TRUE(progress.isVisible());
            waitingFor.push_back(progress.waitingFor());
        }
    };
    EXPECT_TRUE(commands.sendMove());
    EXPECT_THAT(waitingFor, ElementsAre("item 1 of 2  waiting", "item 2 of 2  waiting"));
    EXPECT_THAT(progressView.messages(), ElementsAre("Transferring ", "Transferring A.JBI",
                                                     "Transferring B.JBI", "reading directory"));
}

TEST_F(MoveCommandTest, TheOverwriteQuestionTellsWhichSideLosesAndHowManyFilesAreLeft) {
    for (const char* name : {"A", "B", "C"}) {
        pcJob(name, "new");
        robotJob(name, "old");
    }
    selectOnPC({"A.JBI", "B.JBI", "C.JBI"});
    question.answers = {Answer::No, Answer::Cancel};
    commands.sendMove();
    EXPECT_THAT(question.notes,
                ElementsAre("\u2192 COM1\nthe controller loses\nitem 1 of 3  2 more",
                            "\u2192 COM1\nthe controller loses\nitem 2 of 3  1 more"));
    question.notes.clear();
    selectOnController({"A.JBI"});
    commands.receiveMove();
    EXPECT_THAT(question.notes, ElementsAre("\u2190 COM1\nthe PC loses"));
}

TEST_F(MoveCommandTest, TheOverwriteQuestionNamesTheFile) {
    pcJob("A", "new");
    robotJob("A", "old");
    selectOnPC({"A.JBI"});
    question.answers = {Answer::Yes};
    question.whileOpen = [this] { EXPECT_FALSE(progress.isVisible()); };
    EXPECT_TRUE(commands.sendMove());
    EXPECT_THAT(question.questions, ElementsAre("A.JBI already exists. Overwrite it?"));
    EXPECT_EQ(robot().bytes("A.JBI"), job("A", "new"));
    EXPECT_FALSE(pc.has("A.JBI"));
}

class MoveAnswer : public MoveCommandTest, public testing::WithParamInterface<bool> {
  protected:
    bool sends() const { return GetParam(); }
    void put(const char* name) {
        pcJob(name, sends() ? "new" : "old");
        robotJob(name, sends() ? "old" : "new");
    }
    void select(const std::vector<std::string>& names) {
        sends() ? selectOnPC(names) : selectOnController(names);
    }
    bool move() { return sends() ? commands.sendMove() : commands.receiveMove(); }
    bool sourceIsThere(const std::string& name) {
        return sends() ? pc.has(name) : robot().has(name);
    }
    std::string destination(const std::string& name) {
        return sends() ? robot().bytes(name) : pc.read(name);
    }
};

TEST_P(MoveAnswer, YesCountsForOneFile) {
    put("A");
    put("B");
    select({"A.JBI", "B.JBI"});
    question.answers = {Answer::Yes, Answer::No};
    EXPECT_TRUE(move());
    EXPECT_EQ(question.questions.size(), 2u);
    EXPECT_EQ(destination("A.JBI"), job("A", "new"));
    EXPECT_FALSE(sourceIsThere("A.JBI"));
    EXPECT_EQ(destination("B.JBI"), job("B", "old"));
    EXPECT_TRUE(sourceIsThere("B.JBI"));
}

TEST_P(MoveAnswer, AllCountsForTheRest) {
    for (const char* name : {"A", "B", "C"})
        put(name);
    select({"A.JBI", "B.JBI", "C.JBI"});
    question.answers = {Answer::No, Answer::All};
    EXPECT_TRUE(move());
    EXPECT_EQ(question.questions.size(), 2u);
    EXPECT_TRUE(sourceIsThere("A.JBI"));
    EXPECT_EQ(destination("B.JBI"), job("B", "new"));
    EXPECT_EQ(destination("C.JBI"), job("C", "new"));
    EXPECT_FALSE(sourceIsThere("C.JBI"));
}

TEST_P(MoveAnswer, CancelEndsTheCommandAndKeepsWhatWasMoved) {
    for (const char* name : {"A", "B", "C"})
        put(name);
    select({"A.JBI", "B.JBI", "C.JBI"});
    question.answers = {Answer::Yes, Answer::Cancel};
    EXPECT_FALSE(move());
    EXPECT_EQ(destination("A.JBI"), job("A", "new"));
    EXPECT_FALSE(sourceIsThere("A.JBI"));
    EXPECT_TRUE(sourceIsThere("B.JBI"));
    EXPECT_TRUE(sourceIsThere("C.JBI"));
    EXPECT_EQ(destination("B.JBI"), job("B", "old"));
    EXPECT_THAT(boxes.texts(), IsEmpty());
}

TEST_P(MoveAnswer, CancelOfTheProgressEndsBeforeTheNextCall) {
    put("A");
    put("B");
    select({"A.JBI", "B.JBI"});
    question.answers = {Answer::All};
    pressCancelAtYield(3); // shown, A, B
    EXPECT_FALSE(move());
    EXPECT_FALSE(sourceIsThere("A.JBI"));
    EXPECT_TRUE(sourceIsThere("B.JBI"));
    EXPECT_EQ(destination("B.JBI"), job("B", "old"));
    EXPECT_THAT(boxes.texts(), IsEmpty());
}

TEST_P(MoveAnswer, CancelPressedWhileTheQuestionIsOpenComesBeforeItsAnswer) {
    put("A");
    select({"A.JBI"});
    question.answers = {Answer::Yes};
    question.whileOpen = [this] { progress.pressCancel(); };
    EXPECT_FALSE(move());
    EXPECT_TRUE(sourceIsThere("A.JBI"));
    EXPECT_EQ(destination("A.JBI"), job("A", "old"));
}

TEST_P(MoveAnswer, AFailureIsReportedAndTheNextFileFollows) {
    put("A");
    put("B");
    select({"A.JBI", "B.JBI"});
    question.answers = {Answer::All};
    library.disturb({sends() ? "BscDownLoad" : "BscUpLoad", 1, false, false, 2000});
    EXPECT_FALSE(move());
    // The old job goes before the send, so the robot has neither now.
    const std::string report = sends() ? "BscDownLoad ( line broken (2000) )\n[A.JBI]"
                                         "\ngone and not replaced:\n[A.JBI]"
                                       : "BscUpLoad ( line broken (2000) )\n[A.JBI]";
    EXPECT_THAT(boxes.texts(), ElementsAre("Transfer failed: " + report));
    EXPECT_TRUE(sourceIsThere("A.JBI"));
    EXPECT_FALSE(sourceIsThere("B.JBI"));
    EXPECT_EQ(destination("B.JBI"), job("B", "new"));
}

TEST_P(MoveAnswer, AJobOfThePCAloneIsPassedOverByName) {
    pc.write("LocalJob.lst", "A\r\n");
    put("A");
    put("B");
    select({"A.JBI", "B.JBI"});
    question.answers = {Answer::Yes};
    EXPECT_TRUE(move());
    EXPECT_THAT(boxes.texts(), ElementsAre("[A.JBI] is local"));
    EXPECT_TRUE(sourceIsThere("A.JBI"));
    EXPECT_FALSE(sourceIsThere("B.JBI"));
}

TEST_P(MoveAnswer, AnUnsetAddressEndsTheCommandWithOneMessage) {
    put("A");
    put("B");
    select({"A.JBI", "B.JBI"});
    question.answers = {Answer::All};
    state.TransMode = TransferMode::HispeedLink;
    session.IPaddress = "0.0.0.0";
    EXPECT_FALSE(move());
    EXPECT_THAT(boxes.texts(), ElementsAre("address unset"));
    EXPECT_TRUE(sourceIsThere("A.JBI"));
    EXPECT_TRUE(sourceIsThere("B.JBI"));
}

/// A link that does not close counts as a failed transfer, so the source stays.
TEST_P(MoveAnswer, ADisconnectThatFailsKeepsTheSource) {
    put("A");
    robot().erase("A.JBI");
    if (!sends())
        robotJob("A", "new");
    select({"A.JBI"});
    question.answers = {Answer::Yes};
    library.onCall = [this](const std::string& function) {
        if (function == "BscDownLoad" || function == "BscUpLoad")
            library.disturb({"BscDisConnect", 1, false, false, 2000});
    };
    EXPECT_FALSE(move());
    EXPECT_TRUE(sourceIsThere("A.JBI"));
    ASSERT_FALSE(boxes.shown.empty());
    EXPECT_EQ(boxes.shown[0].text,
              "Transfer failed: BscDisConnect ( line broken (2000) )\n[A.JBI]");
    linksLeftOpen = 1; // on purpose: a link that does not disconnect is not closed
}

INSTANTIATE_TEST_SUITE_P(BothWays, MoveAnswer, testing::Bool(),
                         [](const auto& row) { return row.param ? "Send" : "Receive"; });

TEST_F(MoveCommandTest, AJobThatExistsAfterTheOverwriteIsAFailureAndNoNewQuestion) {
    pcJob("A", "new");
    robotJob("A", "old");
    selectOnPC({"A.JBI"});
    question.answers = {Answer::Yes, Answer::Yes, Answer::Yes};
    library.disturb({"BscDeleteJob", 1, false, true});
    EXPECT_FALSE(commands.sendMove());
    EXPECT_EQ(question.questions.size(), 1u);
    EXPECT_TRUE(pc.has("A.JBI"));
    ASSERT_EQ(boxes.shown.size(), 1u);
    EXPECT_TRUE(boxes.shown[0].text.starts_with("Transfer failed: BscDownLoad"));
}

TEST_F(MoveCommandTest, AReceiveThatReportsSuccessButBringsNothingKeepsBothSides) {
    pcJob("A", "old");
    robotJob("A", "new");
    selectOnController({"A.JBI"});
    question.answers = {Answer::Yes};
    library.disturb({"BscUpLoad", 1, false, true});
    EXPECT_FALSE(commands.receiveMove());
    EXPECT_THAT(boxes.texts(),
                ElementsAre("Transfer failed: BscUpLoad ( did not arrive (25) )\n[A.JBI]"));
    EXPECT_EQ(robot().bytes("A.JBI"), job("A", "new"));
    EXPECT_EQ(pc.read("A.JBI"), job("A", "old"));
    EXPECT_EQ(library.callCount("BscDeleteJob"), 0);
}

TEST_F(MoveCommandTest, JobsWhoseNamesDifferInLetterCaseOnlyAreNotReceived) {
    robotJob("foo", "low");
    robotJob("FOO", "up");
    robotJob("B");
    selectOnController({"foo.JBI", "B.JBI"});
    EXPECT_TRUE(commands.receiveMove());
    EXPECT_THAT(boxes.texts(), ElementsAre("[foo.JBI] is ambiguous"));
    EXPECT_THAT(robot().names(), ElementsAre("foo.JBI", "FOO.JBI"));
    EXPECT_FALSE(pc.has("foo.JBI"));
    EXPECT_TRUE(pc.has("B.JBI"));
}

/// As in a list transfer, a folder without a list of its own leaves the last one in force.
TEST_F(MoveCommandTest, TheLocalListIsTheSessionsOwn) {
    robot();
    pc.write("LocalJob.lst", "A\n");
    ASSERT_TRUE(session.JobListDownLoad());
    std::filesystem::remove(pc.path("LocalJob.lst"));
    pcJob("A");
    selectOnPC({"A.JBI"});
    EXPECT_TRUE(commands.sendMove());
    EXPECT_THAT(boxes.texts(), ElementsAre("[A.JBI] is local"));
    EXPECT_TRUE(pc.has("A.JBI"));
}

TEST_F(MoveCommandTest, AQuestionAboutAVeryLongNameIsShortened) {
    const std::string name(240, 'A');
    pcJob(name, "new");
    robotJob(name, "old");
    selectOnPC({name + ".JBI"});
    EXPECT_FALSE(commands.sendMove());
    ASSERT_EQ(question.questions.size(), 1u);
    EXPECT_LT(question.questions[0].size(), 240u);
}

TEST_F(MoveCommandTest, AReceivedJobThatCannotBeDeletedIsNamed) {
    robotJob("A");
    robotJob("B");
    selectOnController({"A.JBI", "B.JBI"});
    library.disturb({"BscDeleteJob", 1, false, false, 2000});
    EXPECT_FALSE(commands.receiveMove());
    EXPECT_THAT(boxes.texts(),
                ElementsAre("[A.JBI] original not deleted BscDeleteJob ( line broken (2000) )"));
    EXPECT_TRUE(pc.has("A.JBI"));
    EXPECT_TRUE(robot().has("A.JBI"));
    EXPECT_FALSE(robot().has("B.JBI"));
}

TEST_F(MoveCommandTest, CancelPressedDuringAReceiveKeepsTheControllersJob) {
    robotJob("A");
    selectOnController({"A.JBI"});
    library.onCall = [this](const std::string& function) {
        if (function == "BscUpLoad")
            progress.pressCancel();
    };
    EXPECT_FALSE(commands.receiveMove());
    EXPECT_TRUE(pc.has("A.JBI"));
    EXPECT_TRUE(robot().has("A.JBI"));
}

TEST_F(MoveCommandTest, ASentFileThatCannotBeDeletedIsNamedWithTheReason) {
    pcJob("A");
    robot();
    selectOnPC({"A.JBI"});
    bool sent = false;
    library.onCall = [&](const std::string& function) {
        if (function == "BscDownLoad")
            sent = true;
        else if (std::exchange(sent, false)) { // a folder takes the file's place
            std::filesystem::remove(pc.path("A.JBI"));
            pc.write("A.JBI/inside", "");
        }
    };
    EXPECT_FALSE(commands.sendMove());
    ASSERT_EQ(boxes.shown.size(), 1u);
    EXPECT_TRUE(boxes.shown[0].text.starts_with("[A.JBI] original not deleted ( "));
    EXPECT_TRUE(pc.has("A.JBI/inside"));
}

TEST_F(MoveCommandTest, RefusedKindsAndFoldersAreNamedAndStay) {
    pc.write("A.TXT", "");
    pc.makeFolder("F.JBI");
    pcJob("B");
    robot();
    selectOnPC({"A.TXT", "F.JBI", "B.JBI"});
    EXPECT_TRUE(commands.sendMove());
    EXPECT_THAT(boxes.texts(),
                testing::UnorderedElementsAre("[A.TXT] refused", "[F.JBI] is a folder"));
    EXPECT_THAT(window.pc.names, ElementsAre("F.JBI", "A.TXT"));
    EXPECT_THAT(robot().names(), ElementsAre("B.JBI"));
}

TEST_F(MoveCommandTest, AReportAboutAVeryLongNameIsShortened) {
    const std::string name = std::string(240, 'A') + ".TXT";
    pc.write(name, "");
    robot();
    selectOnPC({name});
    EXPECT_TRUE(commands.sendMove());
    EXPECT_THAT(boxes.texts(), ElementsAre("[" + std::string(200, 'A') + "\u2026] refused"));
}

/// The session may have worked in another folder before, which has a file of that name too.
TEST_F(MoveCommandTest, TheFolderIsThePanesNowInBothDirections) {
    pc.write("A.JBI", job("A", "elsewhere"));
    pc.write("SUB/A.JBI", job("A", "meant"));
    robotJob("B");
    pc.write("B.JBI", job("B", "elsewhere"));
    showPanes();
    ASSERT_TRUE(panes.scanPC(pc.path("SUB")));
    panes.fill(ActiveSide::PC);
    session.path = pc.path();
    window.pc.click({"A.JBI"});
    EXPECT_TRUE(commands.sendMove());
    EXPECT_EQ(robot().bytes("A.JBI"), job("A", "meant"));
    EXPECT_TRUE(pc.has("A.JBI"));
    EXPECT_FALSE(pc.has("SUB/A.JBI"));
    session.path = pc.path();
    window.controller.click({"B.JBI"});
    EXPECT_TRUE(commands.receiveMove());
    EXPECT_EQ(pc.read("SUB/B.JBI"), job("B"));
    EXPECT_EQ(pc.read("B.JBI"), job("B", "elsewhere"));
    EXPECT_THAT(question.questions, IsEmpty());
}

TEST_F(MoveCommandTest, ADirectoryThatCannotBeReadIsReportedAsNoSuchFileAndTheNextFileFollows) {
    pcJob("A");
    pcJob("B");
    robot();
    selectOnPC({"A.JBI", "B.JBI"});
    library.disturb({"BscFindFirst", 1, false, false, 2000});
    EXPECT_FALSE(commands.sendMove());
    EXPECT_THAT(boxes.texts(),
                ElementsAre("no such file\n[A.JBI]\nCOM1\nBscFind ( line broken (2000) )"));
    EXPECT_TRUE(pc.has("A.JBI"));
    EXPECT_FALSE(pc.has("B.JBI"));
}

/// Related jobs are a matter of the list transfers.
TEST_F(MoveCommandTest, ReceivesTheJobItselfWhileRelatedJobsAreOn) {
    robotJob("A");
    state.JBR = true;
    selectOnController({"A.JBI"});
    EXPECT_TRUE(commands.receiveMove());
    EXPECT_TRUE(pc.has("A.JBI"));
    EXPECT_FALSE(pc.has("A.JBR"));
    EXPECT_FALSE(robot().has("A.JBI"));
}

TEST_F(MoveCommandTest, AJobWhoseNameDiffersFromAnotherInLetterCaseOnlyIsNotReplaced) {
    pcJob("FOO", "new");
    pcJob("B");
    robotJob("foo", "low");
    robotJob("FOO", "up");
    selectOnPC({"FOO.JBI", "B.JBI"});
    EXPECT_FALSE(commands.sendMove());
    EXPECT_THAT(boxes.texts(), ElementsAre("Transfer failed:  ( ambiguous (41) )\n[FOO.JBI]"));
    EXPECT_EQ(robot().bytes("foo.JBI"), job("foo", "low"));
    EXPECT_EQ(robot().bytes("FOO.JBI"), job("FOO", "up"));
    EXPECT_TRUE(pc.has("FOO.JBI"));
    EXPECT_FALSE(pc.has("B.JBI"));
}

TEST_F(MoveCommandTest, AJobThatWasDeletedForTheMoveLeavesTheListThoughItCannotBeReadAgain) {
    robotJob("A");
    robotJob("STAYS");
    selectOnController({"A.JBI"});
    library.onCall = [this](const std::string& function) {
        if (function == "BscDeleteJob")
            library.disturb({"BscConnect", 1, true, false, 2000});
    };
    EXPECT_TRUE(commands.receiveMove());
    EXPECT_THAT(window.controller.names, ElementsAre("STAYS.JBI"));
}

TEST_F(MoveCommandTest, RejectedFilesOnlyLeaveTheSessionAlone) {
    pc.write("A.TXT", "");
    robot();
    selectOnPC({"A.TXT"});
    EXPECT_TRUE(commands.sendMove());
    EXPECT_EQ(library.callCount(), 0);
}

TEST_F(MoveCommandTest, AnotherRobotChosenInTheLastCallsOfAFetchKeepsItsJob) {
    robotJob("A");
    library.at("COM2").put("A.JBI", "of the other robot");
    selectOnController({"A.JBI"});
    library.onCall = [this](const std::string& function) {
        if (function == "BscClose" && library.callCount("BscUpLoad") == 1)
            session.port = 2;
    };
    EXPECT_FALSE(commands.receiveMove());
    EXPECT_TRUE(robot().has("A.JBI"));
    EXPECT_TRUE(library.at("COM2").has("A.JBI"));
    EXPECT_FALSE(pc.has("A.JBI"));
}

/// The operator presses Cancel while the directory is read for a file.
class MoveCancelledReading : public MoveCommandTest {
  protected:
    void pressInReading(int reading) {
        library.onCall = [this, reading](const std::string& function) {
            if (function == "BscFindNext" && library.callCount("BscFindFirst") == reading)
                progress.pressCancel();
        };
    }
};

TEST_F(MoveCancelledReading, EndsTheCommandBeforeAnythingIsSent) {
    pcJob("A");
    pcJob("B");
    robotJob("C");
    selectOnPC({"A.JBI", "B.JBI"});
    pressInReading(1);
    EXPECT_FALSE(commands.sendMove());
    EXPECT_EQ(library.callCount("BscDownLoad"), 0);
    EXPECT_EQ(library.callCount("BscFindFirst"), 1) << "nothing has changed there";
    EXPECT_TRUE(pc.has("A.JBI"));
    EXPECT_TRUE(pc.has("B.JBI"));
    EXPECT_TRUE(boxes.texts().empty());
}

TEST_F(MoveCancelledReading, OfALaterFileIsFollowedByAFullOne) {
    pcJob("A");
    pcJob("B");
    robotJob("C");
    selectOnPC({"A.JBI", "B.JBI"});
    pressInReading(2);
    EXPECT_FALSE(commands.sendMove());
    EXPECT_EQ(window.controller.names, (std::vector<std::string>{"A.JBI", "C.JBI"}));
    EXPECT_FALSE(pc.has("A.JBI")) << "what went is shown, so its source goes";
    EXPECT_TRUE(boxes.texts().empty());
}

TEST_F(MoveCancelledReading, IsNoFailureToTellAfterAll) {
    pcJob("A", "new");
    pcJob("B", "new");
    robotJob("A", "old");
    robotJob("B", "old");
    selectOnPC({"A.JBI", "B.JBI"});
    question.answers = {Answer::All};
    pressInReading(3); // one for A's question, one for A
    EXPECT_FALSE(commands.sendMove());
    EXPECT_EQ(library.callCount("BscDownLoad"), 1);
    EXPECT_EQ(robot().bytes("B.JBI"), job("B", "old"));
    EXPECT_TRUE(pc.has("B.JBI"));
    EXPECT_TRUE(boxes.texts().empty());
}

} // namespace
} // namespace vantrel
