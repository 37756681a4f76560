#include "link/JobBatch.h"

#include "SessionWorld.h"
#include "link/JobDeletion.h"
#include "link/JobNameSet.h"
#include "link/JobSend.h"
#include "link/LinkConnection.h"
#include "link/LocalJobList.h"
#include "link/OverwriteQuestion.h"
#include "link/SessionProgress.h"
#include "platform/TextCase.h"

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using tests::SessionWorld;

struct JobBatchTest : testing::Test {
    SessionWorld world;

    /// Job files on the PC, put on the list too.
    void addFiles(const std::vector<std::string>& names) {
        for (const std::string& name : names) {
            world.pc.write(name + ".JBI", SessionWorld::job(name));
            world.session->AddJobList(name + ".JBI");
        }
    }
    /// Older jobs on the controller.
    void addOlder(const std::vector<std::string>& names) {
        for (const std::string& name : names)
            world.controller().put(name + ".JBI", SessionWorld::job(name, "OLD"));
    }
    bool isNew(const std::string& name) {
        return world.controller().bytes(name + ".JBI") == SessionWorld::job(name);
    }
    void pressCancelAtYield(int yield) {
        world.view.onYield = [this, yield](int at) {
            if (at == yield)
                world.panel.pressCancel();
        };
    }
};

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

