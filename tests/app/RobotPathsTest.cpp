#include "app/robots/RobotPaths.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

struct Case {
    const char* name;
    PathStyle style;
    const char* base;
    const char* path;
    const char* absolute;
};

class AbsoluteFolderTest : public testing::TestWithParam<Case> {};

TEST_P(AbsoluteFolderTest, BecomeAbsolute) {
    EXPECT_EQ(RobotPaths(GetParam().base, GetParam().style).absolute(GetParam().path),
              GetParam().absolute);
}

constexpr PathStyle windows = PathStyle::Windows;
constexpr PathStyle posix = PathStyle::Posix;

INSTANTIATE_TEST_SUITE_P(
    , AbsoluteFolderTest,
    testing::Values(
        Case{"WindowsRelative", windows, "c:\\vantrel", "data\\r1", "c:\\vantrel\\data\\r1"},
        Case{"WindowsRelativeToARoot", windows, "c:\\", "data", "c:\\data"},
        Case{"WindowsDrive", windows, "c:\\vantrel", "D:\\Jobs", "D:\\Jobs"},
        Case{"WindowsDriveRelative", windows, "c:\\vantrel", "D:Jobs", "D:Jobs"},
        Case{"WindowsRooted", windows, "c:\\vantrel", "\\Jobs", "\\Jobs"},
        Case{"WindowsSlash", windows, "c:\\vantrel", "/jobs", "c:\\vantrel\\/jobs"},
        Case{"WindowsSlashes", windows, "c:\\vantrel", "//pc/jobs", "c:\\vantrel\\//pc/jobs"},
        Case{"WindowsShare", windows, "c:\\vantrel", "\\\\pc\\jobs", "\\\\pc\\jobs"},
        Case{"PosixRelative", posix, "/opt/vantrel", "jobs", "/opt/vantrel/jobs"},
        Case{"PosixRelativeWrittenOnWindows", posix, "/opt/vantrel", "data\\r1",
             "/opt/vantrel/data/r1"},
        Case{"PosixRelativeToTheRoot", posix, "/", "jobs", "/jobs"},
        Case{"PosixAbsolute", posix, "/opt/vantrel", "/srv/a\\b", "/srv/a\\b"},
        Case{"PosixKeepsAWindowsFolder", posix, "/opt/vantrel", "C:\\jobs", "C:\\jobs"},
        Case{"PosixKeepsAWindowsShare", posix, "/opt/vantrel", "\\\\pc\\jobs", "\\\\pc\\jobs"}),
    [](const auto& test) { return test.param.name; });

TEST(RobotPathsTest, TheWayDownIsKnownOnlyBelowTheBaseFolder) {
    const RobotPaths paths("/opt/van,trel", posix);
    EXPECT_EQ(paths.relative("/opt/van,trel/jobs/r1"), "jobs/r1");
    EXPECT_EQ(paths.relative("/opt/van,trelx/jobs"), "");
    EXPECT_EQ(paths.relative("/opt/van,trel"), "");
}

} // namespace
} // namespace vantrel
