#include "link/OverwriteQuestion.h"

#include "SessionWorld.h"

namespace vantrel {
namespace {

TEST(OverwriteQuestionTest, AsksWithTitleNameAndTextAndGivesTheAnswer) {
    tests::SessionWorld world;
    world.session->MonitorTitle = "File transfer";
    const OverwriteQuestion question(*world.session, world.messages, world.talk);
    world.question.answers = {Answer::Yes, Answer::No, Answer::All, Answer::Cancel};
    EXPECT_EQ(question.ask("A.JBI"), TransferOutcome::Done);
    EXPECT_EQ(question.ask("A.JBI"), TransferOutcome::Refused);
    EXPECT_EQ(question.ask("A.JBI"), TransferOutcome::DoneAll);
    EXPECT_EQ(question.ask("A.JBI"), TransferOutcome::Cancelled);
    EXPECT_EQ(world.question.titles.front(), "File transfer");
    EXPECT_EQ(world.question.questions.front(), "A.JBI already exists. Overwrite it?");
}

TEST(OverwriteQuestionTest, WithTheMonitorOffItIsCancelledUnasked) {
    tests::SessionWorld world;
    world.session->DisplayMonitor = false;
    const OverwriteQuestion question(*world.session, world.messages, world.talk);
    world.question.answers = {Answer::Yes};
    EXPECT_EQ(question.ask("A.JBI"), TransferOutcome::Cancelled);
    EXPECT_TRUE(world.question.questions.empty());
}

} // namespace
} // namespace vantrel
