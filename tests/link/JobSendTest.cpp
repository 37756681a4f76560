#include "link/JobSend.h"

#include "EndingFiles.h"
#include "JobSendFixture.h"

#include <algorithm>
#include <functional>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using tests::SessionWorld;

using JobSendTest = tests::JobSendFixture;

TEST_F(JobSendTest, ANewJobArrivesByteForByte) {
    EXPECT_TRUE(send("WELD.JBI"));
    EXPECT_EQ(world.controller().bytes("WELD.JBI"), weld);
    EXPECT_EQ(world.library.trace(),
              tests::inOrder(
                  {directory(1, 0), tests::wholeLink(world, 2, {"BscDownLoad(2, WELD.JBI)"})}));
    EXPECT_THAT(world.question.questions, IsEmpty());
    EXPECT_EQ(world.error(), " 0 0");
}

TEST_F(JobSendTest, AnExistingJobIsAskedForDeletedAndSent) {
    world.controller().put("WELD.JBI", older);
    world.question.answers = {Answer::Yes};
    EXPECT_TRUE(send("WELD.JBI"));
    EXPECT_THAT(world.question.questions, ElementsAre("WELD.JBI already exists. Overwrite it?"));
    EXPECT_THAT(world.question.titles, ElementsAre("Snappy"));
    EXPECT_EQ(world.controller().bytes("WELD.JBI"), weld);
    EXPECT_EQ(world.library.trace(),
              tests::inOrder(
                  {directory(1, 1),
                   tests::wholeLink(world, 2, {"BscSelectJob(2, WELD.JBI)", "BscDeleteJob(2)"}),
                   tests::wholeLink(world, 3, {"BscDownLoad(3, WELD.JBI)"})}));
}

TEST_F(JobSendTest, RefusedOverwriteKeepsTheControllersJob) {
    world.controller().put("WELD.JBI", older);
    world.question.answers = {Answer::No};
    EXPECT_FALSE(send("WELD.JBI"));
    EXPECT_EQ(world.error(), " 4 0");
    EXPECT_EQ(world.controller().bytes("WELD.JBI"), older);
    EXPECT_EQ(world.library.trace(), directory(1, 1));
}

TEST_F(JobSendTest, CancelledOverwriteKeepsTheControllersJob) {
    world.controller().put("WELD.JBI", older);
    world.question.answers = {Answer::Cancel};
    EXPECT_FALSE(send("WELD.JBI"));
    EXPECT_EQ(world.error(), " 3 0");
    EXPECT_EQ(world.controller().bytes("WELD.JBI"), older);
}

TEST_F(JobSendTest, TheAnswerAllSendsAndTellsTheCaller) {
    world.controller().put("WELD.JBI", older);
    world.question.answers = {Answer::All};
    EXPECT_TRUE(send("WELD.JBI"));
    EXPECT_EQ(world.error(), " 5 0");
    EXPECT_EQ(world.controller().bytes("WELD.JBI"), weld);
}

TEST_F(JobSendTest, OverwriteAllDeletesWithoutAsking) {
    world.controller().put("WELD.JBI", older);
    EXPECT_TRUE(send("WELD.JBI", true));
    EXPECT_THAT(world.question.questions, IsEmpty());
    EXPECT_EQ(world.library.callCount("BscDeleteJob"), 1);
    EXPECT_EQ(world.controller().bytes("WELD.JBI"), weld);
    EXPECT_EQ(world.error(), " 0 0");
}

TEST_F(JobSendTest, WithTheMonitorOffTheQuestionAnswersCancelAndShowsNothing) {
    world.controller().put("WELD.JBI", older);
    world.session->DisplayMonitor = false;
    EXPECT_FALSE(send("WELD.JBI"));
    EXPECT_EQ(world.error(), " 3 0");
    EXPECT_THAT(world.question.questions, IsEmpty());
    EXPECT_THAT(world.view.pictures, IsEmpty());
    EXPECT_EQ(world.view.yields, 0);
}

TEST_F(JobSendTest, ASilentCallerLearnsWhatIsInTheWay) {
    world.session->DisplayMonitor = false;
    world.controller().put("WELD.JBI", older);
    world.controller().put("COPY.JBI", SessionWorld::job("COPY"));
    world.pc.write("copy.jbi", weld);
    EXPECT_FALSE(send("copy.jbi"));
    EXPECT_THAT(world.session->jobsInTheWay(), ElementsAre("copy.jbi", "WELD.JBI"));
    EXPECT_FALSE(world.session->JobUpLoad("copy.jbi"));
    EXPECT_THAT(world.session->jobsInTheWay(), ElementsAre("copy.jbi"));
    world.pc.write("TOOL.CND", "x");
    EXPECT_TRUE(send("TOOL.CND"));
    EXPECT_THAT(world.session->jobsInTheWay(), IsEmpty());
}

TEST_F(JobSendTest, ReplacesTheJobsThatWereAskedAboutWithoutAnotherQuestion) {
    world.controller().put("WELD.JBI", older);
    EXPECT_TRUE(world.session->replaceJobs("WELD.JBI", {"WELD.JBI"}));
    EXPECT_NE(world.controller().bytes("WELD.JBI"), older);
    EXPECT_THAT(world.question.questions, IsEmpty());
}

