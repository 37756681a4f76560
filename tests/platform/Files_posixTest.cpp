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

struct RemoveWhileSavedTest : testing::Test {
    TemporaryFolder folder;
    const std::string path = folder.write("A.JBI", "sent");
    const std::string spare = folder.path("A.JBI.sent-1");

    /// It is saved at the second look, when it lies under the spare name.
    Result<bool> removeWhileSaved(bool mayGo) {
        int looks = 0;
        return removeFileIf(path, spare, [&](const std::string&) {
            if (++looks == 1)
                return true;
            folder.write("A.JBI", "saved");
            return mayGo;
        });
    }
};

TEST_F(RemoveWhileSavedTest, WhatIsSavedUnderTheNameMeanwhileStays) {
    const auto removed = removeWhileSaved(true);
    ASSERT_TRUE(removed) << removed.reason();
    EXPECT_TRUE(*removed);
    EXPECT_EQ(folder.read("A.JBI"), "saved");
    EXPECT_FALSE(folder.has("A.JBI.sent-1"));
}

TEST_F(RemoveWhileSavedTest, NeitherOfTwoVersionsReplacesTheOther) {
    EXPECT_FALSE(removeWhileSaved(false));
    EXPECT_EQ(folder.read("A.JBI"), "saved");
    EXPECT_EQ(folder.read("A.JBI.sent-1"), "sent");
}

TEST_F(RemoveWhileSavedTest, ASpareNameThatIsTakenIsNotReplaced) {
    folder.write("A.JBI.sent-1", "somebody's");
    EXPECT_FALSE(removeFileIf(path, spare, [](const std::string&) { return true; }));
    EXPECT_EQ(folder.read("A.JBI"), "sent");
    EXPECT_EQ(folder.read("A.JBI.sent-1"), "somebody's");
}

TEST(PosixFileNames, DifferInLetterCase) {
    EXPECT_EQ(comparedName("aB.jbi"), "aB.jbi");
}

} // namespace
} // namespace vantrel
