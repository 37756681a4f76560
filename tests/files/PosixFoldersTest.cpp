#include "files/FolderScan.h"
#include "support/TemporaryFolder.h"

#include <filesystem>

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

TEST(FolderScan, ADanglingLinkDoesNotStopTheScan) {
    const tests::TemporaryFolder folder;
    folder.write("A.JBI", "");
    std::filesystem::create_symlink(folder.path("MISSING"), folder.path("LINK.JBI"));
    const auto listing = scanFolder(folder.path());
    ASSERT_TRUE(listing);
    EXPECT_THAT(listing->Names, UnorderedElementsAre("A.JBI", "LINK.JBI"));
}

TEST(FolderFiles, ALinkToAFolderIsNone) {
    const tests::TemporaryFolder folder;
    folder.write("A.JBI", "");
    folder.makeFolder("AB");
    std::filesystem::create_directory_symlink(folder.path("AB"), folder.path("link"));
    EXPECT_THAT(folderFiles(folder.path()), ElementsAre("A.JBI"));
}

TEST(Subfolders, OfALinkThatLeadsBackAreReadOneLevelAtATime) {
    const tests::TemporaryFolder folder;
    folder.makeFolder("a");
    std::filesystem::create_symlink(folder.path(), folder.path("loop"));
    EXPECT_THAT(subfolders(folder.path("loop")), ElementsAre("a", "loop"));
}

TEST(Subfolders, NamesThatDifferInLetterCaseOnlyAreInByteOrder) {
    const tests::TemporaryFolder folder;
    for (const char* name : {"b", "A", "C", "B"})
        folder.makeFolder(name);
    EXPECT_THAT(subfolders(folder.path()), ElementsAre("A", "B", "b", "C"));
}

} // namespace
} // namespace vantrel
