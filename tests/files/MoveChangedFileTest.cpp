#include "CommandFixture.h"

#include <filesystem>

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The question of a move stays open as long as the operator likes, and somebody else works on the
/// files meanwhile.
class MoveChangedFileTest : public tests::CommandTest {
  protected:
    MoveChangedFileTest() {
        pcJob("A", "new");
        robotJob("A", "old");
        robotJob("B", "precious");
    }

    /// Moves "A.JBI", with this done while its first question is open.
    bool moveWhile(std::function<void()> change) {
        selectOnPC({"A.JBI"});
        question.whileOpen = [this, change = std::move(change)] {
            if (question.questions.size() == 1)
                change();
        };
        return commands.sendMove();
    }
};

TEST_F(MoveChangedFileTest, WithoutAnyChangeOneFurtherTransferFollowsTheAnswer) {
    question.answers = {Answer::Yes};
    selectOnPC({"A.JBI"});
    const int readBefore = library.callCount("BscFindFirst");
    EXPECT_TRUE(commands.sendMove());
    EXPECT_EQ(robot().bytes("A.JBI"), job("A", "new"));
    // One directory for each of the two transfers, and one for the pane at the end.
    EXPECT_EQ(library.callCount("BscFindFirst") - readBefore, 3);
    EXPECT_EQ(library.callCount("BscDownLoad"), 1);
}

TEST_F(MoveChangedFileTest, AnotherJobThatItReplacesNowIsAskedForToo) {
    question.answers = {Answer::Yes, Answer::Yes, Answer::No};
    EXPECT_TRUE(moveWhile([this] { pc.write("A.JBI", job("B", "other")); }));
    EXPECT_THAT(question.questions, ElementsAre("A.JBI already exists. Overwrite it?",
                                                "A.JBI already exists. Overwrite it?\n"
                                                "[A.JBI] > [B.JBI] other name",
                                                "B.JBI already exists. Overwrite it?"));
    EXPECT_EQ(robot().bytes("A.JBI"), job("A", "old"));
    EXPECT_EQ(robot().bytes("B.JBI"), job("B", "precious"));
    EXPECT_TRUE(pc.has("A.JBI"));
}

TEST_F(MoveChangedFileTest, AJobThatIsOnlyDeletedForItNowIsAskedForAgain) {
    question.answers = {Answer::Yes, Answer::No};
    EXPECT_TRUE(moveWhile([this] { pc.write("A.JBI", job("NEW", "other")); }));
    EXPECT_THAT(question.questions, ElementsAre("A.JBI already exists. Overwrite it?",
                                                "A.JBI already exists. Overwrite it?\n"
                                                "[A.JBI] > [NEW.JBI] other name"));
    EXPECT_EQ(robot().bytes("A.JBI"), job("A", "old"));
    EXPECT_FALSE(robot().has("NEW.JBI"));
    EXPECT_EQ(pc.read("A.JBI"), job("NEW", "other"));
}

TEST_F(MoveChangedFileTest, AJobThatIsReplacedNowAndNotOnlyDeletedIsAskedForAgainToo) {
    pc.write("A.JBI", job("NEW", "other"));
    question.answers = {Answer::Yes, Answer::No};
    EXPECT_TRUE(moveWhile([this] { pcJob("A", "newer"); }));
    EXPECT_EQ(question.questions.size(), 2u);
    EXPECT_EQ(robot().bytes("A.JBI"), job("A", "old"));
}

TEST_F(MoveChangedFileTest, WithAllAnswersItGoesOn) {
    question.answers = {Answer::Yes, Answer::Yes, Answer::Yes};
    EXPECT_TRUE(moveWhile([this] { pc.write("A.JBI", job("B", "other")); }));
    EXPECT_THAT(robot().names(), ElementsAre("B.JBI"));
    EXPECT_EQ(robot().bytes("B.JBI"), job("B", "other"));
    EXPECT_FALSE(pc.has("A.JBI"));
}

TEST_F(MoveChangedFileTest, AJobThatCameToTheControllerMeanwhileIsAskedForToo) {
    pc.write("A.JBI", job("C", "new"));
    question.answers = {Answer::Yes, Answer::No};
    EXPECT_TRUE(moveWhile([this] { robotJob("C", "somebody's"); }));
    EXPECT_EQ(question.questions.size(), 2u);
    EXPECT_EQ(robot().bytes("C.JBI"), job("C", "somebody's"));
}

TEST_F(MoveChangedFileTest, AFileThatIsGoneCostsTheControllerNothing) {
    question.answers = {Answer::Yes};
    EXPECT_FALSE(moveWhile([this] { std::filesystem::remove(pc.path("A.JBI")); }));
    EXPECT_THAT(boxes.texts(), ElementsAre("Transfer failed:  ( not readable (21) )\n[A.JBI]"));
    EXPECT_EQ(robot().bytes("A.JBI"), job("A", "old"));
}

TEST_F(MoveChangedFileTest, AJobThatIsGoneFromTheControllerIsNotAskedForAgain) {
    question.answers = {Answer::Yes};
    EXPECT_TRUE(moveWhile([this] { robot().erase("A.JBI"); }));
    EXPECT_EQ(robot().bytes("A.JBI"), job("A", "new"));
    EXPECT_THAT(boxes.texts(), IsEmpty());
}

TEST_F(MoveChangedFileTest, AllWasMeantForWhateverIsInTheWay) {
    question.answers = {Answer::All};
    EXPECT_TRUE(moveWhile([this] { pc.write("A.JBI", job("B", "other")); }));
    EXPECT_EQ(question.questions.size(), 1u);
    EXPECT_EQ(robot().bytes("B.JBI"), job("B", "other"));
}

} // namespace
} // namespace vantrel
