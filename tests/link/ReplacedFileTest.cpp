#include "link/ReplacedFile.h"

#include "EndingFiles.h"
#include "link/SessionErrorRecord.h"
#include "platform/Files.h"
#include "support/TemporaryFolder.h"

#include <filesystem>
#include <utility>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

struct ReplacedFileTest : testing::Test {
    tests::TemporaryFolder folder;
    FetchFiles files;

    std::size_t fileCount() const {
        const std::filesystem::directory_iterator found(folder.path());
        return static_cast<std::size_t>(std::distance(begin(found), end(found)));
    }
};

TEST_F(ReplacedFileTest, TheOldFileIsOutOfTheWayMeanwhile) {
    folder.write("A.JBI", "old");
    const ReplacedFile file(files, folder.path(), "A.JBI");
    EXPECT_EQ(file.problem(), 0);
    EXPECT_FALSE(file.hasArrived());
    EXPECT_FALSE(folder.has("A.JBI"));
}

TEST_F(ReplacedFileTest, WithoutSuccessTheOldFileComesBackOverThePartialOne) {
    folder.write("A.JBI", "old");
    {
        const ReplacedFile file(files, folder.path(), "A.JBI");
        folder.write("A.JBI", "par");
    }
    EXPECT_EQ(folder.read("A.JBI"), "old");
    EXPECT_EQ(fileCount(), 1u);
}

TEST_F(ReplacedFileTest, WithoutSuccessAPartialNewFileGoes) {
    {
        const ReplacedFile file(files, folder.path(), "A.JBI");
        folder.write("A.JBI", "par");
    }
    EXPECT_EQ(fileCount(), 0u);
}

TEST_F(ReplacedFileTest, WhatCannotBeRemovedOfANewFileIsAFailure) {
    ReplacedFile file(files, folder.path(), "A.JBI");
    folder.write("A.JBI/inside", "");
    EXPECT_FALSE(file.putBack());
    EXPECT_EQ(file.asideName(), "");
    const std::string mark = folder.path(FetchMark::fileNameFor("A.JBI"));
    EXPECT_TRUE(anythingExists(mark)) << "until the operator knows";
    file.forget();
    EXPECT_FALSE(anythingExists(mark));
}

TEST_F(ReplacedFileTest, WithNothingArrivedThereIsNothingToRemove) {
    ReplacedFile file(files, folder.path(), "A.JBI");
    EXPECT_TRUE(file.putBack());
}

TEST_F(ReplacedFileTest, WithSuccessTheOldFileGoes) {
    folder.write("A.JBI", "old");
    {
        ReplacedFile file(files, folder.path(), "A.JBI");
        folder.write("A.JBI", "new");
        EXPECT_TRUE(file.hasArrived());
        EXPECT_EQ(file.keep(), 0);
    }
    EXPECT_EQ(folder.read("A.JBI"), "new");
    EXPECT_EQ(fileCount(), 1u);
}

TEST_F(ReplacedFileTest, AFileOfTheSpareNameIsNotTouched) {
    folder.write("A.JBI", "old");
    folder.write("A.JBI.replaced-1", "other");
    { const ReplacedFile file(files, folder.path(), "A.JBI"); }
    EXPECT_EQ(folder.read("A.JBI"), "old");
    EXPECT_EQ(folder.read("A.JBI.replaced-1"), "other");
}

TEST_F(ReplacedFileTest, AFolderOfTheNameIsLeftAlone) {
    folder.makeFolder("A.JBI");
    {
        const ReplacedFile file(files, folder.path(), "A.JBI");
        EXPECT_EQ(file.problem(), session_code::fileNotReplaceable);
        EXPECT_FALSE(file.hasArrived());
    }
    EXPECT_TRUE(std::filesystem::is_directory(folder.path("A.JBI")));
}

TEST_F(ReplacedFileTest, AnEmptyFileHasNotArrived) {
    const ReplacedFile file(files, folder.path(), "A.JBI");
    folder.write("A.JBI", "");
    EXPECT_FALSE(file.hasArrived());
}

TEST_F(ReplacedFileTest, TheLongestNamesAreSetAsideUnderAShorterOne) {
    const std::string start(249, 'A');
    const std::string one = start + "1.JBI";
    const std::string other = start + "2.JBI";
    folder.write(one, "old 1");
    folder.write(other, "old 2");
    {
        const ReplacedFile file(files, folder.path(), one);
        const ReplacedFile second(files, folder.path(), other);
        EXPECT_EQ(file.problem(), 0);
        EXPECT_EQ(second.problem(), 0);
        EXPECT_FALSE(folder.has(one));
        EXPECT_EQ(fileCount(), 4u) << "both files and a mark for each";
    }
    EXPECT_EQ(folder.read(one), "old 1");
    EXPECT_EQ(folder.read(other), "old 2");
}

