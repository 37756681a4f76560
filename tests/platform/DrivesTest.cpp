#include "platform/Drives.h"

#include "support/NamedRow.h"

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using namespace tests;
using testing::Contains;
using testing::SizeIs;

constexpr std::string_view systemMounts = "22 27 0:21 / /proc rw,relatime - proc proc rw\n"
                                          "27 1 8:2 / / rw,relatime - ext4 /dev/sda2 rw\n"
                                          "30 27 8:3 / /home rw - ext4 /dev/sda3 rw\n";

struct MountRow : NamedRow {
    std::string_view line;
    std::vector<Drive> media; ///< what it adds
};

class MountLine : public testing::TestWithParam<MountRow> {};

TEST_P(MountLine, AddsItsMedium) {
    std::vector<Drive> expected{{"/", "/"}};
    expected.insert(expected.end(), GetParam().media.begin(), GetParam().media.end());
    EXPECT_EQ(drivesOfMounts(std::string(systemMounts) + std::string(GetParam().line)), expected);
}

const MountRow mountRows[] = {
    {{"Desktop"},
     "90 27 8:17 / /media/op/STICK rw,nosuid shared:4 - vfat /dev/sdb1 rw",
     {{"/media/op/STICK", "STICK [/media/op/STICK]"}}},
    {{"RunMedia"},
     "90 27 8:17 / /run/media/op/CARD rw - vfat /dev/sdb1 rw",
     {{"/run/media/op/CARD", "CARD [/run/media/op/CARD]"}}},
    {{"Administrator"},
     "90 27 8:17 / /mnt/usb rw - vfat /dev/sdb1 rw\n",
     {{"/mnt/usb", "usb [/mnt/usb]"}}},
    {{"BlankInTheName"},
     "90 27 8:17 / /media/op/MY\\040STICK rw - vfat /dev/sdb1 rw",
     {{"/media/op/MY STICK", "MY STICK [/media/op/MY STICK]"}}},
    {{"BackslashInTheName"},
     "90 27 8:17 / /media/a\\134040b rw - vfat /dev/sdb1 rw",
     {{"/media/a\\040b", "a\\040b [/media/a\\040b]"}}},
    {{"JapaneseNameByBytes"},
     "90 27 8:17 / /media/\\350\\241\\250 rw - vfat /dev/sdb1 rw",
     {{"/media/\u8868", "\u8868 [/media/\u8868]"}}},
    {{"NoEscape"},
     "90 27 8:17 / /media/a\\09\\4 rw - vfat /dev/sdb1 rw",
     {{"/media/a\\09\\4", "a\\09\\4 [/media/a\\09\\4]"}}},
    {{"NoCharacterBeyondAByte"},
     "90 27 8:17 / /media/a\\777 rw - vfat /dev/sdb1 rw",
     {{"/media/a\\777", "a\\777 [/media/a\\777]"}}},
    {{"NulIsNoEscape"},
     "90 27 8:17 / /media/a\\000 rw - vfat /dev/sdb1 rw",
     {{"/media/a\\000", "a\\000 [/media/a\\000]"}}},
    {{"MountedTwice"},
     "90 27 8:17 / /mnt/usb rw - autofs none rw\n91 90 8:17 / /mnt/usb rw - vfat /dev/sdb1 rw",
     {{"/mnt/usb", "usb [/mnt/usb]"}}},
    {{"TheMediaFolderItself"}, "90 27 0:40 / /media rw - tmpfs tmpfs rw", {}},
    {{"NameThatOnlyStartsAlike"}, "90 27 8:17 / /mnt2/usb rw - vfat /dev/sdb1 rw", {}},
    {{"ElsewhereWithMediaInside"}, "90 27 8:17 / /srv/media/op rw - vfat /dev/sdb1 rw", {}},
    {{"NoUtf8"}, "90 27 8:17 / /media/a\\377 rw - vfat /dev/sdb1 rw", {}},
    {{"TooFewFields"}, "90 27 8:17 - /media/op", {}},
    {{"NoSecondHalf"}, "90 27 8:17 / /media/op/STICK rw", {}},
    {{"Garbage"}, "\\\\\\ - \x01\xFF - \n\n - \n /media/op", {}},
    {{"EndsInAnEscape"}, "90 27 8:17 / /srv/a\\04 - ", {}},
};

INSTANTIATE_TEST_SUITE_P(Rows, MountLine, testing::ValuesIn(mountRows), rowName);

TEST(Drives, AreTheRootAloneWhenNothingIsKnown) {
    EXPECT_EQ(drivesOfMounts(""), (std::vector<Drive>{{"/", "/"}}));
}

TEST(Drives, ComeInTheOrderOfMounting) {
    const auto drives =
        drivesOfMounts("1 1 8:1 / /mnt/b rw - x x rw\n2 1 8:2 / /mnt/a rw - x x rw");
    ASSERT_EQ(drives.size(), 3u);
    EXPECT_EQ(drives[1].path, "/mnt/b");
    EXPECT_EQ(drives[2].path, "/mnt/a");
}

TEST(Drives, TakeALongLineWithoutEnd) {
    EXPECT_THAT(drivesOfMounts(std::string(10'000'000, '\\')), SizeIs(1));
    EXPECT_THAT(drivesOfMounts("1 1 8:1 / /mnt/" + std::string(10'000'000, '\\') + " - "),
                SizeIs(2));
}

TEST(Drives, OfThisSystemHoldItsRoot) {
    EXPECT_THAT(listDrives(), Contains(Drive{"/", "/"}));
}

} // namespace
} // namespace vantrel
