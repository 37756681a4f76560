#include "CommandFixture.h"
#include "files/CommandResult.h"

#include <gmock/gmock.h>

namespace vantrel::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What each command comes to, in the status bar and file by file.
class TransferResultTest : public CommandTest {
  protected:
    TransferResultTest() {
        robot(); // the controller is there
    }
    std::vector<std::string> ends() const {
        static constexpr const char* words[] = {"not tried", "done", "skipped", "failed"};
        std::vector<std::string> all;
        for (const ItemResult& item : results.last()->items)
            all.push_back(item.name + " " + words[int(item.end)] +
                          (item.reason.empty() ? "" : ": " + item.reason));
        return all;
    }
};

TEST_F(TransferResultTest, BeforeACommandThereIsNone) {
    pcJob("A");
    selectOnPC({"A.JBI"});
    EXPECT_EQ(window.result, "");
    commands.refresh(ActiveSide::PC);
    EXPECT_EQ(window.result, "");
}

TEST_F(TransferResultTest, OfACopyWithARefusedKindAndAKeptJob) {
    pcJob("A");
    pcJob("B");
    pc.write("X.TXT", "");
    robotJob("B", "old");
    selectOnPC({"A.JBI", "B.JBI", "X.TXT"});
    question.answers = {Answer::No};
    EXPECT_TRUE(commands.sendCopy());
    EXPECT_EQ(window.result, "1 sent, 2 skipped, 0 failed");
    EXPECT_THAT(ends(), ElementsAre("A.JBI done", "B.JBI skipped: kept", "X.TXT skipped: refused"));
    EXPECT_EQ(window.pc.selectedNames(), (std::vector<std::string>{"A.JBI", "B.JBI", "X.TXT"}))
        << "nothing is left to be done";
}

TEST_F(TransferResultTest, OfACopyThatFailsOnlyWhatIsLeftStaysSelected) {
    for (const char* name : {"A", "B", "C"})
        robotJob(name);
    selectOnController({"A.JBI", "B.JBI", "C.JBI"});
    library.disturb({.function = "BscUpLoad", .call = 2, .code = 2000});
    EXPECT_FALSE(commands.receiveCopy());
    EXPECT_EQ(window.result, "1 received, 0 skipped, 1 failed, 1 not tried");
    EXPECT_EQ(window.controller.selectedNames(), (std::vector<std::string>{"B.JBI", "C.JBI"}));
}

TEST_F(TransferResultTest, OfACopyThatCameToNoFileEachHasTheReason) {
    pcJob("A");
    pcJob("B");
    selectOnPC({"A.JBI", "B.JBI"});
    library.disturb({.function = "BscConnect", .code = 2040});
    EXPECT_FALSE(commands.sendCopy());
    EXPECT_EQ(window.result, "0 sent, 0 skipped, 0 failed, 2 not tried");
    EXPECT_EQ(results.last()->items[1].reason, results.last()->items[0].reason);
    EXPECT_NE(results.last()->items[0].reason, "");
    EXPECT_FALSE(results.last()->cancelled);
}

TEST_F(TransferResultTest, OfACopyThatIsCancelled) {
    for (const char* name : {"A", "B", "C"})
        pcJob(name);
    selectOnPC({"A.JBI", "B.JBI", "C.JBI"});
    library.onCall = [this](const std::string& function) {
        if (function == "BscDownLoad")
            progress.pressCancel();
    };
    EXPECT_FALSE(commands.sendCopy());
    EXPECT_EQ(window.result, "1 sent, 0 skipped, 0 failed, 2 not tried, cancelled");
    EXPECT_EQ(window.pc.selectedNames(), (std::vector<std::string>{"B.JBI", "C.JBI"}));
}

TEST_F(TransferResultTest, OfACancelledQuestionTheFileWasNotTried) {
    pcJob("A");
    robotJob("A", "old");
    selectOnPC({"A.JBI"});
    question.answers = {Answer::Cancel};
    EXPECT_FALSE(commands.sendCopy());
    EXPECT_EQ(window.result, "0 sent, 0 skipped, 0 failed, 1 not tried, cancelled");
}

TEST_F(TransferResultTest, OfAReceiveByAnotherNameTheFileIsNamedAsItCame) {
    state.JBR = true;
    robotJob("A");
    selectOnController({"A.JBI"});
    commands.receiveCopy();
    ASSERT_EQ(results.last()->items.size(), 1u);
    EXPECT_EQ(results.last()->items[0].name, "A.JBR");
    EXPECT_EQ(results.last()->items[0].row, "A.JBI");
    EXPECT_EQ(results.last()->items[0].end, ItemEnd::Done);
}

TEST_F(TransferResultTest, OfAMove) {
    for (const char* name : {"A", "B", "C"})
        pcJob(name);
    robotJob("B", "old");
    selectOnPC({"A.JBI", "B.JBI", "C.JBI"});
    question.answers = {Answer::No};
    EXPECT_TRUE(commands.sendMove());
    EXPECT_EQ(window.result, "2 moved, 1 skipped, 0 failed");
    EXPECT_THAT(ends(), ElementsAre("A.JBI done", "B.JBI skipped: kept", "C.JBI done"));
}

