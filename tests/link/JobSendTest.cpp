#include "link/JobSend.h"

#include "EndingFiles.h"
#include "SessionWorld.h"
#include "link/FetchMark.h"
#include "link/ReplacedFile.h"
#include "support/NamedRow.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <utility>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using tests::SessionWorld;

struct JobSendTest : testing::Test {
    SessionWorld world;
    const std::string weld = SessionWorld::job("WELD");
    const std::string older = SessionWorld::job("WELD", "OLD");

    JobSendTest() { world.pc.write("WELD.JBI", weld); }

    bool send(const std::string& file, bool overwriteAll = false) {
        return world.session->JobDownLoad(file, overwriteAll);
    }

    /// The directory's link with that many entries, as number `handle`.
    std::vector<std::string> directory(int handle, int entries) const {
        const std::string arguments = "(" + std::to_string(handle) + ", 255)";
        std::vector<std::string> calls{"BscFindFirst" + arguments};
        for (int i = 0; i < entries; ++i)
            calls.push_back("BscFindNext" + arguments);
        return tests::wholeLink(world, handle, calls);
    }
};

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

TEST_F(JobSendTest, AJobNamedInsideTheFileIsAskedForToo) {
    world.controller().put("WELD.JBI", older);
    world.pc.write("COPY.JBI", weld);
    world.question.answers = {Answer::Yes};
    EXPECT_TRUE(send("COPY.JBI"));
    EXPECT_THAT(world.question.questions, ElementsAre("WELD.JBI already exists. Overwrite it?"));
    EXPECT_EQ(world.controller().bytes("WELD.JBI"), weld);
}

TEST_F(JobSendTest, BothNamesAreAskedForBeforeAnythingIsDeleted) {
    world.controller().put("WELD.JBI", older);
    world.controller().put("COPY.JBI", SessionWorld::job("COPY"));
    world.pc.write("COPY.JBI", weld);
    world.question.answers = {Answer::Yes, Answer::No};
    EXPECT_FALSE(send("COPY.JBI"));
    EXPECT_EQ(world.question.questions.size(), 2u);
    EXPECT_EQ(world.library.callCount("BscDeleteJob"), 0);
    EXPECT_EQ(world.error(), " 4 0");
}

TEST_F(JobSendTest, TheAnswerAllCoversTheJobNamedInsideToo) {
    world.controller().put("WELD.JBI", older);
    world.controller().put("COPY.JBI", SessionWorld::job("COPY"));
    world.pc.write("COPY.JBI", weld);
    world.question.answers = {Answer::All};
    EXPECT_TRUE(send("COPY.JBI"));
    EXPECT_EQ(world.question.questions.size(), 1u);
    EXPECT_EQ(world.controller().bytes("WELD.JBI"), weld);
    EXPECT_EQ(world.error(), " 5 0");
}

struct NamelessRow : tests::NamedRow {
    std::string bytes;
};

class NamelessJobTest : public JobSendTest, public testing::WithParamInterface<NamelessRow> {};

