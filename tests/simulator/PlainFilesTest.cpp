#include "simulator/PlainFiles.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace vantrel::simulator {
namespace {

TEST(PlainFiles, AFileIsPlainAndNothingElseIs) {
    const tests::TemporaryFolder folder;
    folder.write("file", "x");
    folder.makeFolder("folder");
    std::filesystem::create_symlink(folder.path("file"), folder.path("link"));
    ASSERT_EQ(mkfifo(folder.path("pipe").c_str(), 0600), 0);

    EXPECT_TRUE(isPlainFile(folder.path("file")));
    EXPECT_FALSE(isPlainFile(folder.path("folder")));
    EXPECT_FALSE(isPlainFile(folder.path("link")));
    EXPECT_FALSE(isPlainFile(folder.path("pipe")));
    EXPECT_FALSE(isPlainFile(folder.path("missing")));
    EXPECT_TRUE(isFreeOrPlainFile(folder.path("missing")));
    EXPECT_FALSE(isFreeOrPlainFile(folder.path("link")));
}

TEST(PlainFiles, WritingReplacesAPlainFile) {
    const tests::TemporaryFolder folder;
    folder.write("file", "old");

    EXPECT_TRUE(writePlainFile(folder.path("file"), "new"));
    EXPECT_TRUE(writePlainFile(folder.path("other"), "more"));
    EXPECT_EQ(folder.read("file"), "new");
    EXPECT_EQ(folder.read("other"), "more");
}

TEST(PlainFiles, WritingNeverGoesThroughALink) {
    const tests::TemporaryFolder folder;
    folder.write("outside", "old");
    folder.makeFolder("inside");
    std::filesystem::create_symlink(folder.path("outside"), folder.path("inside/link"));
    std::filesystem::create_symlink(folder.path("nothing"), folder.path("inside/dangling"));

    EXPECT_FALSE(writePlainFile(folder.path("inside/link"), "new"));
    EXPECT_FALSE(writePlainFile(folder.path("inside/dangling"), "new"));
    EXPECT_FALSE(writePlainFile(folder.path("inside"), "new"));
    EXPECT_EQ(folder.read("outside"), "old");
    EXPECT_FALSE(folder.has("nothing"));
}

} // namespace
} // namespace vantrel::simulator
