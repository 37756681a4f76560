#include "simulator/ControllerFolder.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace vantrel::simulator {
namespace {

TEST(PlainFiles, AFileIsPlainAndNothingElseIs) {
    const tests::TemporaryFolder folder;
    folder.write("file", "x");
    folder.makeFolder("folder");

    EXPECT_TRUE(isPlainFile(folder.path("file")));
    EXPECT_FALSE(isPlainFile(folder.path("folder")));
    EXPECT_FALSE(isPlainFile(folder.path("missing")));
    EXPECT_TRUE(isFreeOrPlainFile(folder.path("missing")));
    EXPECT_FALSE(isFreeOrPlainFile(folder.path("folder")));
}

TEST(PlainFiles, WritingReplacesAPlainFile) {
    const tests::TemporaryFolder folder;
    folder.write("file", "old");

    EXPECT_TRUE(writePlainFile(folder.path("file"), "new"));
    EXPECT_TRUE(writePlainFile(folder.path("other"), "more"));
    EXPECT_EQ(folder.read("file"), "new");
    EXPECT_EQ(folder.read("other"), "more");
}

TEST(PlainFiles, WritingLeavesAFolderAlone) {
    const tests::TemporaryFolder folder;
    EXPECT_FALSE(writePlainFile(folder.makeFolder("inside"), "new"));
    EXPECT_TRUE(std::filesystem::is_directory(folder.path("inside")));
}

} // namespace
} // namespace vantrel::simulator
