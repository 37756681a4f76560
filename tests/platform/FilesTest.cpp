#include "platform/Files.h"

#include "support/CurrentFolderKept.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace vantrel {
namespace {

using tests::CurrentFolderKept;
using tests::TemporaryFolder;

TEST(ReadFile, GivesAllBytes) {
    const TemporaryFolder folder;
    const std::string content("a\0\r\n\xFF", 5);
    const auto read = readFile(folder.write("file", content));
    ASSERT_TRUE(read);
    EXPECT_EQ(*read, content);
}

TEST(ReadFile, GivesAnEmptyFile) {
    const TemporaryFolder folder;
    const auto read = readFile(folder.write("file", ""));
    ASSERT_TRUE(read);
    EXPECT_EQ(*read, "");
}

TEST(ReadFile, GivesALargeFile) {
    const TemporaryFolder folder;
    const std::string content(3'000'001, 'x');
    const auto read = readFile(folder.write("file", content));
    ASSERT_TRUE(read);
    EXPECT_TRUE(*read == content);
}

TEST(ReadFile, ReadsOnWhenTheSystemTellsNoSize) {
    const auto read = readFile("/proc/self/environ");
    ASSERT_TRUE(read);
    EXPECT_FALSE(read->empty());
}

TEST(ReadFile, FailsWithTheSystemsReason) {
    const TemporaryFolder folder;
    EXPECT_EQ(readFile(folder.path("none")).reason(), "No such file or directory");
    EXPECT_EQ(readFile(folder.path()).reason(), "Is a directory");
    EXPECT_EQ(readFile("").reason(), "No such file or directory");
    EXPECT_EQ(readFile(folder.path(std::string(300, 'x'))).reason(), "File name too long");
}

TEST(ReadFile, DoesNotHangOnAPipeOrADevice) {
    const TemporaryFolder folder;
    ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);
    EXPECT_FALSE(readFile(folder.path("pipe")));
    EXPECT_FALSE(readFile("/dev/zero"));
}

TEST(PathWithNul, LeadsNowhere) {
    const TemporaryFolder folder;
    const std::string path = folder.write("file", "precious") + std::string("\0x", 2);
    EXPECT_FALSE(readFile(path));
    EXPECT_FALSE(replaceFile(path, "new"));
    EXPECT_FALSE(removeFile(path));
    EXPECT_FALSE(renameFile(path, folder.path("other")));
    EXPECT_FALSE(renameFile(folder.path("file"), folder.path("other") + std::string("\0x", 2)));
    EXPECT_FALSE(isRegularFile(path) || anythingExists(path));
    const std::string folderPath = folder.path() + std::string("\0x", 2);
    EXPECT_FALSE(isFolder(folderPath));
    EXPECT_FALSE(changeCurrentFolder(folderPath));
    EXPECT_FALSE(visitNames(folderPath, [](std::string_view) {}));
    EXPECT_EQ(folder.read("file"), "precious");
}

TEST(RenameFile, ReplacesTheOther) {
    const TemporaryFolder folder;
    folder.write("a", "new");
    folder.write("b", "old");
    ASSERT_TRUE(renameFile(folder.path("a"), folder.path("b")));
    EXPECT_EQ(folder.read("b"), "new");
    EXPECT_FALSE(folder.has("a"));
    EXPECT_EQ(renameFile(folder.path("a"), folder.path("b")).reason(), "No such file or directory");
}

TEST(RemoveFile, RemovesFilesOnly) {
    const TemporaryFolder folder;
    ASSERT_TRUE(removeFile(folder.write("a", "x")));
    EXPECT_FALSE(folder.has("a"));
    EXPECT_FALSE(removeFile(folder.path("a")));
    EXPECT_FALSE(removeFile(folder.makeFolder("sub")));
    EXPECT_TRUE(folder.has("sub"));
}

TEST(Kinds, AreToldThroughLinks) {
    const TemporaryFolder folder;
    folder.write("file", "x");
    folder.makeFolder("sub");
    std::filesystem::create_symlink(folder.path("file"), folder.path("linkToFile"));
    std::filesystem::create_symlink(folder.path("sub"), folder.path("linkToFolder"));
    std::filesystem::create_symlink(folder.path("none"), folder.path("dangling"));
    EXPECT_TRUE(isRegularFile(folder.path("file")) && isRegularFile(folder.path("linkToFile")));
    EXPECT_FALSE(isRegularFile(folder.path("sub")) || isRegularFile(folder.path("dangling")));
    EXPECT_TRUE(isFolder(folder.path("sub")) && isFolder(folder.path("linkToFolder")));
    EXPECT_FALSE(isFolder(folder.path("file")) || isFolder(folder.path("dangling")));
    EXPECT_TRUE(anythingExists(folder.path("file")) && anythingExists(folder.path("dangling")));
    EXPECT_FALSE(anythingExists(folder.path("none")));
}

TEST(FindIgnoringCase, GivesTheEntrysOwnSpelling) {
    const TemporaryFolder folder;
    folder.write("Japanese.lng", "");
    folder.write("\u00C9t\u00E9.lng", "");
    EXPECT_EQ(findIgnoringCase(folder.path(), "japanese.LNG"), "Japanese.lng");
    EXPECT_EQ(findIgnoringCase(folder.path(), "\u00E9T\u00C9.lng"), "\u00C9t\u00E9.lng");
    EXPECT_EQ(findIgnoringCase(folder.path(), "English.lng"), "");
    EXPECT_EQ(findIgnoringCase(folder.path("none"), "Japanese.lng"), "");
}

TEST(FindIgnoringCase, PrefersTheExactSpellingThenTheFirstInByteOrder) {
    const TemporaryFolder folder;
    for (const char* name : {"b.lng", "B.LNG", "B.lng"})
        folder.write(name, "");
    EXPECT_EQ(findIgnoringCase(folder.path(), "b.lng"), "b.lng");
    EXPECT_EQ(findIgnoringCase(folder.path(), "B.lng"), "B.lng");
    EXPECT_EQ(findIgnoringCase(folder.path(), "b.LNG"), "B.LNG");
}

TEST(FindIgnoringCase, NeverLeavesTheFolder) {
    const TemporaryFolder folder;
    folder.write("sub/file", "");
    EXPECT_EQ(findIgnoringCase(folder.path("sub"), ".."), "");
    EXPECT_EQ(findIgnoringCase(folder.path("sub"), "."), "");
    EXPECT_EQ(findIgnoringCase(folder.path("sub"), ""), "");
    EXPECT_EQ(findIgnoringCase(folder.path("sub"), "../sub"), "");
    EXPECT_EQ(findIgnoringCase(folder.path(), "sub/file"), "");
    EXPECT_EQ(findIgnoringCase(folder.path("sub"), std::string("file\0x", 6)), "");
}

TEST(CurrentFolder, IsChangedAndTold) {
    const TemporaryFolder folder;
    const CurrentFolderKept kept;
    ASSERT_TRUE(changeCurrentFolder(folder.makeFolder("\u8868")));
    EXPECT_EQ(currentFolder(), folder.path("\u8868"));
    EXPECT_EQ(changeCurrentFolder(folder.path("none")).reason(), "No such file or directory");
    EXPECT_EQ(currentFolder(), folder.path("\u8868"));
}

} // namespace
} // namespace vantrel