TEST_F(JobSendTest, LeavesTheControllerAsItIsWhenSomethingElseIsInTheWay) {
    world.controller().put("WELD.JBI", older);
    EXPECT_FALSE(world.session->replaceJobs("WELD.JBI", {"OTHER.JBI"}));
    EXPECT_EQ(world.controller().bytes("WELD.JBI"), older);
    EXPECT_EQ(world.session->ErrorCode(), session_code::fileChanged);
    EXPECT_EQ(world.session->ErrorFunction(), "");
    EXPECT_THAT(world.session->jobsInTheWay(), ElementsAre("WELD.JBI"));
    EXPECT_THAT(world.question.questions, IsEmpty());
}

TEST_F(JobSendTest, WhatIsInTheWayOfOneFileIsForgottenWhenTheNextOneFailsEarly) {
    world.session->DisplayMonitor = false;
    world.controller().put("WELD.JBI", older);
    const auto failsEarly = [this](const std::function<void()>& operation) {
        EXPECT_FALSE(send("WELD.JBI"));
        ASSERT_THAT(world.session->jobsInTheWay(), ElementsAre("WELD.JBI"));
        operation();
        EXPECT_THAT(world.session->jobsInTheWay(), IsEmpty());
    };
    failsEarly([this] { send("../A.JBI"); });
    failsEarly([this] { send("GONE.JBI"); });
    failsEarly([this] { world.session->JobUpLoad("../A.JBI"); });
}

TEST_F(JobSendTest, ACommandsCancelEndsASilentSendBeforeItsFileAndStaysTheCommands) {
    world.session->DisplayMonitor = false;
    world.panel.show("command");
    world.panel.pressCancel();
    EXPECT_FALSE(send("WELD.JBI"));
    EXPECT_EQ(world.error(), " 3 0");
    EXPECT_EQ(world.library.callCount("BscDownLoad"), 0);
    EXPECT_TRUE(world.panel.isCancelled());
    EXPECT_TRUE(world.panel.isVisible());
}

TEST_F(JobSendTest, JobsAreFoundByNormalisedName) {
    world.controller().put("WELD.JBI", older);
    world.pc.write("weld.jbi", weld);
    world.question.answers = {Answer::No};
    EXPECT_FALSE(send("weld.jbi"));
    EXPECT_THAT(world.question.questions, ElementsAre("weld.jbi already exists. Overwrite it?"));
}

TEST_F(JobSendTest, ARelatedJobFileAsksForTheJobButDeletesNothing) {
    world.controller().put("WELD.JBI", older);
    world.pc.write("WELD.JBR", weld);
    world.question.answers = {Answer::Yes};
    EXPECT_TRUE(send("WELD.JBR"));
    EXPECT_THAT(world.question.questions, ElementsAre("WELD.JBR already exists. Overwrite it?"));
    EXPECT_EQ(world.library.callCount("BscSelectJob"), 0);
    EXPECT_EQ(world.controller().bytes("WELD.JBI"), weld);
}

TEST_F(JobSendTest, AJobIsReplacedWhetherItsRelatedFileIsListedBeforeOrAfterIt) {
    for (const char* first : {"WELD.JBI", "WELD.JBR"}) {
        tests::FakeController& robot = world.controller();
        robot = {};
        robot.put(first, older);
        robot.put("WELD.JBI", older);
        robot.put("WELD.JBR", older);
        world.library.forgetCalls();
        EXPECT_TRUE(send("WELD.JBI", true)) << world.error();
        EXPECT_EQ(robot.bytes("WELD.JBI"), weld);
        EXPECT_EQ(robot.bytes("WELD.JBR"), older);
        EXPECT_EQ(world.library.callCount("BscDeleteJob"), 1);
    }
}

TEST_F(JobSendTest, DataFilesAreSentWithoutAQuestion) {
    world.controller().put("TOOL.CND", "old");
    world.pc.write("TOOL.CND", "new");
    EXPECT_TRUE(send("TOOL.CND"));
    EXPECT_THAT(world.question.questions, IsEmpty());
    EXPECT_EQ(world.controller().bytes("TOOL.CND"), "new");
}

TEST_F(JobSendTest, ADataFileOfTheSameBaseNameIsNotInTheWay) {
    world.controller().put("WELD.CND", "x");
    EXPECT_TRUE(send("WELD.JBI"));
    EXPECT_THAT(world.question.questions, IsEmpty());
}

TEST_F(JobSendTest, AnUnreadableFileIsFoundBeforeTheOldJobIsDeletedOrAskedFor) {
    world.controller().put("GONE.JBI", older);
    EXPECT_FALSE(send("GONE.JBI", true));
    EXPECT_EQ(world.error(), " 21 0");
    EXPECT_TRUE(world.controller().has("GONE.JBI"));
    EXPECT_EQ(world.library.callCount("BscSelectJob"), 0);
}

TEST_F(JobSendTest, TheFileIsReadFromTheSessionsFolderAndNotFromTheCurrentOne) {
    world.program.write("OTHER.JBI", weld);
    EXPECT_FALSE(send("OTHER.JBI"));
    EXPECT_EQ(world.error(), " 21 0");
}

