#include "link/ReplacedFile.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

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
        EXPECT_TRUE(file.isReady());
        EXPECT_FALSE(file.hasArrived());
    }
    EXPECT_TRUE(std::filesystem::is_directory(folder.path("A.JBI")));
}

TEST_F(ReplacedFileTest, ANameTooLongToBeSetAsideIsNotReady) {
    const std::string name = std::string(250, 'A') + ".JBI";
    folder.write(name, "old");
    {
        const ReplacedFile file(folder.path(), name);
        EXPECT_FALSE(file.isReady());
    }
    EXPECT_EQ(folder.read(name), "old");
}

} // namespace
} // namespace vantrel