TEST_F(TransferResultTest, OfAMoveWhoseFileDoesNotArriveItIsAFailure) {
    pcJob("A");
    selectOnPC({"A.JBI"});
    library.disturb({.function = "BscDownLoad", .doNothing = true});
    EXPECT_FALSE(commands.sendMove());
    EXPECT_EQ(window.result, "0 moved, 0 skipped, 1 failed");
    EXPECT_EQ(window.pc.selectedNames(), (std::vector<std::string>{"A.JBI"}));
}

TEST_F(TransferResultTest, OfAMoveWhoseJobStaysOnTheController) {
    robotJob("A");
    selectOnController({"A.JBI"});
    library.disturb({.function = "BscDeleteJob", .code = 2000});
    EXPECT_FALSE(commands.receiveMove());
    EXPECT_EQ(window.result, "0 moved, 0 skipped, 1 failed");
}

TEST_F(TransferResultTest, OfAReceivingMoveThatIsCancelledBeforeTheDeletion) {
    robotJob("A");
    selectOnController({"A.JBI"});
    library.onCall = [this](const std::string& function) {
        if (function == "BscUpLoad")
            progress.pressCancel();
    };
    EXPECT_FALSE(commands.receiveMove());
    EXPECT_TRUE(robot().has("A.JBI"));
    EXPECT_EQ(window.result, "0 moved, 0 skipped, 1 failed, cancelled");
    EXPECT_THAT(ends(), ElementsAre("A.JBI failed: original not deleted"));
}

TEST_F(TransferResultTest, OfAMoveWhoseFileWasSavedMeanwhileItStays) {
    pcJob("A");
    selectOnPC({"A.JBI"});
    library.onCall = [this](const std::string& function) {
        if (function == "BscDownLoad")
            pcJob("A", "2");
    };
    EXPECT_FALSE(commands.sendMove());
    EXPECT_TRUE(pc.has("A.JBI"));
    EXPECT_EQ(window.result, "0 moved, 0 skipped, 1 failed");
}

TEST_F(TransferResultTest, OfAReceiveFromAnUnsetAddressNothingFailed) {
    robotJob("A");
    selectOnController({"A.JBI"});
    state.TransMode = TransferMode::HispeedLink;
    session.IPaddress = "0.0.0.0";
    EXPECT_FALSE(commands.receiveCopy());
    EXPECT_EQ(window.result, "0 received, 0 skipped, 0 failed, 1 not tried");
}

TEST_F(TransferResultTest, OfADeletion) {
    for (const char* name : {"A", "B", "C"})
        robotJob(name);
    selectOnController({"A.JBI", "B.JBI", "C.JBI"});
    question.answers = {Answer::Yes, Answer::No, Answer::Cancel};
    EXPECT_FALSE(commands.deleteOnController());
    EXPECT_EQ(window.result, "1 deleted, 1 skipped, 0 failed, 1 not tried, cancelled");
}

// What an earlier command has said of an address has nothing to do with it.
TEST_F(TransferResultTest, OfADeletionAndAMoveThatAreCancelledAfterAnUnsetAddress) {
    pcJob("A");
    state.TransMode = TransferMode::HispeedLink;
    session.IPaddress = "0.0.0.0";
    EXPECT_FALSE(commands.refresh(ActiveSide::Controller));
    ASSERT_TRUE(session.operatorIsTold());
    ASSERT_TRUE(panes.scanPC(pc.path()));
    window.pcFilter = allFiles;
    panes.fill(ActiveSide::PC);
    window.pc.click({"A.JBI"});
    question.answers = {Answer::Cancel};
    EXPECT_FALSE(commands.deleteOnPC());
    EXPECT_EQ(window.result, "0 deleted, 0 skipped, 0 failed, 1 not tried, cancelled");
    pressCancelAtYield(1);
    EXPECT_FALSE(commands.sendMove());
    EXPECT_EQ(window.result, "0 moved, 0 skipped, 0 failed, 1 not tried, cancelled");
}

TEST_F(TransferResultTest, OfAnUnsetAddressNothingWasCancelled) {
    pcJob("A");
    selectOnPC({"A.JBI"});
    state.TransMode = TransferMode::HispeedLink;
    session.IPaddress = "0.0.0.0";
    EXPECT_FALSE(commands.sendMove());
    EXPECT_EQ(window.result, "0 moved, 0 skipped, 0 failed, 1 not tried");
}

TEST_F(TransferResultTest, OfADeletionOnThePC) {
    pcJob("A");
    pc.makeFolder("SUB");
    selectOnPC({"SUB", "A.JBI"});
    question.answers = {Answer::All};
    EXPECT_TRUE(commands.deleteOnPC());
    EXPECT_EQ(window.result, "1 deleted, 1 skipped, 0 failed");
    EXPECT_EQ(results.last()->place, "") << "no controller has to do with it";
}

} // namespace
} // namespace vantrel::tests
