#include "CommandFixture.h"

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MoveOverwriteTest : public tests::CommandTest {};

/// "COPY.JBI" replaces two jobs: the one of its own name and "A", which its name line names.
class MoveOverTwoJobs : public MoveOverwriteTest {
  protected:
    MoveOverTwoJobs() {
        pc.write("COPY.JBI", job("A", "new"));
        robotJob("A", "old");
        robotJob("COPY", "old");
    }
    void expectNothingMoved() {
        EXPECT_TRUE(pc.has("COPY.JBI"));
        EXPECT_EQ(robot().bytes("A.JBI"), job("A", "old"));
        EXPECT_EQ(robot().bytes("COPY.JBI"), job("COPY", "old"));
        EXPECT_EQ(library.callCount("BscDeleteJob"), 0);
        EXPECT_THAT(boxes.texts(), IsEmpty());
    }
};

TEST_F(MoveOverTwoJobs, BothAreAskedFor) {
    selectOnPC({"COPY.JBI"});
    question.answers = {Answer::Yes, Answer::Yes};
    EXPECT_TRUE(commands.sendMove());
    EXPECT_THAT(question.questions, ElementsAre("COPY.JBI already exists. Overwrite it?\n"
                                                "[COPY.JBI] > [A.JBI] other name",
                                                "A.JBI already exists. Overwrite it?"));
    EXPECT_THAT(boxes.texts(), ElementsAre("gone and not replaced:\n[COPY.JBI]"));
    EXPECT_THAT(robot().names(), ElementsAre("A.JBI"));
    EXPECT_EQ(robot().bytes("A.JBI"), job("A", "new"));
    EXPECT_FALSE(pc.has("COPY.JBI"));
}

TEST_F(MoveOverTwoJobs, AJobThatTheNextFileBringsBackIsNotMissed) {
    pc.write("X.JBI", job("COPY", "newer"));
    selectOnPC({"COPY.JBI", "X.JBI"});
    question.answers = {Answer::Yes, Answer::Yes};
    EXPECT_TRUE(commands.sendMove());
    EXPECT_THAT(boxes.texts(), IsEmpty());
    EXPECT_THAT(robot().names(), ElementsAre("A.JBI", "COPY.JBI"));
    EXPECT_THAT(window.controller.names, ElementsAre("A.JBI", "COPY.JBI"));
}

TEST_F(MoveOverTwoJobs, AJobThatTheNextFileBringsBackStaysListedWithoutAnotherReading) {
    pc.write("X.JBI", job("COPY", "newer"));
    selectOnPC({"COPY.JBI", "X.JBI"});
    question.answers = {Answer::Yes, Answer::Yes};
    library.onCall = [this](const std::string& function) {
        if (function == "BscOpen" && library.callCount("BscDownLoad") == 2)
            library.disturb({.function = "BscConnect", .code = -3});
    };
    EXPECT_FALSE(commands.sendMove());
    EXPECT_THAT(window.controller.names, ElementsAre("A.JBI", "COPY.JBI"));
}

TEST_F(MoveOverTwoJobs, ANoToEitherSkipsTheFile) {
    selectOnPC({"COPY.JBI"});
    question.answers = {Answer::Yes, Answer::No};
    EXPECT_TRUE(commands.sendMove());
    EXPECT_EQ(question.questions.size(), 2u);
    expectNothingMoved();
}

TEST_F(MoveOverTwoJobs, CancelEndsTheCommand) {
    pcJob("D");
    selectOnPC({"COPY.JBI", "D.JBI"});
    question.answers = {Answer::Yes, Answer::Cancel};
    EXPECT_FALSE(commands.sendMove());
    EXPECT_TRUE(pc.has("D.JBI"));
    expectNothingMoved();
}

TEST_F(MoveOverTwoJobs, AllCoversBoth) {
    selectOnPC({"COPY.JBI"});
    question.answers = {Answer::All};
    EXPECT_TRUE(commands.sendMove());
    EXPECT_EQ(question.questions.size(), 1u);
    EXPECT_FALSE(pc.has("COPY.JBI"));
}