TEST_F(JobSendTest, AFailedDeletionEndsTheSend) {
    world.controller().put("WELD.JBI", older);
    world.library.disturb({.function = "BscDeleteJob", .code = 1210});
    EXPECT_FALSE(send("WELD.JBI", true));
    EXPECT_EQ(world.error(), "BscDeleteJob 1210 0");
    EXPECT_EQ(world.library.callCount("BscDownLoad"), 0);
}

TEST_F(JobSendTest, AFailedTransferIsRecordedAndTheLinkClosed) {
    world.library.disturb({.function = "BscDownLoad", .code = 1400});
    EXPECT_FALSE(send("WELD.JBI"));
    EXPECT_EQ(world.error(), "BscDownLoad 1400 0");
    EXPECT_EQ(world.library.openLinks(), 0);
    EXPECT_FALSE(world.panel.isVisible());
}

TEST_F(JobSendTest, ALinkThatWillNotCloseCountsAsAFailedSend) {
    world.library.disturb({.function = "BscDisConnect", .call = 2, .code = -3});
    EXPECT_FALSE(send("WELD.JBI"));
    EXPECT_EQ(world.error(), "BscDisConnect -3 0");
}

TEST_F(JobSendTest, AFailedDirectorySendsNothing) {
    world.library.disturb({.function = "BscFindFirst", .code = 2020});
    EXPECT_FALSE(send("WELD.JBI"));
    EXPECT_EQ(world.error(), "BscFind 2020 0");
    EXPECT_EQ(world.library.callCount("BscDownLoad"), 0);
}

TEST_F(JobSendTest, NamesThatAreNotPlainOpenNoLink) {
    world.pc.write("sub/A.JBI", weld);
    for (const char* name : {"sub/A.JBI", "..\\A.JBI", "A?.JBI", "CON.JBI"}) {
        EXPECT_FALSE(send(name));
        EXPECT_EQ(world.error(), " 23 0");
    }
    EXPECT_FALSE(send("\xED\x95\x9C.JBI"));
    EXPECT_EQ(world.error(), "BscDownLoad 20 0");
    EXPECT_EQ(world.library.callCount(), 0);
}

TEST_F(JobSendTest, NamesReachTheLibraryInItsCodePage) {
    world.pc.write("\xE3\x82\xBD.JBI", SessionWorld::job("\xE3\x82\xBD"));
    EXPECT_TRUE(send("\xE3\x82\xBD.JBI"));
    EXPECT_TRUE(world.controller().has("\xE3\x82\xBD.JBI"));
}

TEST_F(JobSendTest, APressOfCancelIsLookedAtAfterTheFile) {
    world.view.onYield = [this](int) {
        if (world.panel.message() != "reading directory")
            world.panel.pressCancel();
    };
    EXPECT_FALSE(send("WELD.JBI"));
    EXPECT_EQ(world.error(), " 3 0");
    EXPECT_EQ(world.controller().bytes("WELD.JBI"), weld);
}

TEST_F(JobSendTest, ReadingTheDirectoryTakesThePlaceOfWhatACommandShowsAndIsHiddenAfterIt) {
    world.panel.show("command");
    EXPECT_TRUE(send("WELD.JBI"));
    EXPECT_THAT(world.view.messages(),
                ElementsAre("command", "reading directory", "Transferring WELD.JBI"));
    const auto read = std::ranges::find_if(world.view.pictures,
                                           [](const auto& picture) { return !picture.visible; });
    ASSERT_NE(read, world.view.pictures.end());
    EXPECT_EQ(read->message, "reading directory");
}

TEST_F(JobSendTest, ProgressShowsTheNameWithBarAndWithoutCancel) {
    world.controller().put("WELD.JBI", older);
    EXPECT_TRUE(send("WELD.JBI", true));
    EXPECT_THAT(world.view.messages(), ElementsAre("reading directory", "Transferring WELD.JBI",
                                                   "Deleting WELD.JBI", "Transferring WELD.JBI"));
    for (const auto& picture : world.view.pictures)
        if (picture.visible && picture.message != "reading directory") {
            EXPECT_TRUE(picture.bar);
            EXPECT_FALSE(picture.cancelButton);
            EXPECT_EQ(picture.waitingFor, "waiting");
        }
    EXPECT_FALSE(world.panel.isVisible());
}

TEST_F(JobSendTest, ProgressStaysOpenFromTheNestedDeletionToTheSend) {
    world.controller().put("WELD.JBI", older);
    bool visibleAtSend = false;
    world.library.onCall = [&](const std::string& function) {
        if (function == "BscDownLoad")
            visibleAtSend = world.panel.isVisible();
    };
    int hidden = 0;
    EXPECT_TRUE(send("WELD.JBI", true));
    for (const auto& picture : world.view.pictures)
        hidden += picture.visible ? 0 : 1;
    EXPECT_TRUE(visibleAtSend);
    EXPECT_EQ(hidden, 2) << "after the directory, and at the end";
}

} // namespace
} // namespace vantrel
