#include "files/CopyIntoFolder.h"

#include "CommandFixture.h"
#include "link/FetchMark.h"
#include "link/GroupMark.h"

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

class CopyIntoFolderTest : public tests::CommandTest {
  protected:
    CopyIntoFolderTest() { robot(); }

    std::string dropped(const std::string& name, const std::string& version = "2") {
        return elsewhere.write(name + ".JBI", job(name, version));
    }

    tests::TemporaryFolder elsewhere;
};

TEST_F(CopyIntoFolderTest, FilesAreCopiedByteForByteAndSelected) {
    pcJob("A");
    showPanes();
    const auto data = elsewhere.write("B.DAT", std::string("a\0\r\n\xFF", 5));
    EXPECT_TRUE(commands.copyIntoFolder({dropped("C"), data}));
    EXPECT_EQ(pc.read("B.DAT"), std::string("a\0\r\n\xFF", 5));
    EXPECT_EQ(pc.read("C.JBI"), job("C", "2"));
    EXPECT_THAT(window.pc.selectedNames(), ElementsAre("B.DAT", "C.JBI"));
    EXPECT_EQ(window.result, "2 copied, 0 skipped, 0 failed");
    EXPECT_TRUE(elsewhere.has("C.JBI")) << "a copy, not a move";
    EXPECT_EQ(window.pc.focuses, 1);
    EXPECT_EQ(library.callCount(), 0);
}

TEST_F(CopyIntoFolderTest, WhatIsThereIsAskedForByName) {
    for (const char* name : {"A", "B", "C"})
        pcJob(name);
    showPanes();
    question.answers = {Answer::Yes, Answer::No, Answer::Cancel};
    EXPECT_FALSE(commands.copyIntoFolder({dropped("A"), dropped("B"), dropped("C"), dropped("D")}));
    EXPECT_THAT(question.questions, SizeIs(3));
    EXPECT_THAT(question.questions.front(), StartsWith("A.JBI already exists"));
    EXPECT_EQ(pc.read("A.JBI"), job("A", "2"));
    EXPECT_EQ(pc.read("B.JBI"), job("B"));
    EXPECT_EQ(pc.read("C.JBI"), job("C"));
    EXPECT_FALSE(pc.has("D.JBI"));
    EXPECT_EQ(window.result, "1 copied, 1 skipped, 0 failed, 2 not tried, cancelled");
}

TEST_F(CopyIntoFolderTest, AllIsAskedOnce) {
    for (const char* name : {"A", "B"})
        pcJob(name);
    showPanes();
    question.answers = {Answer::All};
    EXPECT_TRUE(commands.copyIntoFolder({dropped("A"), dropped("B")}));
    EXPECT_THAT(question.questions, SizeIs(1));
    EXPECT_EQ(pc.read("B.JBI"), job("B", "2"));
}

TEST_F(CopyIntoFolderTest, FoldersArePassedOverByName) {
    showPanes();
    EXPECT_TRUE(commands.copyIntoFolder({elsewhere.makeFolder("inner"), dropped("A")}));
    EXPECT_THAT(boxes.texts(), ElementsAre("[inner] is a folder"));
    EXPECT_FALSE(pc.has("inner"));
    EXPECT_TRUE(pc.has("A.JBI"));
    EXPECT_EQ(window.result, "1 copied, 1 skipped, 0 failed");
}

TEST_F(CopyIntoFolderTest, AFileOnItselfIsSkippedWithTheReasonInTheResultAlone) {
    pcJob("A");
    showPanes();
    EXPECT_TRUE(commands.copyIntoFolder({pc.path("A.JBI"), dropped("B")}));
    EXPECT_EQ(pc.read("A.JBI"), job("A"));
    EXPECT_THAT(question.questions, IsEmpty());
    EXPECT_THAT(boxes.texts(), IsEmpty());
    EXPECT_EQ(window.result, "1 copied, 1 skipped, 0 failed");
    EXPECT_EQ(results.last()->items.front().reason, "already here");
}

TEST_F(CopyIntoFolderTest, TheProgressCountsTheFilesAndWaitsForNoController) {
    showPanes();
    commands.copyIntoFolder({dropped("A"), dropped("B")});
    EXPECT_THAT(progressView.waits(), ElementsAre("", "item 1 of 2", "item 2 of 2"));
}

TEST_F(CopyIntoFolderTest, AFailureIsToldAndTheOthersGoOn) {
    pc.makeFolder("A.JBI");
    showPanes();
    EXPECT_FALSE(commands.copyIntoFolder({dropped("A"), elsewhere.path("gone.JBI"), dropped("B")}));
    EXPECT_THAT(boxes.texts(), ElementsAre(StartsWith("[A.JBI] not copied ( "),
                                           StartsWith("[gone.JBI] not copied ( ")));
    EXPECT_TRUE(pc.has("B.JBI"));
    EXPECT_EQ(window.result, "1 copied, 0 skipped, 2 failed");
}

