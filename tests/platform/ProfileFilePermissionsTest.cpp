#include "platform/ProfileFile.h"
#include "support/BoundByPermissions.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

using namespace tests;
using std::filesystem::perms;

TEST(ProfileFile, LeavesAFileWithoutReadPermissionAsItIs) {
    const TemporaryFolder folder;
    const std::string path = folder.write("test.ini", "[S]\r\nk=precious\r\n");
    std::filesystem::permissions(path, perms::owner_write | perms::others_write);
    // The folder would let the file be replaced; only that it cannot be read protects it.
    std::filesystem::permissions(folder.path(), perms::all);
    {
        const BoundByPermissions bound;
        ProfileFile file(path);
        ASSERT_TRUE(file.set("S", "k", "v"));
        EXPECT_FALSE(file.save());
    }
    std::filesystem::permissions(path, perms::owner_all);
    EXPECT_EQ(folder.read("test.ini"), "[S]\r\nk=precious\r\n");
}

} // namespace
} // namespace vantrel
