#include "FolderNames.h"
#include "platform/Files.h"
#include "support/TemporaryFolder.h"

// Making, renaming and removing on every system.

namespace vantrel {
namespace {

using namespace tests;

TEST(RenameToFree, GivesTheFileItsNewName) {
    const TemporaryFolder folder;
    const auto from = folder.write("A.JBI", "a");
    ASSERT_TRUE(renameToFree(from, folder.path("\u8868.JBI")));
    EXPECT_FALSE(folder.has("A.JBI"));
    EXPECT_EQ(folder.read("\u8868.JBI"), "a");
}

TEST(RenameToFree, GoesOverNothing) {
    const TemporaryFolder folder;
    const auto from = folder.write("A.JBI", "a");
    const auto to = folder.write("B.JBI", "b");
    const auto inner = folder.makeFolder("C.JBI");
    EXPECT_FALSE(renameToFree(from, to));
    EXPECT_FALSE(renameToFree(from, inner));
    EXPECT_EQ(folder.read("A.JBI"), "a");
    EXPECT_EQ(folder.read("B.JBI"), "b");
}

TEST(RenameToFree, ChangesTheLetterCaseOfAName) {
    const TemporaryFolder folder;
    const auto from = folder.write("Weld.jbi", "a");
    ASSERT_TRUE(renameToFree(from, folder.path("WELD.JBI")));
    EXPECT_EQ(folder.read("WELD.JBI"), "a");
    // Where letter case tells no names apart the old spelling may stay.
    if (comparedName("a") != comparedName("A"))
        EXPECT_EQ(namesIn(folder.path()), std::set<std::string>{"WELD.JBI"});
}

TEST(RenameToFree, RenamesAFolderWithWhatIsInIt) {
    const TemporaryFolder folder;
    folder.write("line1/A.JBI", "a");
    ASSERT_TRUE(renameToFree(folder.path("line1"), folder.path("line 2")));
    EXPECT_EQ(folder.read("line 2/A.JBI"), "a");
}

TEST(CreateFolder, MakesOneWhereNothingIs) {
    const TemporaryFolder folder;
    ASSERT_TRUE(createFolder(folder.path("\u8868")));
    EXPECT_TRUE(isFolder(folder.path("\u8868")));
    EXPECT_FALSE(createFolder(folder.path("\u8868")));
    EXPECT_FALSE(createFolder(folder.write("A.JBI", "a")));
    EXPECT_FALSE(createFolder(folder.path("none/inner")));
    EXPECT_EQ(folder.read("A.JBI"), "a");
}

TEST(TemporaryFolders, AreOnesOwnAndGoOnlyWhenTheyAreEmpty) {
    const auto one = createTemporaryFolder();
    const auto another = createTemporaryFolder();
    ASSERT_TRUE(one);
    ASSERT_TRUE(another);
    EXPECT_NE(*one, *another);
    EXPECT_TRUE(isFolder(*one));
    ASSERT_TRUE(createFolder(*one + "/inner"));
    EXPECT_FALSE(removeFolder(*one));
    EXPECT_TRUE(removeFolder(*one + "/inner"));
    EXPECT_TRUE(removeFolder(*one));
    EXPECT_TRUE(removeFolder(*another));
    EXPECT_FALSE(isFolder(*one));
}

TEST(NamesChangedAt, ChangesWithTheNamesOnly) {
    const TemporaryFolder folder;
    folder.write("A.JBI", "a");
    const auto before = namesChangedAt(folder.path());
    EXPECT_NE(before, 0);
    EXPECT_EQ(namesChangedAt(folder.path()), before);
    // The system's clock may be coarse.
    for (int file = 0; file < 5000 && namesChangedAt(folder.path()) == before; ++file)
        folder.write("B" + std::to_string(file), "b");
    EXPECT_NE(namesChangedAt(folder.path()), before);
    EXPECT_EQ(namesChangedAt(folder.path("none")), 0);
}

TEST(FolderWork, PathsWithNulLeadNowhere) {
    const TemporaryFolder folder;
    const std::string file = folder.write("A.JBI", "a");
    const std::string path = folder.path("inner") + std::string("\0x", 2);
    EXPECT_FALSE(createFolder(path));
    EXPECT_FALSE(removeFolder(path));
    EXPECT_FALSE(renameToFree(file, path));
    EXPECT_FALSE(folder.has("inner"));
    EXPECT_EQ(namesChangedAt(path), 0);
}

} // namespace
} // namespace vantrel
