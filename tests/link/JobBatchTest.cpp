#include "link/JobBatch.h"

#include "JobBatchFixture.h"
#include "base/TextCase.h"
#include "link/FetchFiles.h"
#include "link/InterruptedFetches.h"
#include "link/JobLists.h"
#include "link/JobNameSet.h"
#include "link/JobSend.h"
#include "link/LinkConnection.h"
#include "link/OverwriteQuestion.h"
#include "link/SessionProgress.h"

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using tests::SessionWorld;

struct JobBatchTest : tests::JobBatchFixture {};

TEST_F(JobBatchTest, EveryEntryIsSentInListOrderAfterOneLookAtTheDirectory) {
    addFiles({"B", "A"});
    EXPECT_TRUE(world.session->JobListDownLoad());
    EXPECT_THAT(world.controller().names(), ElementsAre("B.JBI", "A.JBI"));
    EXPECT_EQ(world.library.callCount("BscFindFirst"), 1);
    EXPECT_EQ(world.library.callCount("BscOpen"), 3);
    EXPECT_EQ(world.error(), " 0 0");
}

TEST_F(JobBatchTest, AnEmptyListIsHandled) {
    EXPECT_TRUE(world.session->JobListDownLoad());
    EXPECT_TRUE(world.session->JobListUpLoad());
}

TEST_F(JobBatchTest, ARefusedEntryIsLeftOutAndTheListGoesOn) {
    addFiles({"A", "B", "C"});
    addOlder({"A", "C"});
    world.question.answers = {Answer::No, Answer::Yes};
    EXPECT_TRUE(world.session->JobListDownLoad());
    EXPECT_FALSE(isNew("A"));
    EXPECT_TRUE(isNew("B"));
    EXPECT_TRUE(isNew("C"));
    EXPECT_EQ(world.error(), " 0 0");
}

TEST_F(JobBatchTest, TheAnswerAllEndsTheQuestions) {
    addFiles({"A", "B", "C", "D"});
    addOlder({"A", "B", "C", "D"});
    world.question.answers = {Answer::Yes, Answer::All};
    EXPECT_TRUE(world.session->JobListDownLoad());
    EXPECT_EQ(world.question.questions.size(), 2u);
    EXPECT_TRUE(isNew("A") && isNew("B") && isNew("C") && isNew("D"));
}

TEST_F(JobBatchTest, EveryListStartsWithQuestionsAgain) {
    addFiles({"A"});
    addOlder({"A"});
    world.question.answers = {Answer::All, Answer::No};
    EXPECT_TRUE(world.session->JobListDownLoad());
    EXPECT_TRUE(world.session->JobListDownLoad());
    EXPECT_EQ(world.question.questions.size(), 2u);
}

TEST_F(JobBatchTest, CancelAtAQuestionEndsTheListAtItsIndex) {
    addFiles({"A", "B", "C"});
    addOlder({"B"});
    world.question.answers = {Answer::Cancel};
    EXPECT_FALSE(world.session->JobListDownLoad());
    EXPECT_EQ(world.error(), " 3 1");
    EXPECT_TRUE(isNew("A"));
    EXPECT_FALSE(world.controller().has("C.JBI"));
}

TEST_F(JobBatchTest, WithTheMonitorOffTheFirstQuestionCancels) {
    addFiles({"A", "B"});
    addOlder({"B"});
    world.session->DisplayMonitor = false;
    EXPECT_FALSE(world.session->JobListDownLoad());
    EXPECT_EQ(world.error(), " 3 1");
    EXPECT_THAT(world.view.pictures, IsEmpty());
}

TEST_F(JobBatchTest, AFailureEndsTheListWithItsIndex) {
    addFiles({"A", "B", "C"});
    world.library.disturb({.function = "BscDownLoad", .call = 2, .code = 1400});
    EXPECT_FALSE(world.session->JobListDownLoad());
    EXPECT_EQ(world.error(), "BscDownLoad 1400 1");
    EXPECT_FALSE(world.controller().has("C.JBI"));
    EXPECT_FALSE(world.panel.isVisible());
}

TEST_F(JobBatchTest, AFailedConnectInTheMiddleHasTheEntrysIndex) {
    addFiles({"A", "B", "C"});
    world.library.disturb({.function = "BscConnect", .call = 4, .code = 2010});
    EXPECT_FALSE(world.session->JobListDownLoad());
    EXPECT_EQ(world.error(), "BscConnect 2010 2");
}

