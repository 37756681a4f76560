#include "support/TemporaryFolder.h"
#include "ui/WasteBin.h"

#include <filesystem>

#include <glib.h>
#include <gtest/gtest.h>

namespace vantrel::tests {
namespace {

/// A disk may have no bin, and where it is kept is the system's to say; but a file that is gone is
/// in it.
TEST(WasteBin, AFileIsInTheBinOrWhereItWas) {
    const TemporaryFolder folder;
    const std::string path = folder.write("\u8868 & A.JBI", "precious");
    const Outcome moved = moveToWasteBin(path);
    if (!moved) {
        EXPECT_FALSE(moved.reason().empty());
        EXPECT_EQ(folder.read("\u8868 & A.JBI"), "precious");
        return;
    }
    EXPECT_FALSE(folder.has("\u8868 & A.JBI"));
    bool isInBin = false;
    const std::filesystem::path home = g_get_user_data_dir();
    for (const auto& entry : std::filesystem::recursive_directory_iterator(home))
        isInBin = isInBin || entry.path().filename() == "\u8868 & A.JBI";
    EXPECT_TRUE(isInBin);
}

TEST(WasteBin, WhatIsNotThereIsAFailureInWords) {
    const TemporaryFolder folder;
    const Outcome moved = moveToWasteBin(folder.path("none.JBI"));
    ASSERT_FALSE(moved);
    EXPECT_FALSE(moved.reason().empty());
}

} // namespace
} // namespace vantrel::tests
