#include "FolderNames.h"
#include "platform/Files.h"
#include "support/SystemReasons.h"
#include "support/TemporaryFolder.h"

// What holds on every system.

namespace vantrel {
namespace {

using namespace tests;
using Names = std::set<std::string>;

TEST(ReplaceFile, CreatesANewFile) {
    const TemporaryFolder folder;
    const std::string content("a\0\xFF\n", 4);
    ASSERT_TRUE(replaceFile(folder.path("file"), content));
    EXPECT_EQ(folder.read("file"), content);
    EXPECT_EQ(namesIn(folder.path()), Names{"file"});
}

TEST(ReplaceFile, ReplacesTheWholeContentAndLeavesNothingBehind) {
    const TemporaryFolder folder;
    for (const char* content : {"a longer first content", "new", ""}) {
        const auto outcome = replaceFile(folder.path("\u8868.ini"), content);
        ASSERT_TRUE(outcome) << outcome.reason();
        EXPECT_EQ(folder.read("\u8868.ini"), content);
        EXPECT_EQ(namesIn(folder.path()), Names{"\u8868.ini"});
    }
}

TEST(ReplaceFile, NeverWritesIntoTheOldFile) {
    const TemporaryFolder folder;
    const std::string path = folder.write("file", "old");
    std::filesystem::create_hard_link(path, folder.path("other"));
    ASSERT_TRUE(replaceFile(path, "new"));
    EXPECT_EQ(folder.read("other"), "old");
}

TEST(ReplaceFile, TakesTheLongestPossibleName) {
    const TemporaryFolder folder;
    const std::string path = folder.path(std::string(255, 'n'));
    const auto outcome = replaceFile(path, "new");
    ASSERT_TRUE(outcome) << outcome.reason();
    EXPECT_TRUE(isRegularFile(path));
}

TEST(ReplaceFile, FailsWithTheSystemsReasonAndLeavesNothingBehind) {
    const TemporaryFolder folder;
    EXPECT_EQ(replaceFile(folder.path("none/file"), "x").reason(), noSuchFolder());
    EXPECT_EQ(replaceFile(folder.makeFolder("sub"), "x").reason(), isAFolder());
    EXPECT_FALSE(replaceFile(folder.path(std::string(300, 'n')), "x"));
    EXPECT_FALSE(replaceFile("", "x"));
    EXPECT_EQ(namesIn(folder.path()), Names{"sub"});
    EXPECT_EQ(namesIn(folder.path("sub")), Names{});
}

} // namespace
} // namespace vantrel