TEST_F(JobBatchTest, AFailedNestedDeletionHasTheEntrysIndex) {
    addFiles({"A", "B"});
    addOlder({"B"});
    world.question.answers = {Answer::Yes};
    world.library.disturb({.function = "BscSelectJob", .code = 1220});
    EXPECT_FALSE(world.session->JobListDownLoad());
    EXPECT_EQ(world.error(), "BscSelectJob 1220 1");
}

TEST_F(JobBatchTest, AFailedDirectoryKeepsItsOwnIndex) {
    addFiles({"A"});
    addOlder({"X", "Y"});
    world.library.disturb({.function = "BscFindNext", .call = 2, .code = 2020});
    EXPECT_FALSE(world.session->JobListDownLoad());
    EXPECT_EQ(world.error(), "BscFind 2020 2");
}

TEST_F(JobBatchTest, ANameThatIsNotPlainEndsTheListWithItsIndex) {
    addFiles({"A"});
    world.session->AddJobList("../B.JBI");
    EXPECT_FALSE(world.session->JobListDownLoad());
    EXPECT_EQ(world.error(), " 23 1");
    EXPECT_EQ(world.library.callCount("BscOpen"), 2);
}

// The list yields when it opens, when each file is shown, and after each file.

TEST_F(JobBatchTest, APressWhileAFileIsShownEndsTheListAfterThatFile) {
    addFiles({"A", "B", "C"});
    pressCancelAtYield(2);
    EXPECT_FALSE(world.session->JobListDownLoad());
    EXPECT_EQ(world.error(), " 3 0");
    EXPECT_TRUE(isNew("A"));
    EXPECT_FALSE(world.controller().has("B.JBI"));
}

TEST_F(JobBatchTest, APressAfterAFileEndsTheListThere) {
    addFiles({"A", "B", "C"});
    pressCancelAtYield(5);
    EXPECT_FALSE(world.session->JobListDownLoad());
    EXPECT_EQ(world.error(), " 3 1");
    EXPECT_TRUE(isNew("B"));
    EXPECT_FALSE(world.controller().has("C.JBI"));
}

TEST_F(JobBatchTest, APressIsNotLostWhenTheNextMessageClearsItsText) {
    addFiles({"A", "B"});
    addOlder({"A"});
    world.question.answers = {Answer::Yes};
    pressCancelAtYield(2); // as the list opens, after the directory
    EXPECT_FALSE(world.session->JobListDownLoad());
    EXPECT_EQ(world.error(), " 3 0");
    EXPECT_FALSE(world.controller().has("B.JBI"));
}

TEST_F(JobBatchTest, APressWhileTheDirectoryIsReadSendsNothing) {
    addFiles({"A", "B"});
    world.view.onYield = [this](int) {
        if (world.panel.message() == "reading directory")
            world.panel.pressCancel();
    };
    EXPECT_FALSE(world.session->JobListDownLoad());
    EXPECT_EQ(world.error(), " 3 0");
    EXPECT_FALSE(world.controller().has("A.JBI"));
}

TEST_F(JobBatchTest, APressOfAnEarlierTimeDoesNotCount) {
    addFiles({"A"});
    world.panel.pressCancel();
    EXPECT_TRUE(world.session->JobListDownLoad());
}

TEST_F(JobBatchTest, APressInTheVisibleWindowOfACommandCounts) {
    addFiles({"A", "B"});
    world.panel.show("command");
    world.panel.pressCancel();
    EXPECT_FALSE(world.session->JobListDownLoad());
    EXPECT_EQ(world.error(), " 3 0");
}

TEST_F(JobBatchTest, AFailureOutranksAPress) {
    addFiles({"A"});
    pressCancelAtYield(2);
    world.library.disturb({.function = "BscDownLoad", .code = 1400});
    EXPECT_FALSE(world.session->JobListDownLoad());
    EXPECT_EQ(world.error(), "BscDownLoad 1400 0");
}

TEST_F(JobBatchTest, AListThatIsChangedMeanwhileIsWorkedThroughAsItWas) {
    addFiles({"A", "B"});
    world.view.onYield = [this](int) { world.session->JobListClear(); };
    EXPECT_TRUE(world.session->JobListDownLoad());
    EXPECT_THAT(world.controller().names(), ElementsAre("A.JBI", "B.JBI"));
}

