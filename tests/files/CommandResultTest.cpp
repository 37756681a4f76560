#include "files/CommandResult.h"

#include "lang/MessageTable.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel {
namespace {

using testing::ElementsAre;

class CommandResultTest : public testing::Test {
  protected:
    CommandResultTest() {
        messages_.replace({{400, "", "sent"},
                           {401, "", "received"},
                           {402, "", "moved"},
                           {403, "", "deleted"},
                           {404, "", "skipped"},
                           {405, "", "failed"},
                           {406, "", "not tried"},
                           {407, "", "cancelled"},
                           {408, "", "% %"},
                           {409, "", ", "}});
    }
    void begin(CommandKind kind = CommandKind::SendCopy) {
        log_.begin(kind, "to R1", "/jobs", {"A", "B", "C", "D"});
    }
    std::string line() const { return resultLine(messages_, *log_.last()); }

    MessageTable messages_;
    ResultLog log_;
};

TEST_F(CommandResultTest, BeforeTheFirstCommandAndWhileItRunsThereIsNone) {
    EXPECT_FALSE(log_.last());
    begin();
    EXPECT_FALSE(log_.last());
    log_.end(false);
    EXPECT_TRUE(log_.last());
}

TEST_F(CommandResultTest, WhatNobodySpokeOfWasNotTried) {
    begin();
    log_.note("B", ItemEnd::Done);
    log_.end(false);
    EXPECT_EQ(line(), "1 sent, 0 skipped, 0 failed, 3 not tried");
    EXPECT_THAT(log_.last()->openRows(), ElementsAre("A", "C", "D"));
}

TEST_F(CommandResultTest, TheLineCountsEveryEnd) {
    begin(CommandKind::ReceiveMove);
    log_.note("A", ItemEnd::Done);
    log_.note("B", ItemEnd::Skipped, "kept");
    log_.note("C", ItemEnd::Failed, "broken");
    log_.end(true);
    EXPECT_EQ(line(), "1 moved, 1 skipped, 1 failed, 1 not tried, cancelled");
    EXPECT_THAT(log_.last()->openRows(), ElementsAre("C", "D")) << "what was refused stays so";
    EXPECT_EQ(log_.last()->items[2].reason, "broken");
}

TEST_F(CommandResultTest, ACompleteCommandSaysNothingOfUntriedFiles) {
    log_.begin(CommandKind::DeleteOnPC, "", "/jobs", {"A"});
    log_.note("A", ItemEnd::Done);
    log_.end(false);
    EXPECT_EQ(line(), "1 deleted, 0 skipped, 0 failed");
}

TEST_F(CommandResultTest, WhatStaysOfAFileThatIsDoneIsAReasonOnly) {
    begin();
    log_.note("A", ItemEnd::Done);
    log_.note("A", ItemEnd::Skipped, "the source was changed");
    log_.note("B", ItemEnd::Done);
    log_.note("B", ItemEnd::Failed, "the original is still there");
    log_.end(false);
    EXPECT_EQ(log_.last()->items[0].end, ItemEnd::Done);
    EXPECT_EQ(log_.last()->items[0].reason, "the source was changed");
    EXPECT_EQ(log_.last()->items[1].end, ItemEnd::Failed);
}

TEST_F(CommandResultTest, ARowCanStandForAnotherName) {
    begin(CommandKind::ReceiveCopy);
    log_.rename(1, "B2");
    log_.note("B2", ItemEnd::Failed, "gone");
    log_.end(false);
    EXPECT_EQ(log_.last()->items[1].name, "B2");
    EXPECT_EQ(log_.last()->items[1].row, "B");
    EXPECT_EQ(log_.last()->items[1].end, ItemEnd::Failed);
}

TEST_F(CommandResultTest, FilesOfOneNameAreToldInTheirOrder) {
    log_.begin(CommandKind::LoadJobs, "", "/jobs", {"A", "B", "A", "A"});
    log_.note("A", ItemEnd::Done);
    log_.note("B", ItemEnd::Done);
    log_.note("A", ItemEnd::Failed);
    log_.note("A", ItemEnd::Failed, "broken");
    log_.end(false);
    const auto& items = log_.last()->items;
    EXPECT_EQ(items[0].end, ItemEnd::Done);
    EXPECT_EQ(items[2].end, ItemEnd::Failed);
    EXPECT_EQ(items[2].reason, "broken");
    EXPECT_EQ(items[3].end, ItemEnd::NotTried);
}

TEST_F(CommandResultTest, ARowThatTakesTheNameOfAnotherKeepsItsOwnPlace) {
    log_.begin(CommandKind::ReceiveCopy, "", "/jobs", {"A.JBI", "A.JBR"});
    log_.rename(0, "A.JBR");
    log_.note("A.JBR", ItemEnd::Done);
    log_.note("A.JBR", ItemEnd::Done);
    log_.end(false);
    EXPECT_EQ(log_.last()->count(ItemEnd::Done), 2u);
}

TEST_F(CommandResultTest, ANameOfNoCommandIsPassedOver) {
    log_.note("A", ItemEnd::Done);
    begin();
    log_.note("X", ItemEnd::Done);
    log_.end(false);
    log_.note("A", ItemEnd::Done);
    EXPECT_EQ(log_.last()->count(ItemEnd::NotTried), 4u);
}

TEST_F(CommandResultTest, ALaterCommandTakesThePlaceOfTheEarlierOne) {
    begin();
    log_.note("A", ItemEnd::Failed, "broken");
    log_.end(true);
    begin();
    EXPECT_TRUE(log_.last()->cancelled) << "until the new one has ended";
    log_.end(false);
    EXPECT_FALSE(log_.last()->cancelled);
    EXPECT_EQ(log_.last()->count(ItemEnd::Failed), 0u);
}

} // namespace
} // namespace vantrel
