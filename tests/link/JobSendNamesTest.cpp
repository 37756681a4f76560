#include "EndingFiles.h"
#include "JobSendFixture.h"
#include "link/JobSend.h"
#include "support/NamedRow.h"

#include <utility>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using tests::SessionWorld;

using JobSendNamesTest = tests::JobSendFixture;

TEST_F(JobSendNamesTest, AJobNamedInsideTheFileIsAskedForToo) {
    world.controller().put("WELD.JBI", older);
    world.pc.write("COPY.JBI", weld);
    world.question.answers = {Answer::Yes};
    EXPECT_TRUE(send("COPY.JBI"));
    EXPECT_THAT(world.question.questions, ElementsAre("WELD.JBI already exists. Overwrite it?"));
    EXPECT_EQ(world.controller().bytes("WELD.JBI"), weld);
}

TEST_F(JobSendNamesTest, BothNamesAreAskedForBeforeAnythingIsDeleted) {
    world.controller().put("WELD.JBI", older);
    world.controller().put("COPY.JBI", SessionWorld::job("COPY"));
    world.pc.write("COPY.JBI", weld);
    world.question.answers = {Answer::Yes, Answer::No};
    EXPECT_FALSE(send("COPY.JBI"));
    EXPECT_EQ(world.question.questions.size(), 2u);
    EXPECT_EQ(world.library.callCount("BscDeleteJob"), 0);
    EXPECT_EQ(world.error(), " 4 0");
}

TEST_F(JobSendNamesTest, TheAnswerAllCoversTheJobNamedInsideToo) {
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

class NamelessJobTest : public JobSendNamesTest, public testing::WithParamInterface<NamelessRow> {};

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

TEST_F(JobSendNamesTest, ANamelessRelatedJobDeletesNothingSoItIsTheControllersToJudge) {
    world.controller().put("WELD.JBI", older);
    world.pc.write("WELD.JBR", "/JOB\r\nNOP\r\n");
    world.question.answers = {Answer::Yes};
    EXPECT_FALSE(send("WELD.JBR"));
    EXPECT_EQ(world.error(), "BscDownLoad 1310 0");
    EXPECT_THAT(world.question.questions, ElementsAre("WELD.JBR already exists. Overwrite it?"));
    EXPECT_EQ(world.library.callCount("BscSelectJob"), 0);
}

TEST_F(JobSendNamesTest, ANamelessFileInNobodysWayIsTheControllersToJudge) {
    world.pc.write("NEW.JBI", "/JOB\r\nNOP\r\n");
    EXPECT_FALSE(send("NEW.JBI"));
    EXPECT_EQ(world.error(), "BscDownLoad 1310 0");
}

TEST_F(JobSendNamesTest, AFileWhoseLineNamesANewJobStillReplacesTheJobOfItsOwnName) {
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

TEST_F(JobSendNamesTest, OnlyTheQuestionAboutTheFilesOwnJobNamesTheOtherOne) {
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

TEST_F(JobSendNamesTest, ARelatedJobFileOfAnotherNameDeletesNothingAndSaysNothingOfIt) {
    world.controller().put("COPY.JBI", SessionWorld::job("COPY"));
    world.pc.write("COPY.JBR", weld);
    world.question.answers = {Answer::Yes};
    EXPECT_TRUE(send("COPY.JBR"));
    EXPECT_THAT(world.question.questions, ElementsAre("COPY.JBR already exists. Overwrite it?"));
    EXPECT_THAT(world.session->unreplacedJobs(), IsEmpty());
}

TEST_F(JobSendNamesTest, WhatAFailedSendHasDeletedIsKnownUntilTheNextOperation) {
    world.controller().put("WELD.JBI", older);
    world.library.disturb({.function = "BscDownLoad", .code = 1400});
    EXPECT_FALSE(send("WELD.JBI", true));
    EXPECT_THAT(world.session->unreplacedJobs(), ElementsAre("WELD.JBI"));
    EXPECT_FALSE(world.session->JobUpLoad("NONE.JBI"));
    EXPECT_THAT(world.session->unreplacedJobs(), IsEmpty());
}

TEST_F(JobSendNamesTest, OfTwoDeletionsTheFirstIsKnownWhenTheSecondFails) {
    world.controller().put("WELD.JBI", older);
    world.controller().put("COPY.JBI", SessionWorld::job("COPY"));
    world.pc.write("COPY.JBI", weld);
    world.library.disturb({.function = "BscDeleteJob", .call = 2, .code = 1210});
    EXPECT_FALSE(send("COPY.JBI", true));
    EXPECT_THAT(world.session->unreplacedJobs(), ElementsAre("COPY.JBI"));
}

TEST_F(JobSendNamesTest, ASendThatTheLibraryConfirmsHasReplacedTheJobThoughTheLinkWillNotClose) {
    world.controller().put("WELD.JBI", older);
    world.library.disturb({.function = "BscDisConnect", .call = 3, .code = -3});
    EXPECT_FALSE(send("WELD.JBI", true));
    EXPECT_EQ(world.error(), "BscDisConnect -3 0");
    EXPECT_THAT(world.session->unreplacedJobs(), IsEmpty());
}

TEST_F(JobSendNamesTest, AJobThatALaterFileOfTheListBringsBackIsReplacedAfterAll) {
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

class ForeignNameTest : public JobSendNamesTest {
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
TEST_F(JobSendNamesTest, OverAJobWhoseNameDiffersFromAnotherInLetterCaseOnlyNothingIsSent) {
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

TEST_F(JobSendNamesTest, TheSameNameTwiceInTheDirectoryIsOneName) {
    world.library.onCall = [this, told = false](const std::string& function) mutable {
        if (function == "BscFindNext" && !std::exchange(told, true)) {
            world.controller().erase("WELD.JBI");
            world.controller().put("WELD.JBI", older);
        }
    };
    world.controller().put("WELD.JBI", older);
    EXPECT_TRUE(send("WELD.JBI", true)) << world.error();
}

TEST_F(JobSendNamesTest, QuestionsAboutVeryLongNamesAreShortened) {
    const std::string longName(240, 'A');
    world.controller().put(longName + ".JBI", older);
    world.pc.write(longName + ".JBI", SessionWorld::job(longName));
    EXPECT_FALSE(send(longName + ".JBI"));
    ASSERT_EQ(world.question.questions.size(), 1u);
    EXPECT_LT(world.question.questions[0].size(), 240u);
    EXPECT_LT(world.view.messages().front().size(), 240u);
}

} // namespace
} // namespace vantrel
