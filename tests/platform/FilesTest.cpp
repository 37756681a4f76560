#include "platform/Files.h"

#include "FolderNames.h"
#include "support/CurrentFolderKept.h"
#include "support/SystemReasons.h"
#include "support/TemporaryFolder.h"

// What holds on every system.

namespace vantrel {
namespace {

using namespace tests;

TEST(ReadFile, GivesAllBytes) {
    const TemporaryFolder folder;
    const std::string content("a\0\r\n\x1A\xFF", 6);
    for (const char* name : {"file", "\u8868 \u20AC.jbi"}) {
        const auto read = readFile(folder.write(name, content));
        ASSERT_TRUE(read) << name << ": " << read.reason();
        EXPECT_EQ(*read, content);
    }
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

TEST(ReadFile, GivesAFileThatSomebodyIsWriting) {
    const TemporaryFolder folder;
    const std::string path = folder.write("file", "abc");
    const std::ofstream writer(path, std::ios::app);
    const auto read = readFile(path);
    ASSERT_TRUE(read) << read.reason();
    EXPECT_EQ(*read, "abc");
}

TEST(ReadFile, FailsWithTheSystemsReason) {
    const TemporaryFolder folder;
    EXPECT_EQ(readFile(folder.path("none")).reason(), noSuchFile());
    EXPECT_EQ(readFile(folder.path("none/file")).reason(), noSuchFolder());
    EXPECT_EQ(readFile(folder.path()).reason(), isAFolder());
    EXPECT_FALSE(readFile(""));
}

TEST(PathWithNul, LeadsNowhere) {
    const TemporaryFolder folder;
    const std::string path = folder.write("file", "precious") + std::string("\0x", 2);
    EXPECT_FALSE(readFile(path));
    EXPECT_FALSE(replaceFile(path, "new"));
    EXPECT_FALSE(removeFile(path));
    EXPECT_FALSE(renameFile(path, folder.path("other")));
    EXPECT_FALSE(renameFile(folder.path("file"), folder.path("other") + std::string("\0x", 2)));
    EXPECT_FALSE(isRegularFile(path) || anythingExists(path) || isFolder(path));
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
    EXPECT_EQ(renameFile(folder.path("a"), folder.path("b")).reason(), noSuchFile());
}

TEST(RemoveFile, RemovesFilesOnly) {
    const TemporaryFolder folder;
    ASSERT_TRUE(removeFile(folder.write("a", "x")));
    EXPECT_FALSE(folder.has("a"));
    EXPECT_FALSE(removeFile(folder.path("a")));
    EXPECT_FALSE(removeFile(folder.makeFolder("sub")));
    EXPECT_TRUE(folder.has("sub"));
}

TEST(Kinds, AreTold) {
    const TemporaryFolder folder;
    folder.write("file", "x");
    folder.makeFolder("sub");
    EXPECT_TRUE(isRegularFile(folder.path("file")));
    EXPECT_FALSE(isRegularFile(folder.path("sub")) || isRegularFile(folder.path("none")));
    EXPECT_TRUE(isFolder(folder.path("sub")));
    EXPECT_FALSE(isFolder(folder.path("file")) || isFolder(folder.path("none")));
    EXPECT_TRUE(anythingExists(folder.path("file")) && anythingExists(folder.path("sub")));
    EXPECT_FALSE(anythingExists(folder.path("none")));
}

TEST(FindIgnoringCase, GivesTheEntrysOwnSpelling) {
    const TemporaryFolder folder;
    folder.write("Japanese.lng", "");
    folder.write("\u00C9t\u00E9.lng", "");
    EXPECT_EQ(findIgnoringCase(folder.path(), "japanese.LNG"), "Japanese.lng");
    EXPECT_EQ(findIgnoringCase(folder.path(), "\u00E9T\u00C9.lng"), "\u00C9t\u00E9.lng");
    EXPECT_EQ(findIgnoringCase(folder.path("none"), "Japanese.lng"), "");
    EXPECT_EQ(findIgnoringCase("", "windows"), "");
}

TEST(FindIgnoringCase, TakesNoPatternsOrOtherNames) {
    const TemporaryFolder folder;
    folder.write("Japanese.lng", "");
    for (const char* name :
         {"English.lng", "*.lng", "Japanese.l?g", "Japanese.lng:x", "JAPANE~1.LNG"})
        EXPECT_EQ(findIgnoringCase(folder.path(), name), "") << name;
}

TEST(FindIgnoringCase, NeverLeavesTheFolder) {
    const TemporaryFolder folder;
    folder.write("sub/file", "");
    EXPECT_EQ(findIgnoringCase(folder.path("sub"), std::string("file\0x", 6)), "");
    for (const char* name : {"..", ".", "", "../sub", "..\\sub"})
        EXPECT_EQ(findIgnoringCase(folder.path("sub"), name), "") << name;
    for (const char* name : {"sub/file", "sub\\file"})
        EXPECT_EQ(findIgnoringCase(folder.path(), name), "") << name;
}

TEST(CurrentFolder, IsChangedAndTold) {
    const TemporaryFolder folder;
    const CurrentFolderKept kept;
    ASSERT_TRUE(changeCurrentFolder(folder.makeFolder("\u8868")));
    EXPECT_EQ(currentFolder(), folder.path("\u8868"));
    EXPECT_EQ(changeCurrentFolder(folder.path("none")).reason(), noSuchFile());
    EXPECT_EQ(currentFolder(), folder.path("\u8868"));
}

struct RemoveFileIfTest : testing::Test {
    TemporaryFolder folder;
    const std::string path = folder.write("A.JBI", "sent");
    const std::string spare = folder.path("A.JBI.sent-1");

    Result<bool> remove(const std::string& wanted) {
        return removeFileIf(path, spare,
                            [&wanted](const std::string& content) { return content == wanted; });
    }
};

TEST_F(RemoveFileIfTest, WhatMayGoGoes) {
    const auto removed = remove("sent");
    ASSERT_TRUE(removed) << removed.reason();
    EXPECT_TRUE(*removed);
    EXPECT_TRUE(namesIn(folder.path()).empty());
}

TEST_F(RemoveFileIfTest, WhatMayNotGoStaysUnderItsName) {
    const auto removed = remove("other");
    ASSERT_TRUE(removed) << removed.reason();
    EXPECT_FALSE(*removed);
    EXPECT_EQ(namesIn(folder.path()), std::set<std::string>{"A.JBI"});
    EXPECT_EQ(folder.read("A.JBI"), "sent");
}

TEST_F(RemoveFileIfTest, WhatMayNotGoIsNeverSeenUnderTheSpareName) {
    bool seen = false;
    const auto removed = removeFileIf(path, spare, [&](const std::string&) {
        seen = seen || folder.has("A.JBI.sent-1");
        return false;
    });
    ASSERT_TRUE(removed) << removed.reason();
    EXPECT_FALSE(seen);
}

TEST_F(RemoveFileIfTest, WhatIsNoFileIsAFailureAndStays) {
    const auto all = [](const std::string&) { return true; };
    folder.makeFolder("SUB");
    EXPECT_FALSE(removeFileIf(folder.path("SUB"), spare, all));
    EXPECT_FALSE(removeFileIf(folder.path("nowhere"), spare, all));
    EXPECT_FALSE(removeFileIf(std::string("a\0b", 3), spare, all));
    EXPECT_EQ(namesIn(folder.path()), (std::set<std::string>{"A.JBI", "SUB"}));
}

} // namespace
} // namespace vantrel
