#include "platform/Files.h"
#include "support/EnvironmentVariable.h"
#include "support/TemporaryFolder.h"

#include <map>
#include <set>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

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

TEST(VisitFolder, TellsFilesAndFolders) {
    const TemporaryFolder folder;
    folder.write("a.jbi", "12345");
    folder.makeFolder("sub");
    const auto seen = entriesOf(folder.path());
    ASSERT_EQ(seen.size(), 2u);
    EXPECT_FALSE(seen.at("a.jbi").isFolder);
    EXPECT_EQ(seen.at("a.jbi").size, 5u);
    EXPECT_TRUE(seen.at("a.jbi").detailsKnown);
    EXPECT_TRUE(seen.at("sub").isFolder);
    EXPECT_EQ(seen.at("sub").size, 0u);
}

TEST(VisitFolder, TellsTheLocalTimeOfTheLastChange) {
    const EnvironmentVariable zone("TZ", "JST-9");
    const TemporaryFolder folder;
    setTime(folder.write("a", ""), 1795129509); // 2026-11-19 23:05:09 UTC
    EXPECT_EQ(entriesOf(folder.path()).at("a").changed, "2026/11/20 08:05:09");
}

TEST(VisitFolder, TakesALinkForWhatItLeadsTo) {
    const TemporaryFolder folder, other;
    other.write("file", "123");
    std::filesystem::create_symlink(other.path("file"), folder.path("toFile"));
    std::filesystem::create_symlink(other.path(), folder.path("toFolder"));
    const auto seen = entriesOf(folder.path());
    EXPECT_EQ(seen.at("toFile").size, 3u);
    EXPECT_FALSE(seen.at("toFile").isFolder);
    EXPECT_TRUE(seen.at("toFolder").isFolder);
}

TEST(VisitFolder, ShowsADanglingLinkAsAnEmptyFileWithoutDetails) {
    const TemporaryFolder folder;
    std::filesystem::create_symlink("nowhere", folder.path("dangling"));
    const auto seen = entriesOf(folder.path());
    const Seen& entry = seen.at("dangling");
    EXPECT_FALSE(entry.isFolder || entry.detailsKnown);
    EXPECT_EQ(entry.size, 0u);
    EXPECT_EQ(entry.changed, "");
}

TEST(VisitFolder, ShowsOddNames) {
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

TEST(VisitFolder, FailsWhenTheFolderCannotBeOpened) {
    const TemporaryFolder folder;
    int calls = 0;
    const auto count = [&](const FolderEntry&) { ++calls; };
    EXPECT_EQ(visitFolder(folder.path("none"), count).reason(), "No such file or directory");
    EXPECT_EQ(visitFolder(folder.write("file", ""), count).reason(), "Not a directory");
    EXPECT_FALSE(visitFolder("", count));
    EXPECT_EQ(calls, 0);
}

TEST(VisitFolder, IsDoneWithAnEmptyFolder) {
    const TemporaryFolder folder;
    EXPECT_TRUE(entriesOf(folder.path()).empty());
}

TEST(VisitFolder, TakesEntriesThatVanishMeanwhile) {
    const TemporaryFolder folder;
    for (int i = 0; i < 50; ++i)
        folder.write(std::to_string(i), "x");
    int calls = 0;
    EXPECT_TRUE(visitFolder(folder.path(), [&](const FolderEntry&) {
        if (++calls == 1) {
            for (int i = 0; i < 50; ++i)
                std::filesystem::remove(folder.path(std::to_string(i)));
        }
    }));
    EXPECT_GE(calls, 1);
}

TEST(VisitNames, GivesTheSameNames) {
    const TemporaryFolder folder;
    folder.write("a", "");
    folder.makeFolder("b");
    std::filesystem::create_symlink("nowhere", folder.path("c"));
    std::set<std::string> names;
    EXPECT_TRUE(visitNames(folder.path(), [&](std::string_view name) { names.emplace(name); }));
    EXPECT_EQ(names, (std::set<std::string>{"a", "b", "c"}));
    EXPECT_EQ(visitNames(folder.path("none"), [](std::string_view) {}).reason(),
              "No such file or directory");
}

TEST(VisitSubfolders, GivesFoldersAndLinksToFolders) {
    const TemporaryFolder folder, other;
    folder.write("file", "");
    folder.makeFolder("sub");
    folder.makeFolder(".hidden");
    std::filesystem::create_symlink(other.path(), folder.path("toFolder"));
    std::filesystem::create_symlink(folder.path(), folder.path("toItself"));
    std::filesystem::create_symlink(other.write("file", ""), folder.path("toFile"));
    std::filesystem::create_symlink("nowhere", folder.path("dangling"));
    std::set<std::string> names;
    const auto keep = [&](std::string_view name) { names.emplace(name); };
    EXPECT_TRUE(visitSubfolders(folder.path(), keep));
    EXPECT_EQ(names, (std::set<std::string>{"sub", ".hidden", "toFolder", "toItself"}));
    EXPECT_EQ(visitSubfolders(folder.path("none"), keep).reason(), "No such file or directory");
}

} // namespace
} // namespace vantrel