TEST_F(JobBatchTest, APressIsNotLostWhenTheNextMessageClearsItsMark) {
    addFiles({"A", "B"});
    addOlder({"A"});
    world.question.answers = {Answer::Yes};
    pressCancelAtYield(1);
    EXPECT_FALSE(world.session->JobListDownLoad());
    EXPECT_EQ(world.error(), " 3 0");
    EXPECT_FALSE(world.controller().has("B.JBI"));
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

TEST_F(JobBatchTest, LocalJobsAreNeverSentAndTheOperatorLearnsHowMany) {
    addFiles({"A", "LOCAL1", "LOCAL2"});
    world.pc.write("LocalJob.lst", "LOCAL#\n");
    EXPECT_TRUE(world.session->JobListDownLoad());
    EXPECT_THAT(world.controller().names(), ElementsAre("A.JBI"));
    EXPECT_THAT(world.boxes.texts(), ElementsAre("2 skipped"));
    EXPECT_EQ(world.boxes.shown.front().icon, BoxIcon::None);
}

TEST_F(JobBatchTest, SkippedEntriesAreToldOnceWhenTheListFailsToo) {
    addFiles({"LOCAL", "A"});
    world.pc.write("LocalJob.lst", "LOCAL");
    world.library.disturb({.function = "BscDownLoad", .code = 1400});
    EXPECT_FALSE(world.session->JobListDownLoad());
    EXPECT_EQ(world.error(), "BscDownLoad 1400 1");
    EXPECT_THAT(world.boxes.texts(), ElementsAre("1 skipped"));
}

TEST_F(JobBatchTest, SkippedEntriesAreToldOnceWhenTheListIsCancelledToo) {
    addFiles({"LOCAL", "A", "B"});
    world.pc.write("LocalJob.lst", "LOCAL");
    pressCancelAtYield(2);
    EXPECT_FALSE(world.session->JobListDownLoad());
    EXPECT_EQ(world.error(), " 3 1");
    EXPECT_THAT(world.boxes.texts(), ElementsAre("1 skipped"));
}

TEST_F(JobBatchTest, AListThatIsChangedMeanwhileIsWorkedThroughAsItWas) {
    addFiles({"A", "B"});
    world.view.onYield = [this](int) { world.session->JobListClear(); };
    EXPECT_TRUE(world.session->JobListDownLoad());
    EXPECT_THAT(world.controller().names(), ElementsAre("A.JBI", "B.JBI"));
}

TEST_F(JobBatchTest, AnUnsetAddressIsTheOnlyThingTold) {
    world.pc.write("LocalJob.lst", "LOCAL");
    world.session->AddJobList("LOCAL.JBI");
    world.session->AddJobList("A.JBI");
    world.mode = TransferMode::HispeedLink;
    world.session->IPaddress = "0.0.0.0";
    EXPECT_FALSE(world.session->JobListUpLoad());
    EXPECT_THAT(world.boxes.texts(), ElementsAre("address unset"));
}

TEST_F(JobBatchTest, VeryLongEntriesAreShownShortened) {
    world.session->AddJobList(std::string(100'000, 'x'));
    EXPECT_FALSE(world.session->JobListUpLoad());
    for (const auto& picture : world.view.pictures)
        EXPECT_LT(picture.message.size(), 250u);
}

TEST_F(JobBatchTest, LocalJobsAreNeverFetched) {
    addOlder({"A", "LOCAL"});
    world.session->AddJobList("A.JBI");
    world.session->AddJobList("LOCAL.JBI");
    world.pc.write("LocalJob.lst", "local");
    EXPECT_TRUE(world.session->JobListUpLoad());
    EXPECT_TRUE(world.pc.has("A.JBI"));
    EXPECT_FALSE(world.pc.has("LOCAL.JBI"));
}

TEST_F(JobBatchTest, WithTheMonitorOffNobodyIsToldOfSkippedEntries) {
    addFiles({"LOCAL"});
    world.pc.write("LocalJob.lst", "LOCAL");
    world.session->DisplayMonitor = false;
    EXPECT_TRUE(world.session->JobListDownLoad());
    EXPECT_THAT(world.boxes.shown, IsEmpty());
}

TEST_F(JobBatchTest, TheLocalListIsReadAnewByEveryTransfer) {
    addFiles({"A"});
    world.pc.write("LocalJob.lst", "A");
    EXPECT_TRUE(world.session->JobListDownLoad());
    EXPECT_FALSE(world.controller().has("A.JBI"));
    world.pc.write("LocalJob.lst", "B");
    EXPECT_TRUE(world.session->JobListDownLoad());
    EXPECT_TRUE(world.controller().has("A.JBI"));
}

TEST_F(JobBatchTest, FetchingListsTheFolderOnceAndNeverTheController) {
    addOlder({"A", "B"});
    world.session->AddJobList("A.JBI");
    world.session->AddJobList("B.JBI");
    EXPECT_TRUE(world.session->JobListUpLoad());
    EXPECT_EQ(world.library.callCount("BscFindFirst"), 0);
    EXPECT_EQ(world.library.trace(),
              tests::inOrder({tests::wholeLink(world, 1, {"BscUpLoad(1, A.JBI)"}),
                              tests::wholeLink(world, 2, {"BscUpLoad(2, B.JBI)"})}));
    EXPECT_TRUE(world.pc.has("B.JBI"));
}

TEST_F(JobBatchTest, FetchingAsksAndAnswersLikeSending) {
    addOlder({"A", "B", "C"});
    for (const char* name : {"A.JBI", "B.JBI", "C.JBI"}) {
        world.pc.write(name, "mine");
        world.session->AddJobList(name);
    }
    world.question.answers = {Answer::No, Answer::All};
    EXPECT_TRUE(world.session->JobListUpLoad());
    EXPECT_EQ(world.question.questions.size(), 2u);
    EXPECT_EQ(world.pc.read("A.JBI"), "mine");
    EXPECT_NE(world.pc.read("B.JBI"), "mine");
    EXPECT_NE(world.pc.read("C.JBI"), "mine");
}

TEST_F(JobBatchTest, AFailedFetchEndsTheListWithItsIndex) {
    addOlder({"A"});
    world.session->AddJobList("A.JBI");
    world.session->AddJobList("GONE.JBI");
    EXPECT_FALSE(world.session->JobListUpLoad());
    EXPECT_EQ(world.error(), "BscUpLoad 1200 1");
}

TEST_F(JobBatchTest, AFileThatThisListJustBroughtIsNotOverwrittenSilently) {
    addOlder({"A"});
    world.session->AddJobList("A.JBI");
    world.session->AddJobList("a.jbi");
    world.question.answers = {Answer::No};
    EXPECT_TRUE(world.session->JobListUpLoad());
    EXPECT_EQ(world.question.questions.size(), 1u);
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

TEST_F(JobBatchTest, ProgressShowsEachItemItsPlaceAndWhatIsWaitedFor) {
    addFiles({"A", "B"});
    EXPECT_TRUE(world.session->JobListDownLoad());
    EXPECT_THAT(world.view.messages(),
                ElementsAre("Transferring ", "Transferring A.JBI", "Transferring B.JBI"));
    const auto& last = world.view.pictures[world.view.pictures.size() - 2];
    EXPECT_EQ(last.waitingFor, "item 2 of 2  waiting");
    EXPECT_EQ(last.item, 1);
    EXPECT_EQ(last.count, 2);
    EXPECT_TRUE(last.cancelButton);
    EXPECT_TRUE(last.bar);
    EXPECT_FALSE(world.panel.isVisible());
}

TEST_F(JobBatchTest, AnUnsetAddressEndsTheListWithOneBoxAndTheRecordAsItWas) {
    world.session->AddJobList("A.JBI");
    world.session->AddJobList("B.JBI");
    world.mode = TransferMode::HispeedLink;
    world.session->IPaddress = "0.0.0.0";
    EXPECT_FALSE(world.session->JobListUpLoad());
    EXPECT_TRUE(world.session->endedByUnsetAddress());
    EXPECT_THAT(world.boxes.texts(), ElementsAre("address unset"));
    EXPECT_EQ(world.error(), " 0 0");
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
    const OverwriteQuestion question(*world.session, world.messages, world.dialog);
    JobDeletion deletion(link, progress);
    std::vector<std::string> inTheWay;
    JobSend send({*world.session, link, progress, error, question, names, inTheWay, world.messages,
                  world.dialog},
                 deletion);
    const LocalJobList local;
    JobBatch batch({*world.session, link, progress, error, local, world.messages, world.dialog},
                   [&send](const std::string& entry, std::int32_t index, bool overwriteAll) {
                       return send.send(entry, index, overwriteAll);
                   });
    EXPECT_TRUE(batch.run(entries));
    EXPECT_EQ(world.controller().names().size(), count);
    EXPECT_LE(normalisations, 6 * count);
}

} // namespace
} // namespace vantrel
