#include "platform/Files.h"
#include "support/SystemReasons.h"
#include "support/TemporaryFolder.h"

#include <set>

#include <gtest/gtest.h>

// What holds on every system.

namespace vantrel {
namespace {

using namespace tests;
using Names = std::set<std::string>;

TEST(VisitFolder, TellsFilesAndFolders) {
    const TemporaryFolder folder;
    folder.write("\u8868.jbi", "12345");
    folder.makeFolder("sub");
    int count = 0;
    ASSERT_TRUE(visitFolder(folder.path(), [&](const FolderEntry& entry) {
        ++count;
        EXPECT_TRUE(entry.name == "sub" || entry.name == "\u8868.jbi") << entry.name;
        EXPECT_EQ(entry.isFolder, entry.name == "sub");
        EXPECT_EQ(entry.size, entry.isFolder ? 0u : 5u);
        EXPECT_EQ(entry.changed.view().size(), DateText::length);
        EXPECT_TRUE(entry.detailsKnown);
    }));
    EXPECT_EQ(count, 2);
}

TEST(VisitFolder, FailsWhenTheFolderCannotBeOpened) {
    const TemporaryFolder folder;
    int calls = 0;
    const auto count = [&](const FolderEntry&) { ++calls; };
    EXPECT_EQ(visitFolder(folder.path("none"), count).reason(), noSuchFolder());
    EXPECT_FALSE(visitFolder(folder.write("file", ""), count));
    EXPECT_FALSE(visitFolder("", count));
    EXPECT_EQ(calls, 0);
}

TEST(VisitFolder, IsDoneWithAnEmptyFolder) {
    const TemporaryFolder folder;
    int calls = 0;
    EXPECT_TRUE(visitFolder(folder.path(), [&](const FolderEntry&) { ++calls; }));
    EXPECT_TRUE(visitNames(folder.path(), [&](std::string_view) { ++calls; }));
    EXPECT_EQ(calls, 0);
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
    Names names;
    const auto keep = [&](std::string_view name) { names.emplace(name); };
    EXPECT_TRUE(visitNames(folder.path(), keep));
    EXPECT_EQ(names, (Names{"a", "b"}));
    EXPECT_EQ(visitNames(folder.path("none"), keep).reason(), noSuchFolder());
    EXPECT_FALSE(visitNames(folder.path("a"), keep));
    EXPECT_FALSE(visitNames("", keep));
}

TEST(VisitSubfolders, GivesFoldersOnly) {
    const TemporaryFolder folder;
    folder.write("file", "");
    folder.makeFolder("sub");
    folder.makeFolder(".hidden");
    Names names;
    const auto keep = [&](std::string_view name) { names.emplace(name); };
    EXPECT_TRUE(visitSubfolders(folder.path(), keep));
    EXPECT_EQ(names, (Names{"sub", ".hidden"}));
    EXPECT_EQ(visitSubfolders(folder.path("none"), keep).reason(), noSuchFolder());
}

} // namespace
} // namespace vantrel
