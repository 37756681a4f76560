#include "platform/Drives.h"
#include "support/NamedRow.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

using tests::NamedRow;
using tests::rowName;

constexpr std::string_view mounts = "22 27 0:21 / /proc rw - proc proc rw\n"
                                    "27 1 8:2 / / rw,relatime - ext4 /dev/sda2 rw\n"
                                    "31 27 0:40 / /mnt/nas rw shared:1 - nfs4 nas:/vol rw\n"
                                    "32 31 8:9 / /mnt/nas/local rw - ext4 /dev/sdc1 rw\n"
                                    "33 27 0:41 / /mnt/win rw - cifs //pc/share rw\n"
                                    "34 27 0:42 / /mnt/a\\040b rw - 9p host rw\n"
                                    "35 27 0:43 / /auto rw - autofs systemd-1 rw\n"
                                    "36 27 0:44 / /home/op/cloud rw - fuse.sshfs op@pc:/ rw\n"
                                    "37 27 0:45 / /mnt/disk rw - fuseblk /dev/sdd1 rw\n"
                                    "38 27 0:46 / /mnt/twice rw - nfs a:/ rw\n"
                                    "39 38 8:4 / /mnt/twice rw - ext4 /dev/sde1 rw\n"
                                    "40 27 0:47 / /broken rw nfs a:/ rw\n"
                                    "garbage\n\n";

struct FolderRow : NamedRow {
    const char* folder;
    bool network;
};

class NetworkFolder : public testing::TestWithParam<FolderRow> {};

TEST_P(NetworkFolder, IsToldByItsMount) {
    EXPECT_EQ(isOnNetwork(GetParam().folder, mounts), GetParam().network);
}

INSTANTIATE_TEST_SUITE_P(
    Folders, NetworkFolder,
    testing::Values(FolderRow{{"Root"}, "/", false}, FolderRow{{"Local"}, "/home/op/jobs", false},
                    FolderRow{{"MountItself"}, "/mnt/nas", true},
                    FolderRow{{"BelowAMount"}, "/mnt/nas/jobs/weld", true},
                    FolderRow{{"TrailingSeparator"}, "/mnt/nas/", true},
                    FolderRow{{"NameThatStartsAlike"}, "/mnt/nasty", false},
                    FolderRow{{"LocalInsideAMount"}, "/mnt/nas/local/jobs", false},
                    FolderRow{{"WindowsShare"}, "/mnt/win/jobs", true},
                    FolderRow{{"EscapedBlank"}, "/mnt/a b/jobs", true},
                    FolderRow{{"MountedWhenEntered"}, "/auto/x", true},
                    FolderRow{{"MountedByAProgram"}, "/home/op/cloud/x", true},
                    FolderRow{{"ForeignDiskFormat"}, "/mnt/disk/x", false},
                    FolderRow{{"LastOfTwoMounts"}, "/mnt/twice/x", false},
                    FolderRow{{"LineThatIsNone"}, "/broken/x", false},
                    FolderRow{{"WindowsPath"}, "C:\\jobs", false},
                    FolderRow{{"Nothing"}, "", false}),
    rowName);

TEST(NetworkFolderTest, TheSystemsOwnMountsAreRead) {
    EXPECT_FALSE(isOnNetwork("/proc"));
    EXPECT_FALSE(isOnNetwork("relative"));
}

} // namespace
} // namespace vantrel
