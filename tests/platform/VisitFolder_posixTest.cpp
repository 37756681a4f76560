#include "platform/Files.h"
#include "support/EnvironmentVariable.h"
#include "support/TemporaryFolder.h"

#include <filesystem>
#include <map>
#include <set>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

// What only POSIX systems have: links, names of any bytes, and a time zone in the environment.

namespace vantrel {
namespace {

using namespace tests;

struct Seen {
    bool isFolder;
    std::uint64_t size;
    std::string changed;
    bool detailsKnown;
};

std::map<std::string, Seen> entriesOf(const std::string& folder) {
    std::map<std::string, Seen> seen;
    EXPECT_TRUE(visitFolder(folder, [&](const FolderEntry& entry) {
        seen.emplace(entry.name, Seen{entry.isFolder, entry.size, std::string(entry.changed.view()),
                                      entry.detailsKnown});
    }));
    return seen;
}

void setTime(const std::string& path, std::time_t time) {
    const timespec times[2] = {{time, 0}, {time, 999'999'999}};
    ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
}

/// Takes an open folder away from whoever is reading it, as a network does that fails.
void closeBehindItsReader(const std::string& folder) {
    for (const auto& link : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code ignored;
        if (std::filesystem::read_symlink(link.path(), ignored) == folder)
            ::close(std::stoi(link.path().filename()));
    }
}

TEST(PosixVisitFolder, FailsWhenTheFolderCannotBeReadToItsEnd) {
    const TemporaryFolder folder;
    for (int index = 0; index < 3000; ++index) // more than one reading brings
        folder.write("a name of some length " + std::to_string(index), "");
    int seen = 0;
    const auto visited = visitNames(folder.path(), [&](std::string_view) {
        if (++seen == 1)
            closeBehindItsReader(folder.path());
    });
    EXPECT_LT(seen, 3000);
    EXPECT_EQ(visited.reason(), "Bad file descriptor");
}

TEST(PosixVisitFolder, TellsTheLocalTimeOfTheLastChange) {
    const EnvironmentVariable zone("TZ", "JST-9");
    const TemporaryFolder folder;
    setTime(folder.write("a", ""), 1795129509); // 2026-11-19 23:05:09 UTC
    EXPECT_EQ(entriesOf(folder.path()).at("a").changed, "2026/11/20 08:05:09");
}

TEST(PosixVisitFolder, TakesALinkForWhatItLeadsTo) {
    const TemporaryFolder folder, other;
    other.write("file", "123");
    std::filesystem::create_symlink(other.path("file"), folder.path("toFile"));
    std::filesystem::create_symlink(other.path(), folder.path("toFolder"));
    const auto seen = entriesOf(folder.path());
    EXPECT_EQ(seen.at("toFile").size, 3u);
    EXPECT_FALSE(seen.at("toFile").isFolder);
    EXPECT_TRUE(seen.at("toFolder").isFolder);
}

TEST(PosixVisitFolder, ShowsADanglingLinkAsAnEmptyFileWithoutDetails) {
    const TemporaryFolder folder;
    std::filesystem::create_symlink("nowhere", folder.path("dangling"));
    const auto seen = entriesOf(folder.path());
    const Seen& entry = seen.at("dangling");
    EXPECT_FALSE(entry.isFolder || entry.detailsKnown);
    EXPECT_EQ(entry.size, 0u);
    EXPECT_EQ(entry.changed, "");
}

TEST(PosixVisitFolder, ShowsOddNames) {
    const TemporaryFolder folder;
    folder.write("...", "");
    folder.write(".hidden", "");
    folder.write("line\nend", "");
    folder.write("\u8868", "");
    folder.write("bad\xFF"
                 "name",
                 "");
    const auto seen = entriesOf(folder.path());
    EXPECT_EQ(seen.size(), 5u);
    for (const char* name : {"...", ".hidden", "line\nend", "\u8868", "bad\uFFFDname"})
        EXPECT_TRUE(seen.contains(name)) << name;
}

TEST(PosixVisitFolder, FailsForAFileWithTheSystemsReason) {
    const TemporaryFolder folder;
    const std::string file = folder.write("file", "");
    EXPECT_EQ(visitFolder(file, [](const FolderEntry&) {}).reason(), "Not a directory");
}

TEST(PosixVisitNames, GivesDanglingLinksToo) {
    const TemporaryFolder folder;
    std::filesystem::create_symlink("nowhere", folder.path("dangling"));
    std::string names;
    EXPECT_TRUE(visitNames(folder.path(), [&](std::string_view name) { names += name; }));
    EXPECT_EQ(names, "dangling");
}

TEST(PosixVisitSubfolders, GivesLinksToFoldersToo) {
    const TemporaryFolder folder, other;
    folder.makeFolder("sub");
    std::filesystem::create_symlink(other.path(), folder.path("toFolder"));
    std::filesystem::create_symlink(folder.path(), folder.path("toItself"));
    std::filesystem::create_symlink(other.write("file", ""), folder.path("toFile"));
    std::filesystem::create_symlink("nowhere", folder.path("dangling"));
    std::set<std::string> names;
    EXPECT_TRUE(
        visitSubfolders(folder.path(), [&](std::string_view name) { names.emplace(name); }));
    EXPECT_EQ(names, (std::set<std::string>{"sub", "toFolder", "toItself"}));
}

} // namespace
} // namespace vantrel