TEST_F(MoveOverwriteTest, OnlyTheJobNamedInsideIsAskedForByItsOwnName) {
    pc.write("COPY.JBI", job("A", "new"));
    robotJob("A", "old");
    selectOnPC({"COPY.JBI"});
    question.answers = {Answer::No};
    EXPECT_TRUE(commands.sendMove());
    EXPECT_THAT(question.questions, ElementsAre("A.JBI already exists. Overwrite it?"));
    EXPECT_EQ(robot().bytes("A.JBI"), job("A", "old"));
    EXPECT_TRUE(pc.has("COPY.JBI"));
}

/// Three files with one name line: All must not let each one delete the one before it, whose PC
/// file is gone by then.
TEST_F(MoveOverwriteTest, AJobThatTheSameMoveHasSentIsAskedForInSpiteOfAll) {
    for (const char* name : {"A1", "A2", "A3", "B"})
        pc.write(std::string(name) + ".JBI", job(name[0] == 'B' ? "B" : "a", name));
    robotJob("A", "old");
    robotJob("B", "old");
    selectOnPC({"A1.JBI", "A2.JBI", "A3.JBI", "B.JBI"});
    question.answers = {Answer::All, Answer::No, Answer::Yes};
    EXPECT_TRUE(commands.sendMove());
    EXPECT_THAT(question.questions, ElementsAre("A.JBI already exists. Overwrite it?",
                                                "A.JBI already exists. Overwrite it?",
                                                "A.JBI already exists. Overwrite it?"));
    EXPECT_FALSE(pc.has("A1.JBI"));
    EXPECT_TRUE(pc.has("A2.JBI"));
    EXPECT_FALSE(pc.has("A3.JBI"));
    EXPECT_EQ(robot().bytes("A.JBI"), job("a", "A3"));
    EXPECT_EQ(robot().bytes("B.JBI"), job("B", "B"));
}

/// The listing holds a fixed name of the table beside the directory's.
TEST_F(MoveOverwriteTest, AFileThatTheSameMoveHasReceivedIsAskedForInSpiteOfAll) {
    robot().put("FIXED.DAT", "1");
    pc.write("FIXED.DAT", "old");
    showPanes();
    window.controllerFilter = 1; // data files
    panes.fill(ActiveSide::Controller);
    ASSERT_THAT(window.controller.names, ElementsAre("FIXED.DAT", "FIXED.DAT"));
    window.controller.selected = {0, 1};
    library.onCall = [this](const std::string& function) {
        if (function == "BscDeleteJob") // the controller has another version at once
            robot().put("FIXED.DAT", "2");
    };
    library.disturb({"BscDeleteJob", 1, true, true});
    question.answers = {Answer::All, Answer::No};
    EXPECT_TRUE(commands.receiveMove());
    EXPECT_EQ(question.questions.size(), 2u);
    EXPECT_EQ(pc.read("FIXED.DAT"), "1");
    EXPECT_EQ(robot().bytes("FIXED.DAT"), "2");
}

/// On a controller that lists the job by its name line as it is.
TEST_F(MoveOverwriteTest, ANameLineWithAnExtensionIsWhatHasArrived) {
    library.onCall = [this](const std::string& function) {
        if (function != "BscFindFirst" || !robot().has("X.JBI.JBI"))
            return;
        robot().put("X.JBI", robot().bytes("X.JBI.JBI"));
        robot().erase("X.JBI.JBI");
    };
    for (const char* file : {"A.JBI", "B.JBI"})
        pc.write(file, job("X.JBI", file));
    robotJob("X", "old");
    selectOnPC({"A.JBI", "B.JBI"});
    question.answers = {Answer::All, Answer::No};
    EXPECT_TRUE(commands.sendMove());
    EXPECT_EQ(question.questions.size(), 2u);
    EXPECT_TRUE(pc.has("B.JBI"));
}

} // namespace
} // namespace vantrel
