#include "link/ReplacedFile.h"

#include "support/TemporaryFolder.h"

#include <filesystem>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

struct ReplacedFileTest : testing::Test {
    tests::TemporaryFolder folder;

    std::size_t fileCount() const {
        const std::filesystem::directory_iterator files(folder.path());
        return static_cast<std::size_t>(std::distance(begin(files), end(files)));
    }
};

TEST_F(ReplacedFileTest, TheOldFileIsOutOfTheWayMeanwhile) {
    folder.write("A.JBI", "old");
    const ReplacedFile file(folder.path(), "A.JBI");
    EXPECT_TRUE(file.isReady());
    EXPECT_FALSE(file.hasArrived());
    EXPECT_FALSE(folder.has("A.JBI"));
}

TEST_F(ReplacedFileTest, WithoutSuccessTheOldFileComesBackOverThePartialOne) {
    folder.write("A.JBI", "old");
    {
        const ReplacedFile file(folder.path(), "A.JBI");
        folder.write("A.JBI", "par");
    }
    EXPECT_EQ(folder.read("A.JBI"), "old");
    EXPECT_EQ(fileCount(), 1u);
}

TEST_F(ReplacedFileTest, WithoutSuccessAPartialNewFileGoes) {
    {
        const ReplacedFile file(folder.path(), "A.JBI");
        folder.write("A.JBI", "par");
    }
    EXPECT_EQ(fileCount(), 0u);
}

TEST_F(ReplacedFileTest, WhatCannotBeRemovedOfANewFileIsAFailure) {
    ReplacedFile file(folder.path(), "A.JBI");
    folder.write("A.JBI/inside", "");
    EXPECT_FALSE(file.putBack());
    EXPECT_EQ(file.asideName(), "");
}

TEST_F(ReplacedFileTest, WithNothingArrivedThereIsNothingToRemove) {
    ReplacedFile file(folder.path(), "A.JBI");
    EXPECT_TRUE(file.putBack());
}

TEST_F(ReplacedFileTest, WithSuccessTheOldFileGoes) {
    folder.write("A.JBI", "old");
    {
        ReplacedFile file(folder.path(), "A.JBI");
        folder.write("A.JBI", "new");
        EXPECT_TRUE(file.hasArrived());
        file.keep();
    }
    EXPECT_EQ(folder.read("A.JBI"), "new");
    EXPECT_EQ(fileCount(), 1u);
}

TEST_F(ReplacedFileTest, AFileOfTheSpareNameIsNotTouched) {
    folder.write("A.JBI", "old");
    folder.write("A.JBI.replaced-1", "other");
    { const ReplacedFile file(folder.path(), "A.JBI"); }
    EXPECT_EQ(folder.read("A.JBI"), "old");
    EXPECT_EQ(folder.read("A.JBI.replaced-1"), "other");
}

TEST_F(ReplacedFileTest, AFolderOfTheNameIsLeftAlone) {
    folder.makeFolder("A.JBI");
    {
        const ReplacedFile file(folder.path(), "A.JBI");
        EXPECT_FALSE(file.isReady());
        EXPECT_FALSE(file.hasArrived());
    }
    EXPECT_TRUE(std::filesystem::is_directory(folder.path("A.JBI")));
}

TEST_F(ReplacedFileTest, AnEmptyFileHasNotArrived) {
    const ReplacedFile file(folder.path(), "A.JBI");
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
        const ReplacedFile file(folder.path(), one);
        const ReplacedFile second(folder.path(), other);
        EXPECT_TRUE(file.isReady());
        EXPECT_TRUE(second.isReady());
        EXPECT_FALSE(folder.has(one));
        EXPECT_EQ(fileCount(), 2u);
    }
    EXPECT_EQ(folder.read(one), "old 1");
    EXPECT_EQ(folder.read(other), "old 2");
}

TEST_F(ReplacedFileTest, PuttingBackTellsWhyItFailedAndWhereTheOldFileIs) {
    folder.write("A.JBI", "old");
    ReplacedFile file(folder.path(), "A.JBI");
    folder.makeFolder("A.JBI/inside");
    const Outcome outcome = file.putBack();
    ASSERT_FALSE(outcome);
    EXPECT_FALSE(outcome.reason().empty());
    EXPECT_EQ(file.asideName(), "A.JBI.replaced-1");
    EXPECT_EQ(folder.read("A.JBI.replaced-1"), "old");
}

TEST_F(ReplacedFileTest, PuttingBackWorksOnceAndWithoutAnOldFileToo) {
    ReplacedFile file(folder.path(), "A.JBI");
    folder.write("A.JBI", "par");
    EXPECT_TRUE(file.putBack());
    EXPECT_EQ(fileCount(), 0u);
    folder.write("A.JBI", "later");
    EXPECT_TRUE(file.putBack());
    EXPECT_EQ(folder.read("A.JBI"), "later");
}

/// As a program leaves it that is killed while the old file is set aside.
TEST_F(ReplacedFileTest, ALeftoverIsPutBackWhereTheNameIsMissing) {
    for (const std::string& name : {std::string("A.JBI"), std::string(250, 'B') + ".JBI"}) {
        folder.write(name, "old");
        std::string aside;
        {
            ReplacedFile file(folder.path(), name);
            aside = file.asideName();
            std::filesystem::copy_file(folder.path(aside), folder.path("saved"));
        }
        std::filesystem::remove(folder.path(name));
        std::filesystem::rename(folder.path("saved"), folder.path(aside));
        putBackLeftover(folder.path(), name);
        EXPECT_EQ(folder.read(name), "old");
        EXPECT_FALSE(folder.has(aside));
    }
}

TEST_F(ReplacedFileTest, OfSeveralLeftoversTheLastOneIsPutBack) {
    folder.write("A.JBI.replaced-1", "older");
    folder.write("A.JBI.replaced-2", "old");
    putBackLeftover(folder.path(), "A.JBI");
    EXPECT_EQ(folder.read("A.JBI"), "old");
    EXPECT_EQ(folder.read("A.JBI.replaced-1"), "older");
}

TEST_F(ReplacedFileTest, ALeftoverBesideItsFileStays) {
    folder.write("A.JBI", "new");
    folder.write("A.JBI.replaced-1", "old");
    putBackLeftover(folder.path(), "A.JBI");
    EXPECT_EQ(folder.read("A.JBI"), "new");
    EXPECT_EQ(folder.read("A.JBI.replaced-1"), "old");
}

TEST_F(ReplacedFileTest, AFolderOfTheSpareNameIsNoLeftover) {
    folder.makeFolder("A.JBI.replaced-1");
    putBackLeftover(folder.path(), "A.JBI");
    EXPECT_FALSE(folder.has("A.JBI"));
}

} // namespace
} // namespace vantrel