TEST_F(JobBatchTest, VeryLongEntriesAreShownShortened) {
    world.session->AddJobList(std::string(100'000, 'x'));
    EXPECT_FALSE(world.session->JobListUpLoad());
    for (const auto& picture : world.view.pictures)
        EXPECT_LT(picture.message.size(), 250u);
}

TEST_F(JobBatchTest, AJobThatThisListJustSentIsNotOverwrittenSilently) {
    world.pc.write("COPY.JBI", SessionWorld::job("A", "COPY"));
    world.session->AddJobList("COPY.JBI");
    addFiles({"A"});
    world.question.answers = {Answer::No};
    EXPECT_TRUE(world.session->JobListDownLoad());
    EXPECT_THAT(world.question.questions, ElementsAre("A.JBI already exists. Overwrite it?"));
    EXPECT_EQ(world.controller().bytes("A.JBI"), SessionWorld::job("A", "COPY"));
}

TEST_F(JobBatchTest, AJobThatASendHasDeletedIsNotInTheNextOnesWay) {
    world.controller().put("COPY.JBI", SessionWorld::job("COPY", "OLD"));
    world.pc.write("COPY.JBI", SessionWorld::job("WELD"));
    world.pc.write("X.JBI", SessionWorld::job("COPY"));
    world.session->AddJobList("COPY.JBI");
    world.session->AddJobList("X.JBI");
    world.question.answers = {Answer::Yes};
    EXPECT_TRUE(world.session->JobListDownLoad());
    EXPECT_THAT(world.question.questions,
                ElementsAre("COPY.JBI already exists. Overwrite it?\n"
                            "[COPY.JBI] > [WELD.JBI] stored under the second name"));
    EXPECT_TRUE(isNew("WELD"));
    EXPECT_TRUE(isNew("COPY"));
}

TEST_F(JobBatchTest, ANameLineWithAnExtensionIsRememberedAsItIs) {
    for (const char* file : {"A.JBI", "B.JBI"}) {
        world.pc.write(file, SessionWorld::job("X.JBI", file));
        world.session->AddJobList(file);
    }
    world.question.answers = {Answer::No};
    EXPECT_TRUE(world.session->JobListDownLoad());
    EXPECT_THAT(world.question.questions, ElementsAre("X.JBI already exists. Overwrite it?"));
}

TEST_F(JobBatchTest, ProgressShowsEachItemItsPlaceAndWhatIsWaitedFor) {
    addFiles({"A", "B"});
    EXPECT_TRUE(world.session->JobListDownLoad());
    EXPECT_THAT(world.view.messages(), ElementsAre("reading directory", "Transferring ",
                                                   "Transferring A.JBI", "Transferring B.JBI"));
    const auto& last = world.view.pictures[world.view.pictures.size() - 2];
    EXPECT_EQ(last.waitingFor, "item 2 of 2  waiting");
    EXPECT_EQ(last.item, 1);
    EXPECT_EQ(last.count, 2);
    EXPECT_TRUE(last.cancelButton);
    EXPECT_TRUE(last.bar);
    EXPECT_FALSE(world.panel.isVisible());
}

std::size_t normalisations = 0;

std::string countedForm(std::string_view name) {
    ++normalisations;
    return normalisedJobName(name);
}

/// The parts of a list transfer put together by hand, with names counted as they are compared.
TEST_F(JobBatchTest, TenThousandEntriesAgainstTenThousandJobsAreLinear) {
    constexpr std::size_t count = 10'000;
    world.library.recordCalls(false);
    std::vector<std::string> entries;
    std::vector<std::string> directory;
    for (std::size_t i = 0; i < count; ++i) {
        const std::string name = "NEW" + std::to_string(i);
        entries.push_back(name + ".JBI");
        world.pc.write(entries.back(), SessionWorld::job(name));
        directory.push_back("OLD" + std::to_string(i) + ".JBI");
    }
    normalisations = 0;
    JobNameSet names(countedForm);
    names.assign(directory);
    world.session->DisplayMonitor = false;
    SessionErrorRecord error;
    LinkConnection link(world.services, *world.session, error);
    SessionProgress progress(*world.session, world.messages, world.panel);
    const OverwriteQuestion question(*world.session, world.messages, world.talk);
    JobDeletion deletion(link, progress);
    FetchFiles disk;
    InterruptedFetches interrupted(disk, world.messages, world.talk);
    std::vector<std::string> inTheWay;
    JobSend send({*world.session, link, progress, error, question, names, inTheWay, world.messages,
                  world.talk},
                 deletion, interrupted);
    const LocalJobList local;
    std::vector<EntryEnd> ends;
    JobBatch batch({*world.session, link, progress, error, local, world.messages, world.talk, ends},
                   [&send](const std::string& entry, std::int32_t index, bool overwriteAll) {
                       return send.send(entry, index, {.toAll = overwriteAll});
                   });
    EXPECT_TRUE(batch.run(entries));
    EXPECT_EQ(world.controller().names().size(), count);
    EXPECT_LE(normalisations, 6 * count);
}

} // namespace
} // namespace vantrel