TEST_F(CopyIntoFolderTest, CancelEndsItBetweenTwoFiles) {
    showPanes();
    pressCancelAtYield(3); // the first shows the window
    EXPECT_FALSE(commands.copyIntoFolder({dropped("A"), dropped("B")}));
    EXPECT_TRUE(pc.has("A.JBI"));
    EXPECT_FALSE(pc.has("B.JBI"));
    EXPECT_EQ(window.result, "1 copied, 0 skipped, 0 failed, 1 not tried, cancelled");
}

/// All was meant for what was there before.
TEST_F(CopyIntoFolderTest, WhatTheCommandItselfBroughtIsAskedForAfterAll) {
    pcJob("A");
    showPanes();
    const auto second = elsewhere.write("inner/A.JBI", job("A", "3"));
    question.answers = {Answer::All, Answer::No};
    EXPECT_TRUE(commands.copyIntoFolder({dropped("A"), second}));
    EXPECT_THAT(question.questions, SizeIs(2));
    EXPECT_EQ(pc.read("A.JBI"), job("A", "2"));
}

/// Its old version would come back over it.
TEST_F(CopyIntoFolderTest, AFileWhoseTransferIsNotFinishedIsNotReplaced) {
    showPanes();
    pc.write(FetchMark::fileNameFor("A.JBI"), "");
    pcJob("A");
    EXPECT_TRUE(commands.copyIntoFolder({dropped("A")}));
    EXPECT_EQ(pc.read("A.JBI"), job("A"));
    EXPECT_EQ(boxes.texts().front(), "[A.JBI] not finished");
    EXPECT_EQ(window.result, "0 copied, 1 skipped, 0 failed");
}

TEST_F(CopyIntoFolderTest, NorIsOneWhoseTransferBeginsWhileTheQuestionStandsThere) {
    pcJob("A");
    showPanes();
    question.answers = {Answer::Yes};
    question.whileOpen = [this] { pc.write(FetchMark::fileNameFor("A.JBI"), ""); };
    EXPECT_TRUE(commands.copyIntoFolder({dropped("A")}));
    EXPECT_THAT(question.questions, SizeIs(1));
    EXPECT_EQ(pc.read("A.JBI"), job("A"));
    EXPECT_THAT(boxes.texts(), testing::ElementsAre("[A.JBI] not finished"));
    EXPECT_EQ(window.result, "0 copied, 1 skipped, 0 failed");
}

TEST_F(CopyIntoFolderTest, AFileThatTheFilterHidesLeavesNothingSelected) {
    pcJob("A");
    showPanes();
    window.pcFilter = 0;
    EXPECT_TRUE(commands.copyIntoFolder({elsewhere.write("N.BAK", "x")}));
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI"));
    EXPECT_THAT(window.pc.selected, IsEmpty());
}

/// It would arrive as a whole one.
TEST_F(CopyIntoFolderTest, HalfAFileAndItsMarkStayWhereTheyAre) {
    pcJob("A");
    showPanes();
    const auto half = dropped("A");
    const auto mark = elsewhere.write(FetchMark::fileNameFor("A.JBI"), "");
    EXPECT_TRUE(commands.copyIntoFolder({half, mark, dropped("B")}));
    EXPECT_EQ(pc.read("A.JBI"), job("A"));
    EXPECT_FALSE(pc.has(FetchMark::fileNameFor("A.JBI")));
    EXPECT_TRUE(pc.has("B.JBI"));
    EXPECT_EQ(window.result, "1 copied, 2 skipped, 0 failed");
}

TEST_F(CopyIntoFolderTest, SoDoFilesOfAGroupThatIsBeingFetched) {
    pcJob("A");
    showPanes();
    const auto half = dropped("A");
    elsewhere.write(GroupMark::fileName(), GroupMark{{{.name = "A.JBI"}}}.format());
    pc.write(GroupMark::fileName(), GroupMark{{{.name = "C.JBI"}}}.format());
    EXPECT_TRUE(commands.copyIntoFolder({half, dropped("B"), dropped("C")}));
    EXPECT_EQ(pc.read("A.JBI"), job("A"));
    EXPECT_TRUE(pc.has("B.JBI"));
    EXPECT_FALSE(pc.has("C.JBI"));
    EXPECT_EQ(window.result, "1 copied, 2 skipped, 0 failed");
}

} // namespace
} // namespace vantrel
