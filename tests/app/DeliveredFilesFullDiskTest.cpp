#include "app/start/DeliveredFiles.h"
#include "support/FileSizeLimit.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

TEST(DeliveredFilesFullDiskTest, AChangedTextThatCannotBeKeptIsNotReplaced) {
    const tests::TemporaryFolder folder;
    const std::string mine(200, 'm');
    folder.write("English.lng", mine);
    folder.write(".installed/English.lng.new", "two");
    {
        const tests::FileSizeLimit full(100);
        const auto failed = DeliveredFiles(folder.path()).takePlaces();
        ASSERT_EQ(failed.size(), 1u);
        EXPECT_EQ(failed[0].path, folder.path("English.lng"));
        EXPECT_NE(failed[0].reason, "");
    }
    EXPECT_EQ(folder.read("English.lng"), mine);
    EXPECT_FALSE(folder.has("English.lng.old"));
    EXPECT_EQ(DeliveredFiles(folder.path()).waiting().size(), 1u);
    EXPECT_TRUE(DeliveredFiles(folder.path()).takePlaces().empty());
    EXPECT_EQ(folder.read("English.lng"), "two");
    EXPECT_EQ(folder.read("English.lng.old"), mine);
}

} // namespace
} // namespace vantrel