TEST_P(NamelessJobTest, IsRefusedBeforeTheOldJobIsAskedForOrDeleted) {
    world.controller().put("WELD.JBI", older);
    world.pc.write("WELD.JBI", GetParam().bytes);
    for (const bool overwriteAll : {false, true}) {
        EXPECT_FALSE(send("WELD.JBI", overwriteAll));
        EXPECT_EQ(world.error(), " 27 0");
    }
    EXPECT_EQ(world.controller().bytes("WELD.JBI"), older);
    EXPECT_THAT(world.question.questions, IsEmpty());
    EXPECT_EQ(world.library.callCount("BscSelectJob"), 0);
    EXPECT_EQ(world.library.callCount("BscDownLoad"), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Files, NamelessJobTest,
    testing::Values(NamelessRow{{"NoLine"}, "/JOB\r\nNOP\r\n"},
                    NamelessRow{{"EmptyName"}, "//NAME \r\n"}, NamelessRow{{"EmptyFile"}, ""},
                    NamelessRow{{"NotPlain"}, "//NAME A/B\r\n"},
                    NamelessRow{{"Wildcard"}, "//NAME WELD*\r\n"},
                    NamelessRow{{"TrailingPoint"}, "//NAME WELD.\r\n"},
                    NamelessRow{{"TooLong"}, "//NAME " + std::string(252, 'A')},
                    NamelessRow{{"NotInTheCodePage"}, "//NAME \xED\x95\x9C\xED\x95\x9C\r\n"},
                    NamelessRow{{"Utf16"}, std::string("\xFF\xFE/\0/\0N\0A\0M\0E\0 \0A\0", 18)}),
    tests::rowName);

TEST_F(JobSendTest, ANamelessRelatedJobDeletesNothingSoItIsTheControllersToJudge) {
    world.controller().put("WELD.JBI", older);
    world.pc.write("WELD.JBR", "/JOB\r\nNOP\r\n");
    world.question.answers = {Answer::Yes};
    EXPECT_FALSE(send("WELD.JBR"));
    EXPECT_EQ(world.error(), "BscDownLoad 1310 0");
    EXPECT_THAT(world.question.questions, ElementsAre("WELD.JBR already exists. Overwrite it?"));
    EXPECT_EQ(world.library.callCount("BscSelectJob"), 0);
}

TEST_F(JobSendTest, ANamelessFileInNobodysWayIsTheControllersToJudge) {
    world.pc.write("NEW.JBI", "/JOB\r\nNOP\r\n");
    EXPECT_FALSE(send("NEW.JBI"));
    EXPECT_EQ(world.error(), "BscDownLoad 1310 0");
}

TEST_F(JobSendTest, AFileWhoseLineNamesANewJobStillReplacesTheJobOfItsOwnName) {
    world.controller().put("COPY.JBI", SessionWorld::job("COPY"));
    world.pc.write("COPY.JBI", weld);
    world.question.answers = {Answer::Yes};
    EXPECT_TRUE(send("COPY.JBI"));
    EXPECT_THAT(world.question.questions,
                ElementsAre("COPY.JBI already exists. Overwrite it?\n"
                            "[COPY.JBI] > [WELD.JBI] stored under the second name"));
    EXPECT_THAT(world.controller().names(), ElementsAre("WELD.JBI"));
    EXPECT_THAT(world.session->unreplacedJobs(), ElementsAre("COPY.JBI"));
}

TEST_F(JobSendTest, OnlyTheQuestionAboutTheFilesOwnJobNamesTheOtherOne) {
    world.controller().put("WELD.JBI", older);
    world.controller().put("COPY.JBI", SessionWorld::job("COPY"));
    world.pc.write("COPY.JBI", weld);
    world.question.answers = {Answer::Yes, Answer::Yes};
    EXPECT_TRUE(send("COPY.JBI"));
    EXPECT_THAT(world.question.questions,
                ElementsAre("COPY.JBI already exists. Overwrite it?\n"
                            "[COPY.JBI] > [WELD.JBI] stored under the second name",
                            "WELD.JBI already exists. Overwrite it?"));
    EXPECT_EQ(world.session->storedAs(), "WELD.JBI");
}

TEST_F(JobSendTest, ARelatedJobFileOfAnotherNameDeletesNothingAndSaysNothingOfIt) {
    world.controller().put("COPY.JBI", SessionWorld::job("COPY"));
    world.pc.write("COPY.JBR", weld);
    world.question.answers = {Answer::Yes};
    EXPECT_TRUE(send("COPY.JBR"));
    EXPECT_THAT(world.question.questions, ElementsAre("COPY.JBR already exists. Overwrite it?"));
    EXPECT_THAT(world.session->unreplacedJobs(), IsEmpty());
}

TEST_F(JobSendTest, WhatAFailedSendHasDeletedIsKnownUntilTheNextOperation) {
    world.controller().put("WELD.JBI", older);
    world.library.disturb({.function = "BscDownLoad", .code = 1400});
    EXPECT_FALSE(send("WELD.JBI", true));
    EXPECT_THAT(world.session->unreplacedJobs(), ElementsAre("WELD.JBI"));
    EXPECT_FALSE(world.session->JobUpLoad("NONE.JBI"));
    EXPECT_THAT(world.session->unreplacedJobs(), IsEmpty());
}

TEST_F(JobSendTest, OfTwoDeletionsTheFirstIsKnownWhenTheSecondFails) {
    world.controller().put("WELD.JBI", older);
    world.controller().put("COPY.JBI", SessionWorld::job("COPY"));
    world.pc.write("COPY.JBI", weld);
    world.library.disturb({.function = "BscDeleteJob", .call = 2, .code = 1210});
    EXPECT_FALSE(send("COPY.JBI", true));
    EXPECT_THAT(world.session->unreplacedJobs(), ElementsAre("COPY.JBI"));
}

TEST_F(JobSendTest, ASendThatTheLibraryConfirmsHasReplacedTheJobThoughTheLinkWillNotClose) {
    world.controller().put("WELD.JBI", older);
    world.library.disturb({.function = "BscDisConnect", .call = 3, .code = -3});
    EXPECT_FALSE(send("WELD.JBI", true));
    EXPECT_EQ(world.error(), "BscDisConnect -3 0");
    EXPECT_THAT(world.session->unreplacedJobs(), IsEmpty());
}

TEST_F(JobSendTest, AJobThatALaterFileOfTheListBringsBackIsReplacedAfterAll) {
    world.controller().put("COPY.JBI", SessionWorld::job("COPY"));
    world.pc.write("COPY.JBI", weld);
    world.pc.write("LATER.JBI", SessionWorld::job("COPY"));
    world.question.answers = {Answer::Yes};
    world.session->AddJobList("COPY.JBI");
    EXPECT_TRUE(world.session->JobListDownLoad());
    EXPECT_THAT(world.session->unreplacedJobs(), ElementsAre("COPY.JBI"));
    world.session->JobListClear();
    world.controller().put("COPY.JBI", SessionWorld::job("COPY"));
    world.session->AddJobList("COPY.JBI");
    world.session->AddJobList("LATER.JBI");
    world.question.answers = {Answer::All};
    EXPECT_TRUE(world.session->JobListDownLoad());
    EXPECT_THAT(world.session->unreplacedJobs(), IsEmpty());
}

class ForeignNameTest : public JobSendTest {
  protected:
    const std::string so = "\xE3\x82\xBD"; ///< UTF-8
    const std::string soInCodePage = "\x83\x5C";
    void expectNothingTouched() {
        EXPECT_THAT(world.question.questions, IsEmpty());
        EXPECT_EQ(world.library.callCount("BscSelectJob"), 0);
        EXPECT_EQ(world.library.callCount("BscDownLoad"), 0);
    }
};

/// A controller reads the code page, so it would keep the file under a name that nobody meant.
TEST_F(ForeignNameTest, InUtf8EndsTheSendBeforeAnythingIsAskedForOrDeleted) {
    world.controller().put(so + ".JBI", older);
    world.controller().put("WELD.JBI", older);
    for (const std::string byteOrderMark : {"", "\xEF\xBB\xBF"})
        for (const bool overwriteAll : {false, true}) {
            world.pc.write("NEW.JBI", byteOrderMark + SessionWorld::job(so));
            EXPECT_FALSE(send("NEW.JBI", overwriteAll));
            EXPECT_EQ(world.error(), " 40 0");
            world.pc.write("WELD.JBI", byteOrderMark + SessionWorld::job("\xC3\xBC"));
            EXPECT_FALSE(send("WELD.JBI", overwriteAll));
        }
    expectNothingTouched();
}

TEST_F(ForeignNameTest, InTheCodePageIsReplaced) {
    world.controller().put(so + ".JBI", older);
    world.pc.write("NEW.JBI", SessionWorld::job(soInCodePage));
    EXPECT_TRUE(send("NEW.JBI", true)) << world.error();
    EXPECT_EQ(world.library.callCount("BscDeleteJob"), 1);
    EXPECT_EQ(world.controller().bytes(so + ".JBI"), SessionWorld::job(soInCodePage));
}

TEST_F(ForeignNameTest, InPlainAsciiIsReplacedWhateverElseTheFileHolds) {
    world.controller().put("WELD.JBI", older);
    world.pc.write("WELD.JBI", SessionWorld::job("WELD", "'" + so));
    EXPECT_TRUE(send("WELD.JBI", true)) << world.error();
}

TEST_F(ForeignNameTest, InNobodysWayIsTheControllersToJudge) {
    world.pc.write("NEW.JBI", SessionWorld::job(so));
    EXPECT_TRUE(send("NEW.JBI")) << world.error();
}

/// The library is told the upper-cased name, which may be the other job's.
TEST_F(JobSendTest, OverAJobWhoseNameDiffersFromAnotherInLetterCaseOnlyNothingIsSent) {
    world.controller().put("weld.JBI", older);
    world.controller().put("WELD.JBI", older);
    for (const bool overwriteAll : {false, true}) {
        EXPECT_FALSE(send("WELD.JBI", overwriteAll));
        EXPECT_EQ(world.error(), " 41 0");
    }
    EXPECT_THAT(world.question.questions, IsEmpty());
    EXPECT_EQ(world.library.callCount("BscSelectJob"), 0);
    world.pc.write("NEW.JBI", SessionWorld::job("NEW"));
    EXPECT_TRUE(send("NEW.JBI"));
}

TEST_F(JobSendTest, TheSameNameTwiceInTheDirectoryIsOneName) {
    world.library.onCall = [this, told = false](const std::string& function) mutable {
        if (function == "BscFindNext" && !std::exchange(told, true)) {
            world.controller().erase("WELD.JBI");
            world.controller().put("WELD.JBI", older);
        }
    };
    world.controller().put("WELD.JBI", older);
    EXPECT_TRUE(send("WELD.JBI", true)) << world.error();
}

TEST_F(JobSendTest, QuestionsAboutVeryLongNamesAreShortened) {
    const std::string longName(240, 'A');
    world.controller().put(longName + ".JBI", older);
    world.pc.write(longName + ".JBI", SessionWorld::job(longName));
    EXPECT_FALSE(send(longName + ".JBI"));
    ASSERT_EQ(world.question.questions.size(), 1u);
    EXPECT_LT(world.question.questions[0].size(), 240u);
    EXPECT_LT(world.view.messages().front().size(), 240u);
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

/// A file that another program is fetching is half of one.
struct FetchedJobSendTest : JobSendTest {
    const std::string mark = FetchMark::fileNameFor("WELD.JBI");
    tests::FailingFiles files;

    void expectRefused() {
        EXPECT_EQ(world.error(), " 21 0");
        EXPECT_EQ(world.controller().bytes("WELD.JBI"), older);
    }
};

TEST_F(FetchedJobSendTest, IsRefusedBeforeTheDirectoryIsRead) {
    world.controller().put("WELD.JBI", older);
    const ReplacedFile running(files, world.pc.path(), "WELD.JBI");
    world.pc.write("WELD.JBI", weld);
    EXPECT_FALSE(send("WELD.JBI", true));
    expectRefused();
    EXPECT_EQ(world.library.callCount(), 0);
}

TEST_F(FetchedJobSendTest, IsRefusedInAListToo) {
    world.controller().put("WELD.JBI", older);
    world.pc.write(mark, FetchMark{.name = "WELD.JBI"}.format());
    world.session->AddJobList("WELD.JBI");
    world.question.answers = {Answer::Yes};
    EXPECT_FALSE(world.session->JobListDownLoad());
    expectRefused();
    EXPECT_THAT(world.question.questions, IsEmpty());
}

TEST_F(FetchedJobSendTest, IsRefusedWhenTheFetchBeganDuringTheQuestion) {
    world.controller().put("WELD.JBI", older);
    world.question.answers = {Answer::Yes};
    world.question.whileOpen = [this] {
        world.pc.write(mark, FetchMark{.name = "WELD.JBI"}.format());
    };
    EXPECT_FALSE(send("WELD.JBI"));
    expectRefused();
}

TEST_F(FetchedJobSendTest, OneThatBeginsWhileTheSendConnectsKeepsADataFileBackToo) {
    const std::string data = FetchMark::fileNameFor("TOOL.CND");
    world.pc.write("TOOL.CND", "half");
    world.controller().put("TOOL.CND", "whole");
    world.library.onCall = [&](const std::string& function) {
        if (function == "BscConnect")
            world.pc.write(data, FetchMark{.name = "TOOL.CND"}.format());
    };
    EXPECT_FALSE(send("TOOL.CND", true));
    EXPECT_EQ(world.error(), " 21 0");
    EXPECT_EQ(world.controller().bytes("TOOL.CND"), "whole");
    EXPECT_EQ(world.library.openLinks(), 0);
}

TEST_F(FetchedJobSendTest, OneThatTheOperatorWasToldOfIsSent) {
    world.services.files = &files;
    world.session = std::make_unique<Snappy>(world.services);
    world.session->path = world.pc.path();
    files.failsRemoveMark = true;
    world.pc.write(mark, FetchMark{.name = "WELD.JBI"}.format());
    EXPECT_TRUE(world.session->settleInterruptedFetches(world.pc.path(), {mark}));
    EXPECT_TRUE(world.pc.has(mark));
    world.pc.write("WELD.JBI", weld);
    EXPECT_TRUE(send("WELD.JBI"));
}

TEST_F(FetchedJobSendTest, BesideADamagedMarkIsRefusedByACodeOfItsOwnThatNamesTheMark) {
    world.controller().put("WELD.JBI", older);
    world.pc.write(mark, "Vantrel fetch 2\nWELD.JBI\nend\n");
    const auto expectNamed = [this] {
        EXPECT_EQ(world.error(), " 47 0");
        EXPECT_EQ(world.session->errorText(), "mark unusable");
        EXPECT_EQ(world.session->unusableMark(), mark);
        EXPECT_EQ(world.controller().bytes("WELD.JBI"), older);
    };
    EXPECT_FALSE(send("WELD.JBI", true)) << "though nobody has looked at the folder";
    expectNamed();
    EXPECT_TRUE(world.session->settleInterruptedFetches(world.pc.path(), {mark, "WELD.JBI"}));
    EXPECT_FALSE(send("WELD.JBI", true)) << "though the operator was told";
    expectNamed();
    EXPECT_EQ(world.library.callCount(), 0);
    std::filesystem::remove(world.pc.path(mark));
    EXPECT_TRUE(send("WELD.JBI", true));
    EXPECT_EQ(world.controller().bytes("WELD.JBI"), weld);
}

TEST_F(FetchedJobSendTest, AnotherFailureNamesNoMark) {
    world.pc.write(mark, "?");
    EXPECT_FALSE(send("WELD.JBI", true));
    EXPECT_FALSE(send("NOWHERE.JBI", true));
    EXPECT_EQ(world.error(), " 21 0");
    EXPECT_EQ(world.session->unusableMark(), "");
}

TEST_F(FetchedJobSendTest, ATornMarkGoesAndTheFileIsSent) {
    world.pc.write(mark, "Vantrel fe");
    EXPECT_TRUE(send("WELD.JBI", true));
    EXPECT_FALSE(world.pc.has(mark));
}

} // namespace
} // namespace vantrel
