#include "platform/Files.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

// What only POSIX systems have: links, pipes, devices, names that differ in letter case only.

namespace vantrel {
namespace {

using tests::TemporaryFolder;

TEST(PosixReadFile, ReadsOnWhenTheSystemTellsNoSize) {
    const auto read = readFile("/proc/self/environ");
    ASSERT_TRUE(read);
    EXPECT_FALSE(read->empty());
}

TEST(PosixReadFile, FailsWithTheSystemsReason) {
    const TemporaryFolder folder;
    EXPECT_EQ(readFile("").reason(), "No such file or directory");
    EXPECT_EQ(readFile(folder.path(std::string(300, 'x'))).reason(), "File name too long");
}

TEST(PosixReadFile, DoesNotHangOnAPipeOrADevice) {
    const TemporaryFolder folder;
    ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);
    EXPECT_FALSE(readFile(folder.path("pipe")));
    EXPECT_FALSE(readFile("/dev/zero"));
}

TEST(PosixKinds, AreToldThroughLinks) {
    const TemporaryFolder folder;
    folder.write("file", "x");
    folder.makeFolder("sub");
    std::filesystem::create_symlink(folder.path("file"), folder.path("linkToFile"));
    std::filesystem::create_symlink(folder.path("sub"), folder.path("linkToFolder"));
    std::filesystem::create_symlink(folder.path("none"), folder.path("dangling"));
    EXPECT_TRUE(isRegularFile(folder.path("linkToFile")));
    EXPECT_FALSE(isRegularFile(folder.path("dangling")) ||
                 isRegularFile(folder.path("linkToFolder")));
    EXPECT_TRUE(isFolder(folder.path("linkToFolder")));
    EXPECT_FALSE(isFolder(folder.path("dangling")) || isFolder(folder.path("linkToFile")));
    EXPECT_TRUE(anythingExists(folder.path("dangling")));
}

TEST(PosixFindIgnoringCase, PrefersTheExactSpellingThenTheFirstInByteOrder) {
    const TemporaryFolder folder;
    for (const char* name : {"b.lng", "B.LNG", "B.lng"})
        folder.write(name, "");
    EXPECT_EQ(findIgnoringCase(folder.path(), "b.lng"), "b.lng");
    EXPECT_EQ(findIgnoringCase(folder.path(), "B.lng"), "B.lng");
    EXPECT_EQ(findIgnoringCase(folder.path(), "b.LNG"), "B.LNG");
}

} // namespace
} // namespace vantrel