TEST_F(ReplacedFileTest, PuttingBackTellsWhyItFailedAndWhereTheOldFileIs) {
    folder.write("A.JBI", "old");
    ReplacedFile file(files, folder.path(), "A.JBI");
    folder.makeFolder("A.JBI/inside");
    const Outcome outcome = file.putBack();
    ASSERT_FALSE(outcome);
    EXPECT_FALSE(outcome.reason().empty());
    EXPECT_EQ(file.asideName(), "A.JBI.replaced-1");
    EXPECT_EQ(folder.read("A.JBI.replaced-1"), "old");
}

TEST_F(ReplacedFileTest, PuttingBackWorksOnceAndWithoutAnOldFileToo) {
    ReplacedFile file(files, folder.path(), "A.JBI");
    folder.write("A.JBI", "par");
    EXPECT_TRUE(file.putBack());
    EXPECT_EQ(fileCount(), 0u);
    folder.write("A.JBI", "later");
    EXPECT_TRUE(file.putBack());
    EXPECT_EQ(folder.read("A.JBI"), "later");
}

TEST_F(ReplacedFileTest, NothingIsTouchedInAFolderThatTakesNoMark) {
    folder.write("A.JBI", "old");
    for (bool tests::FailingFiles::*step :
         {&tests::FailingFiles::failsHold, &tests::FailingFiles::failsWrite}) {
        tests::FailingFiles failing;
        failing.*step = true;
        const ReplacedFile file(failing, folder.path(), "A.JBI");
        EXPECT_EQ(file.problem(), session_code::fetchNotMarked);
        EXPECT_EQ(folder.read("A.JBI"), "old");
        EXPECT_EQ(fileCount(), 1u);
    }
}

TEST_F(ReplacedFileTest, AFileThatIsBeingFetchedAlreadyIsNotFetchedTwice) {
    const ReplacedFile first(files, folder.path(), "A.JBI");
    const ReplacedFile second(files, folder.path(), "A.JBI");
    EXPECT_EQ(second.problem(), session_code::fetchNotMarked);
}

TEST_F(ReplacedFileTest, AMarkThatNobodyHasSettledStays) {
    const std::string older = FetchMark{.name = "A.JBI"}.format();
    folder.write(FetchMark::fileNameFor("A.JBI"), older);
    {
        const ReplacedFile file(files, folder.path(), "A.JBI");
        EXPECT_EQ(file.problem(), session_code::fetchNotMarked);
    }
    EXPECT_EQ(folder.read(FetchMark::fileNameFor("A.JBI")), older);
}

/// Either way the old file must come back, and does.
TEST_F(ReplacedFileTest, WhatIsNotOnTheDiskOrStillMarkedIsNotKept) {
    const std::pair<bool tests::FailingFiles::*, std::int16_t> rows[] = {
        {&tests::FailingFiles::failsFlush, session_code::fileNotFlushed},
        {&tests::FailingFiles::failsRemoveMark, session_code::fetchNotMarked}};
    for (const auto& [step, code] : rows) {
        folder.write("A.JBI", "old");
        tests::FailingFiles failing;
        failing.*step = true;
        {
            ReplacedFile file(failing, folder.path(), "A.JBI");
            folder.write("A.JBI", "new");
            EXPECT_EQ(file.keep(), code);
        }
        EXPECT_EQ(folder.read("A.JBI"), "old");
        EXPECT_FALSE(folder.has("A.JBI.replaced-1"));
    }
}

/// By another machine, say, that does not see who holds the mark: the new file may be in pieces.
TEST_F(ReplacedFileTest, AnOldVersionThatWasChangedMeanwhileIsNeitherRemovedNorPutBack) {
    folder.write("A.JBI", "old");
    {
        ReplacedFile file(files, folder.path(), "A.JBI");
        folder.write("A.JBI", "new");
        folder.write("A.JBI.replaced-1", "changed");
        EXPECT_EQ(file.keep(), session_code::fileDidNotArrive);
        EXPECT_TRUE(file.putBack());
    }
    EXPECT_EQ(folder.read("A.JBI"), "new");
    EXPECT_EQ(folder.read("A.JBI.replaced-1"), "changed");
    EXPECT_TRUE(folder.has(FetchMark::fileNameFor("A.JBI"))) << "the next look tells of them";
}

} // namespace
} // namespace vantrel
