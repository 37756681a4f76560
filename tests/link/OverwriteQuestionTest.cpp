#include "link/OverwriteQuestion.h"

#include "SessionWorld.h"
#include "link/ProgressPanel.h"
#include "platform/Files.h"
#include "support/TemporaryFolder.h"

#include <chrono>
#include <filesystem>

namespace vantrel {
namespace {

const Overwrite onController{.name = "A.JBI", .storedAs = {}, .pcFile = {}};

/// What stands below the question of one item among some.
std::string factsOf(const Overwrite& overwrite, int item, int count) {
    MessageTable messages;
    messages.replace({{51, "", "item "},
                      {52, "", " of "},
                      {390, "", "PC: % bytes, %"},
                      {391, "", "the controller loses"},
                      {392, "", "the PC loses"},
                      {393, "", "% more"}});
    ProgressPanel panel;
    panel.step("", item, count, "");
    return overwriteFacts(messages, overwrite, panel);
}

TEST(OverwriteQuestionTest, TellsSizeAndDateOfTheFileOnThePC) {
    tests::TemporaryFolder folder;
    folder.write("A.JBI", "12345");
    std::filesystem::last_write_time(folder.path("A.JBI"),
                                     std::filesystem::file_time_type::clock::now() -
                                         std::chrono::hours(24 * 400));
    const std::string date(fileDetails(folder.path("A.JBI")).changed.view());
    ASSERT_EQ(date.size(), 19U);
    EXPECT_EQ(factsOf({.name = "A.JBI", .storedAs = {}, .pcFile = folder.path("A.JBI")}, 0, 1),
              "PC: 5 bytes, " + date + "\nthe controller loses");
    EXPECT_EQ(factsOf({.name = "A.JBI", .storedAs = {}, .pcFile = folder.path("GONE.JBI")}, 0, 1),
              "the controller loses");
}

TEST(OverwriteQuestionTest, TellsWhichSideLosesAndHowManyMoreAllMeans) {
    const Overwrite onPC{.name = "A.JBI", .storedAs = {}, .pcFile = {}, .isOnPC = true};
    EXPECT_EQ(factsOf(onPC, 0, 0), "the PC loses");
    EXPECT_EQ(factsOf(onPC, 1, 5), "the PC loses\nitem 2 of 5  3 more");
    EXPECT_EQ(factsOf(onPC, 4, 5), "the PC loses\nitem 5 of 5");
    EXPECT_EQ(overwriteFacts(MessageTable(), onPC, ProgressPanel()), "");
}

TEST(OverwriteQuestionTest, AsksWithTitleNameAndTextAndGivesTheAnswer) {
    tests::SessionWorld world;
    world.session->MonitorTitle = "File transfer";
    const OverwriteQuestion question(*world.session, world.messages, world.talk);
    world.question.answers = {Answer::Yes, Answer::No, Answer::All, Answer::Cancel};
    EXPECT_EQ(question.ask(onController), TransferOutcome::Done);
    EXPECT_EQ(question.ask(onController), TransferOutcome::Refused);
    EXPECT_EQ(question.ask(onController), TransferOutcome::DoneAll);
    EXPECT_EQ(question.ask(onController), TransferOutcome::Cancelled);
    EXPECT_EQ(world.question.titles.front(), "File transfer");
    EXPECT_EQ(world.question.questions.front(), "A.JBI already exists. Overwrite it?");
}

TEST(OverwriteQuestionTest, WithTheMonitorOffItIsCancelledUnasked) {
    tests::SessionWorld world;
    world.session->DisplayMonitor = false;
    const OverwriteQuestion question(*world.session, world.messages, world.talk);
    world.question.answers = {Answer::Yes};
    EXPECT_EQ(question.ask(onController), TransferOutcome::Cancelled);
    EXPECT_TRUE(world.question.questions.empty());
}

} // namespace
} // namespace vantrel
