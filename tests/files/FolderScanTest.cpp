#include "files/FolderScan.h"

#include "support/TemporaryFolder.h"

#include <filesystem>
#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

TEST(FolderScan, ListsFilesAndFoldersButNotTheFolderItselfAndItsParent) {
    const tests::TemporaryFolder folder;
    folder.write("A.JBI", "123");
    folder.write(".hidden", "");
    folder.makeFolder("SUB");
    const auto listing = scanFolder(folder.path());
    ASSERT_TRUE(listing);
    EXPECT_EQ(listing->Count, 3);
    EXPECT_EQ(listing->Path, folder.path());
    EXPECT_THAT(listing->Names, UnorderedElementsAre("A.JBI", ".hidden", "SUB"));
}

TEST(FolderScan, AFileBeyondTheSizesRangeShowsTheLargestSize) {
    const tests::TemporaryFolder folder;
    const std::string file = folder.write("BIG.DAT", "");
    std::filesystem::resize_file(file, 5'000'000'000); // sparse: takes no room
    const auto listing = scanFolder(folder.path());
    ASSERT_TRUE(listing);
    EXPECT_THAT(listing->Sizes, ElementsAre(std::numeric_limits<std::int32_t>::max()));
}

TEST(FolderScan, AnEmptyFolderGivesAnEmptyListing) {
    const tests::TemporaryFolder folder;
    const auto listing = scanFolder(folder.path());
    ASSERT_TRUE(listing);
    EXPECT_EQ(listing->Count, 0);
    EXPECT_THAT(listing->Names, IsEmpty());
}

TEST(FolderScan, AFolderThatCannotBeOpenedGivesTheSystemsReason) {
    const tests::TemporaryFolder folder;
    const auto missing = scanFolder(folder.path("MISSING"));
    ASSERT_FALSE(missing);
    EXPECT_FALSE(missing.reason().empty());
    EXPECT_FALSE(scanFolder(folder.write("A.JBI", "")));
    EXPECT_FALSE(scanFolder(""));
}

TEST(FolderFiles, ComeInTheOrderOfTheirNamesWithoutRegardToCaseAndWithoutFolders) {
    const tests::TemporaryFolder folder;
    for (const char* name : {"b.JBI", "A.JBI", ".hidden", "C.jbi"})
        folder.write(name, "");
    folder.makeFolder("AB");
    EXPECT_THAT(folderFiles(folder.path()), ElementsAre(".hidden", "A.JBI", "b.JBI", "C.jbi"));
}

TEST(FolderFiles, OfAFolderThatCannotBeReadAreNone) {
    const tests::TemporaryFolder folder;
    EXPECT_THAT(folderFiles(folder.path("gone")), IsEmpty());
    EXPECT_THAT(folderFiles(folder.write("file", "")), IsEmpty());
}

TEST(Subfolders, ComeInTheOrderOfTheirNamesWithoutRegardToCase) {
    const tests::TemporaryFolder folder;
    for (const char* name : {"b", "A", "C", ".hidden", ".installed", "\u00E4", "\u00C4b"})
        folder.makeFolder(name);
    folder.write("file.JBI", "");
    EXPECT_THAT(subfolders(folder.path()),
                ElementsAre(".hidden", "A", "b", "C", "\u00E4", "\u00C4b"));
}

TEST(Subfolders, OfAFolderThatCannotBeReadAreNone) {
    const tests::TemporaryFolder folder;
    EXPECT_THAT(subfolders(folder.path("gone")), IsEmpty());
    EXPECT_THAT(subfolders(folder.write("file", "")), IsEmpty());
    EXPECT_THAT(subfolders(""), IsEmpty());
}

} // namespace
} // namespace vantrel
