#include "base/PathRules.h"
#include "platform/Files.h"
#include "platform/System_windows.h"
#include "support/CurrentFolderKept.h"
#include "support/SystemReasons.h"
#include "support/TemporaryFolder.h"

#include <set>

namespace vantrel {
namespace {

using namespace tests;

std::set<std::string> namesIn(const std::string& folder) {
    std::set<std::string> names;
    EXPECT_TRUE(visitNames(folder, [&](std::string_view name) { names.emplace(name); }));
    return names;
}

void protect(const std::string& path, bool on) {
    ASSERT_TRUE(::SetFileAttributesW(wide(path).c_str(),
                                     on ? FILE_ATTRIBUTE_READONLY : FILE_ATTRIBUTE_NORMAL));
}

TEST(WindowsReadFile, GivesAllBytes) {
    const TemporaryFolder folder;
    const std::string content("a\0\r\n\x1A\xFF", 6);
    for (const char* name : {"file", "\u8868 \u20AC.jbi"}) {
        const auto read = readFile(folder.write(name, content));
        ASSERT_TRUE(read) << name << ": " << read.reason();
        EXPECT_EQ(*read, content);
    }
}

TEST(WindowsReadFile, GivesALargeFile) {
    const TemporaryFolder folder;
    const std::string content(3'000'001, 'x');
    const auto read = readFile(folder.write("file", content));
    ASSERT_TRUE(read);
    EXPECT_TRUE(*read == content);
}

TEST(WindowsReadFile, FailsWithTheSystemsReason) {
    const TemporaryFolder folder;
    EXPECT_EQ(readFile(folder.path("none")).reason(), noSuchFile());
    EXPECT_EQ(readFile(folder.path("none\\file")).reason(), noSuchFolder());
    EXPECT_EQ(readFile(folder.path()).reason(), isAFolder());
    EXPECT_FALSE(readFile(""));
}

TEST(WindowsReadFile, ReadsAFileThatSomebodyIsWriting) {
    const TemporaryFolder folder;
    const std::string path = folder.write("file", "abc");
    const std::ofstream writer(path, std::ios::app);
    EXPECT_TRUE(readFile(path));
}

TEST(WindowsPathWithNul, LeadsNowhere) {
    const TemporaryFolder folder;
    const std::string path = folder.write("file", "precious") + std::string("\0x", 2);
    EXPECT_FALSE(readFile(path));
    EXPECT_FALSE(replaceFile(path, "new"));
    EXPECT_FALSE(removeFile(path));
    EXPECT_FALSE(renameFile(path, folder.path("other")));
    EXPECT_FALSE(isRegularFile(path) || anythingExists(path) || isFolder(path));
    EXPECT_FALSE(changeCurrentFolder(folder.path() + std::string("\0x", 2)));
    EXPECT_EQ(folder.read("file"), "precious");
}

TEST(WindowsReplaceFile, ReplacesTheWholeContentAndLeavesNothingBehind) {
    const TemporaryFolder folder;
    for (const char* content : {"a longer first content", "new", ""}) {
        const auto outcome = replaceFile(folder.path("\u8868.ini"), content);
        ASSERT_TRUE(outcome) << outcome.reason();
        EXPECT_EQ(folder.read("\u8868.ini"), content);
        EXPECT_EQ(namesIn(folder.path()), (std::set<std::string>{"\u8868.ini"}));
    }
}

TEST(WindowsReplaceFile, NeverWritesIntoTheOldFile) {
    const TemporaryFolder folder;
    const std::string path = folder.write("file", "old");
    const Handle old(::CreateFileW(wide(path).c_str(), GENERIC_READ,
                                   FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                   OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(replaceFile(path, "new"));
    char bytes[8] = {};
    DWORD count = 0;
    ASSERT_TRUE(::ReadFile(old.get(), bytes, sizeof bytes, &count, nullptr));
    EXPECT_EQ(std::string(bytes, count), "old");
}

TEST(WindowsReplaceFile, LeavesAWriteProtectedFileAlone) {
    const TemporaryFolder folder;
    const std::string path = folder.write("file", "old");
    protect(path, true);
    EXPECT_EQ(replaceFile(path, "new").reason(), systemFailure(ERROR_ACCESS_DENIED).reason);
    EXPECT_EQ(folder.read("file"), "old");
    EXPECT_EQ(namesIn(folder.path()).size(), 1u);
    protect(path, false);
}

TEST(WindowsReplaceFile, FailsWithTheSystemsReason) {
    const TemporaryFolder folder;
    EXPECT_EQ(replaceFile(folder.path("none\\file"), "x").reason(), noSuchFolder());
    EXPECT_EQ(replaceFile(folder.makeFolder("sub"), "x").reason(), isAFolder());
    EXPECT_EQ(namesIn(folder.path()), (std::set<std::string>{"sub"}));
}

TEST(WindowsFiles, TakePathsOfAnyLength) {
    const TemporaryFolder folder;
    std::string deep = folder.path();
    for (int i = 0; i < 6; ++i) {
        deep += "\\" + std::string(60, static_cast<char>('a' + i));
        ASSERT_TRUE(::CreateDirectoryW(systemPath(deep).c_str(), nullptr)) << deep.size();
    }
    const std::string file = deep + "\\job.jbi";
    ASSERT_GT(file.size(), std::size_t{MAX_PATH});
    const auto written = replaceFile(file, "content");
    ASSERT_TRUE(written) << written.reason();
    EXPECT_TRUE(replaceFile(file, "more"));
    EXPECT_EQ(*readFile(file), "more");
    EXPECT_TRUE(isRegularFile(file) && isFolder(deep));
    EXPECT_EQ(namesIn(deep), (std::set<std::string>{"job.jbi"}));
    EXPECT_EQ(findIgnoringCase(deep, "JOB.JBI"), "job.jbi");
    EXPECT_TRUE(renameFile(file, deep + "\\other.jbi"));
    EXPECT_TRUE(removeFile(deep + "\\other.jbi"));
    for (PathRules rules; deep.size() > folder.path().size(); deep = rules.parent(deep))
        ::RemoveDirectoryW(systemPath(rules.withoutTrailingSeparator(deep)).c_str());
}

TEST(WindowsRenameFile, ReplacesTheOther) {
    const TemporaryFolder folder;
    folder.write("a", "new");
    folder.write("b", "old");
    ASSERT_TRUE(renameFile(folder.path("a"), folder.path("b")));
    EXPECT_EQ(folder.read("b"), "new");
    EXPECT_EQ(renameFile(folder.path("a"), folder.path("b")).reason(), noSuchFile());
}

TEST(WindowsRemoveFile, RemovesFilesOnly) {
    const TemporaryFolder folder;
    ASSERT_TRUE(removeFile(folder.write("a", "x")));
    EXPECT_FALSE(folder.has("a"));
    EXPECT_FALSE(removeFile(folder.makeFolder("sub")));
    EXPECT_TRUE(folder.has("sub"));
}

TEST(WindowsFindIgnoringCase, GivesTheEntrysOwnSpelling) {
    const TemporaryFolder folder;
    folder.write("Japanese.lng", "");
    folder.write("\u00C9t\u00E9.lng", "");
    EXPECT_EQ(findIgnoringCase(folder.path(), "japanese.LNG"), "Japanese.lng");
    EXPECT_EQ(findIgnoringCase(folder.path(), "\u00E9T\u00C9.lng"), "\u00C9t\u00E9.lng");
    for (const char* name : {"English.lng", "*.lng", "Japanese.l?g", "..", ".", "", "sub\\x",
                             "sub/x", "Japanese.lng:x", "JAPANE~1.LNG"})
        EXPECT_EQ(findIgnoringCase(folder.path(), name), "") << name;
    EXPECT_EQ(findIgnoringCase(folder.path("none"), "Japanese.lng"), "");
    EXPECT_EQ(findIgnoringCase("", "windows"), "");
}

TEST(WindowsVisitFolder, TellsFilesAndFolders) {
    const TemporaryFolder folder;
    folder.write("\u8868.jbi", "12345");
    folder.makeFolder("sub");
    int count = 0;
    ASSERT_TRUE(visitFolder(folder.path(), [&](const FolderEntry& entry) {
        ++count;
        EXPECT_EQ(entry.isFolder, entry.name == "sub");
        EXPECT_EQ(entry.size, entry.isFolder ? 0u : 5u);
        EXPECT_TRUE(entry.detailsKnown);
        EXPECT_EQ(entry.changed.view().size(), DateText::length);
        EXPECT_TRUE(entry.isFolder || entry.name == "\u8868.jbi");
    }));
    EXPECT_EQ(count, 2);
    std::set<std::string> folders;
    EXPECT_TRUE(visitSubfolders(folder.path(), [&](auto name) { folders.emplace(name); }));
    EXPECT_EQ(folders, (std::set<std::string>{"sub"}));
}

TEST(WindowsVisitFolder, FailsWhenTheFolderCannotBeOpened) {
    const TemporaryFolder folder;
    const auto ignore = [](std::string_view) {};
    EXPECT_EQ(visitNames(folder.path("none"), ignore).reason(), noSuchFolder());
    EXPECT_FALSE(visitNames(folder.write("file", ""), ignore));
    EXPECT_FALSE(visitNames("", ignore));
    EXPECT_TRUE(visitNames(folder.makeFolder("empty"), ignore));
}

TEST(WindowsCurrentFolder, IsChangedAndTold) {
    const TemporaryFolder folder;
    const CurrentFolderKept kept;
    ASSERT_TRUE(changeCurrentFolder(folder.makeFolder("\u8868")));
    EXPECT_EQ(currentFolder(), folder.path("\u8868"));
    EXPECT_EQ(changeCurrentFolder(folder.path("none")).reason(), noSuchFile());
}

} // namespace
} // namespace vantrel
