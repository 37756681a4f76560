#include "platform/Files.h"
#include "support/BoundByPermissions.h"
#include "support/FileSizeLimit.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace vantrel {
namespace {

using tests::TemporaryFolder;

std::size_t entriesIn(const std::string& folder) {
    std::size_t count = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder))
        ++count;
    return count;
}

mode_t permissionsOf(const std::string& path) {
    struct stat details {};
    return ::stat(path.c_str(), &details) == 0 ? details.st_mode & 07777 : 0;
}

TEST(ReplaceFile, CreatesANewFile) {
    const TemporaryFolder folder;
    const std::string content("a\0\xFF\n", 4);
    ASSERT_TRUE(replaceFile(folder.path("file"), content));
    EXPECT_EQ(folder.read("file"), content);
    EXPECT_EQ(entriesIn(folder.path()), 1u);
}

TEST(ReplaceFile, GivesANewFileTheUsualPermissions) {
    const TemporaryFolder folder;
    const mode_t old = ::umask(0027);
    const auto outcome = replaceFile(folder.path("file"), "x");
    ::umask(old);
    ASSERT_TRUE(outcome);
    EXPECT_EQ(permissionsOf(folder.path("file")), 0640u);
}

TEST(ReplaceFile, ReplacesTheWholeContent) {
    const TemporaryFolder folder;
    folder.write("file", "a longer old content");
    ASSERT_TRUE(replaceFile(folder.path("file"), "new"));
    EXPECT_EQ(folder.read("file"), "new");
    EXPECT_EQ(entriesIn(folder.path()), 1u);
}

TEST(ReplaceFile, KeepsThePermissions) {
    const TemporaryFolder folder;
    const std::string path = folder.write("file", "old");
    ASSERT_EQ(::chmod(path.c_str(), 0751), 0);
    ASSERT_TRUE(replaceFile(path, "new"));
    EXPECT_EQ(permissionsOf(path), 0751u);
}

TEST(ReplaceFile, NeverWritesIntoTheOldFile) {
    const TemporaryFolder folder;
    const std::string path = folder.write("file", "old");
    std::filesystem::create_hard_link(path, folder.path("other"));
    ASSERT_TRUE(replaceFile(path, "new"));
    EXPECT_EQ(folder.read("other"), "old");
}

TEST(ReplaceFile, FollowsALink) {
    const TemporaryFolder folder;
    folder.write("sub/file", "old");
    std::filesystem::create_symlink("sub/file", folder.path("inner"));
    std::filesystem::create_symlink(folder.path("inner"), folder.path("link"));
    ASSERT_TRUE(replaceFile(folder.path("link"), "new"));
    EXPECT_EQ(folder.read("sub/file"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(folder.path("link")));
    EXPECT_EQ(entriesIn(folder.path("sub")), 1u);
}

TEST(ReplaceFile, CreatesTheTargetOfADanglingLink) {
    const TemporaryFolder folder;
    std::filesystem::create_symlink("file", folder.path("link"));
    ASSERT_TRUE(replaceFile(folder.path("link"), "new"));
    EXPECT_EQ(folder.read("file"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(folder.path("link")));
}

TEST(ReplaceFile, FailsForLinksThatRunInACircle) {
    const TemporaryFolder folder;
    std::filesystem::create_symlink("b", folder.path("a"));
    std::filesystem::create_symlink("a", folder.path("b"));
    EXPECT_FALSE(replaceFile(folder.path("a"), "new"));
    EXPECT_EQ(entriesIn(folder.path()), 2u);
}

TEST(ReplaceFile, TakesTheLongestPossibleName) {
    const TemporaryFolder folder;
    const std::string path = folder.path(std::string(255, 'n'));
    ASSERT_TRUE(replaceFile(path, "new"));
    EXPECT_TRUE(isRegularFile(path));
}

TEST(ReplaceFile, FailsWithTheSystemsReasonAndLeavesNothingBehind) {
    const TemporaryFolder folder;
    folder.makeFolder("sub");
    EXPECT_EQ(replaceFile(folder.path("none/file"), "x").reason(), "No such file or directory");
    EXPECT_EQ(replaceFile(folder.path("sub"), "x").reason(), "Is a directory");
    EXPECT_FALSE(replaceFile(folder.path(std::string(300, 'n')), "x"));
    EXPECT_FALSE(replaceFile("", "x"));
    EXPECT_EQ(entriesIn(folder.path()), 1u);
    EXPECT_EQ(entriesIn(folder.path("sub")), 0u);
}

TEST(ReplaceFile, LeavesAPipeAlone) {
    const TemporaryFolder folder;
    ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);
    EXPECT_FALSE(replaceFile(folder.path("pipe"), "x"));
    EXPECT_FALSE(isRegularFile(folder.path("pipe")));
    EXPECT_TRUE(anythingExists(folder.path("pipe")));
}

TEST(ReplaceFile, LeavesAWriteProtectedFileAlone) {
    const TemporaryFolder folder;
    const std::string path = folder.write("file", "old");
    ASSERT_EQ(::chmod(path.c_str(), 0444), 0);
    // The folder would let the file be replaced.
    ASSERT_EQ(::chmod(folder.path().c_str(), 0777), 0);
    const tests::BoundByPermissions bound;
    const auto outcome = replaceFile(path, "new");
    EXPECT_FALSE(outcome);
    EXPECT_EQ(outcome ? "" : outcome.reason(), "Permission denied");
    EXPECT_EQ(folder.read("file"), "old");
}

TEST(ReplaceFile, KeepsTheOldFileWhenTheNewOneCannotBeWrittenWhole) {
    const TemporaryFolder folder;
    const std::string path = folder.write("file", "old");
    const std::string content(100'000, 'x');
    std::string reason;
    {
        const tests::FileSizeLimit limit(4096);
        const auto outcome = replaceFile(path, content);
        reason = outcome ? "" : outcome.reason();
    }
    EXPECT_EQ(reason, "File too large");
    EXPECT_EQ(folder.read("file"), "old");
    EXPECT_EQ(entriesIn(folder.path()), 1u);
}

} // namespace
} // namespace vantrel
