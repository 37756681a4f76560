#include "link/GroupMark.h"

#include "platform/Files.h"
#include "platform/HeldFile.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

const GroupMark twoFiles{{{.name = "A.JBI"}, {.name = "B C.JBI"}}};
const KnownContent content = KnownContent::of("new");

TEST(GroupMark, TellsWhatWasAnnouncedAndWhatHasArrived) {
    const auto mark = GroupMark::parse(twoFiles.format() + GroupMark::arrivedLine(1, content) +
                                       GroupMark::interruptedLine(0));
    ASSERT_TRUE(mark && mark->files.size() == 2);
    EXPECT_EQ(mark->files[0].name, "A.JBI");
    EXPECT_FALSE(mark->files[0].arrived);
    EXPECT_TRUE(mark->files[0].isInterrupted);
    EXPECT_EQ(mark->files[1].name, "B C.JBI");
    EXPECT_EQ(mark->files[1].arrived, content);
    EXPECT_FALSE(mark->files[1].isInterrupted);
    EXPECT_TRUE(mark->isOpen("A.JBI"));
    EXPECT_FALSE(mark->isOpen("B C.JBI"));
    EXPECT_FALSE(mark->isOpen("C.JBI"));
}

TEST(GroupMark, HasANameThatNoFilterShowsAndNoFilesMarkHas) {
    EXPECT_TRUE(FetchMark::isFileName(GroupMark::fileName()));
    EXPECT_EQ(GroupMark::fileName().find('.'), std::string::npos);
    EXPECT_NE(GroupMark::fileName(), FetchMark::fileNameFor("A.JBI"));
}

TEST(GroupMark, WithTheLongestNamesAndLinesItCanBeReadWhole) {
    GroupMark mark;
    std::string lines;
    for (std::size_t file = 0; file < GroupMark::mostFiles; ++file) {
        const std::string number = std::to_string(file);
        mark.files.push_back({.name = std::string(255 - number.size(), 'N') + number});
        lines += GroupMark::interruptedLine(file) +
                 GroupMark::arrivedLine(file, {UINT64_MAX, UINT64_MAX});
    }
    EXPECT_LT((mark.format() + lines).size(), 65536u);
    const auto read = GroupMark::parse(mark.format() + lines);
    ASSERT_TRUE(read);
    EXPECT_TRUE(read->files.back().arrived);
}

TEST(GroupMark, WhatIsNoLineBehindTheAnnouncementTellsNothing) {
    for (const std::string& line :
         {std::string("arrived 0 3 1"), std::string("arrived 2 3 1\n"),
          std::string("arrived 0 3\n"), std::string("arrived -1 3 1\n"),
          std::string("arrived 0 x 1\n"), std::string("arrived\n"), std::string("name C.JBI\n"),
          std::string("interrupted x\n"), std::string(50, '\0'), std::string("\n\n"),
          std::string("arrived 0 3 1 2\n")}) {
        const auto mark = GroupMark::parse(twoFiles.format() + line);
        ASSERT_TRUE(mark) << line;
        EXPECT_EQ(mark->files.size(), 2u) << line;
        EXPECT_TRUE(mark->isOpen("A.JBI")) << line;
        EXPECT_FALSE(mark->files[0].isInterrupted) << line;
    }
}

TEST(GroupMark, ALineBehindATornOneIsRead) {
    const auto mark =
        GroupMark::parse(twoFiles.format() + "arr\n" + GroupMark::arrivedLine(0, content));
    ASSERT_TRUE(mark);
    EXPECT_FALSE(mark->isOpen("A.JBI"));
}

TEST(GroupMark, ADamagedAnnouncementIsNone) {
    std::string many = "Vantrel fetch group 1\n";
    for (std::size_t file = 0; file <= GroupMark::mostFiles; ++file)
        many += "name " + std::to_string(file) + ".JBI\n";
    for (const std::string& text :
         {std::string("Vantrel fetch group 1\nname ../A.JBI\nend\n"),
          std::string("Vantrel fetch group 1\nname \nend\n"),
          std::string("Vantrel fetch group 1\nname ~vantrel-fetch-1\nend\n"),
          std::string("Vantrel fetch group 1\nA.JBI\nend\n"),
          std::string("Vantrel fetch group 2\nname A.JBI\nend\n"), many + "end\n",
          std::string("somebody's notes")}) {
        EXPECT_FALSE(GroupMark::parse(text)) << text;
        EXPECT_FALSE(GroupMark::isTorn(text)) << text;
    }
}

TEST(GroupMark, EachBeginningOfAnAnnouncementIsTorn) {
    const std::string whole = twoFiles.format();
    EXPECT_FALSE(GroupMark::isTorn(whole));
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_TRUE(GroupMark::isTorn(whole.substr(0, length))) << length;
        EXPECT_FALSE(GroupMark::parse(whole.substr(0, length))) << length;
    }
    EXPECT_TRUE(GroupMark::isTorn(std::string(64, '\0')));
    EXPECT_TRUE(GroupMark::isTorn("Vantrel fetch group 1\nname A" + std::string(64, '\0')));
}

/// Whether a file must not be renamed or copied.
struct BeingFetchedTest : testing::Test {
    tests::TemporaryFolder folder;

    bool isFetched(const std::string& name) { return isBeingFetched(folder.path(), name); }
};

TEST_F(BeingFetchedTest, OnlyMarkedFilesAre) {
    EXPECT_FALSE(isFetched("A.JBI"));
    folder.write(FetchMark::fileNameFor("A.JBI"), "?");
    EXPECT_TRUE(isFetched("A.JBI"));
    EXPECT_FALSE(isFetched("B.JBI"));
    EXPECT_TRUE(isFetched(GroupMark::fileName()));
}

TEST_F(BeingFetchedTest, AnAnnouncedOneIsUntilTheGroupIsSettled) {
    folder.write(GroupMark::fileName(), twoFiles.format() + GroupMark::arrivedLine(1, content));
    EXPECT_TRUE(isFetched("A.JBI"));
    EXPECT_TRUE(isFetched("B C.JBI")) << "under another name nobody would look for it";
    EXPECT_FALSE(isFetched("C.JBI"));
}

TEST_F(BeingFetchedTest, TheMarkThatAnotherProgramHoldsIsReadToo) {
    auto held = HeldFile::makeReadable(folder.path(GroupMark::fileName()));
    ASSERT_TRUE(held && held->write(twoFiles.format()));
    EXPECT_TRUE(isFetched("A.JBI"));
    EXPECT_FALSE(isFetched("C.JBI"));
}

TEST_F(BeingFetchedTest, BesideAMarkThatCannotBeReadEveryFileMayBe) {
    folder.write(GroupMark::fileName(), "?");
    EXPECT_TRUE(isFetched("A.JBI"));
    folder.write(GroupMark::fileName(), "Vantrel fet");
    EXPECT_FALSE(isFetched("A.JBI")) << "nothing was touched";
}

} // namespace
} // namespace vantrel
