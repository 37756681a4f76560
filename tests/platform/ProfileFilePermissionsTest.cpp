#include "platform/ProfileFile.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace vantrel {
namespace {

using namespace tests;

TEST(ProfileFile, LeavesAFileWithoutReadPermissionAsItIs) {
    if (::geteuid() == 0)
        GTEST_SKIP() << "permissions do not stop the administrator";
    const TemporaryFolder folder;
    const std::string path = folder.write("test.ini", "[S]\r\nk=precious\r\n");
    std::filesystem::permissions(path, std::filesystem::perms::owner_write);
    ProfileFile file(path);
    ASSERT_TRUE(file.set("S", "k", "v"));
    EXPECT_FALSE(file.save());
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    EXPECT_EQ(folder.read("test.ini"), "[S]\r\nk=precious\r\n");
}

} // namespace
} // namespace vantrel
