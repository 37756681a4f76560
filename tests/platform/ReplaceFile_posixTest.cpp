#include "FolderNames.h"
#include "platform/Files.h"
#include "support/BoundByPermissions.h"
#include "support/FileSizeLimit.h"
#include "support/TemporaryFolder.h"

#include <sys/resource.h>
#include <sys/stat.h>

// What only POSIX systems have: links, pipes and bits of permission.

namespace vantrel {
namespace {

using namespace tests;

mode_t permissionsOf(const std::string& path) {
    struct stat details {};
    return ::stat(path.c_str(), &details) == 0 ? details.st_mode & 07777 : 0;
}

TEST(PosixReplaceFile, GivesANewFileTheUsualPermissions) {
    const TemporaryFolder folder;
    const mode_t old = ::umask(0027);
    const auto outcome = replaceFile(folder.path("file"), "x");
    ::umask(old);
    ASSERT_TRUE(outcome);
    EXPECT_EQ(permissionsOf(folder.path("file")), 0640u);
}

TEST(PosixReplaceFile, KeepsThePermissions) {
    const TemporaryFolder folder;
    const std::string path = folder.write("file", "old");
    ASSERT_EQ(::chmod(path.c_str(), 0751), 0);
    ASSERT_TRUE(replaceFile(path, "new"));
    EXPECT_EQ(permissionsOf(path), 0751u);
}

TEST(PosixReplaceFile, FollowsALink) {
    const TemporaryFolder folder;
    folder.write("sub/file", "old");
    std::filesystem::create_symlink("sub/file", folder.path("inner"));
    std::filesystem::create_symlink(folder.path("inner"), folder.path("link"));
    ASSERT_TRUE(replaceFile(folder.path("link"), "new"));
    EXPECT_EQ(folder.read("sub/file"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(folder.path("link")));
    EXPECT_EQ(namesIn(folder.path("sub")), std::set<std::string>{"file"});
}

TEST(PosixReplaceFile, CreatesTheTargetOfADanglingLink) {
    const TemporaryFolder folder;
    std::filesystem::create_symlink("file", folder.path("link"));
    ASSERT_TRUE(replaceFile(folder.path("link"), "new"));
    EXPECT_EQ(folder.read("file"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(folder.path("link")));
}

TEST(PosixReplaceFile, FailsForLinksThatRunInACircle) {
    const TemporaryFolder folder;
    std::filesystem::create_symlink("b", folder.path("a"));
    std::filesystem::create_symlink("a", folder.path("b"));
    EXPECT_FALSE(replaceFile(folder.path("a"), "new"));
    EXPECT_EQ(namesIn(folder.path()), (std::set<std::string>{"a", "b"}));
}

TEST(PosixReplaceFile, LeavesAPipeAlone) {
    const TemporaryFolder folder;
    ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);
    EXPECT_FALSE(replaceFile(folder.path("pipe"), "x"));
    EXPECT_FALSE(isRegularFile(folder.path("pipe")));
    EXPECT_TRUE(anythingExists(folder.path("pipe")));
}

TEST(PosixReplaceFile, LeavesAWriteProtectedFileAlone) {
    const TemporaryFolder folder;
    const std::string path = folder.write("file", "old");
    ASSERT_EQ(::chmod(path.c_str(), 0444), 0);
    // The folder would let the file be replaced.
    ASSERT_EQ(::chmod(folder.path().c_str(), 0777), 0);
    const BoundByPermissions bound;
    const auto outcome = replaceFile(path, "new");
    EXPECT_FALSE(outcome);
    EXPECT_EQ(outcome ? "" : outcome.reason(), "Permission denied");
    EXPECT_EQ(folder.read("file"), "old");
}

TEST(PosixReplaceFile, KeepsTheOldFileWhenTheNewOneCannotBeWrittenWhole) {
    const TemporaryFolder folder;
    const std::string path = folder.write("file", "old");
    const std::string content(100'000, 'x');
    std::string reason;
    {
        const FileSizeLimit limit(4096);
        const auto outcome = replaceFile(path, content);
        reason = outcome ? "" : outcome.reason();
    }
    EXPECT_EQ(reason, "File too large");
    EXPECT_EQ(folder.read("file"), "old");
    EXPECT_EQ(namesIn(folder.path()), std::set<std::string>{"file"});
}

} // namespace
} // namespace vantrel
