#include "files/FolderTree.h"

#include <string>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

struct NodeCase {
    const char* title;
    PathStyle style;
    std::string_view folder;
    std::string text;
    std::string_view image;
};

class PathNode : public testing::TestWithParam<NodeCase> {};

TEST_P(PathNode, ShowsWhereThePaneIs) {
    const FolderNode node = folderNode(GetParam().folder, PathRules(GetParam().style));
    EXPECT_EQ(node.text, GetParam().text);
    EXPECT_EQ(node.image, GetParam().image);
}

INSTANTIATE_TEST_SUITE_P(
    Folders, PathNode,
    testing::Values(
        NodeCase{"DriveRoot", PathStyle::Windows, "C:\\", "C:", "drive"},
        NodeCase{"DriveRootWithoutSeparator", PathStyle::Windows, "C:", "C:", "drive"},
        NodeCase{"Folder", PathStyle::Windows, "C:\\JOBS\\", "JOBS", "open"},
        NodeCase{"FolderWithoutSeparator", PathStyle::Windows, "C:\\JOBS", "JOBS", "open"},
        NodeCase{"DeepFolder", PathStyle::Windows, "C:\\JOBS\\LINE 1", "LINE 1", "open"},
        NodeCase{"Share", PathStyle::Windows, "\\\\SERVER\\JOBS\\", "\\\\SERVER\\JOBS", "drive"},
        NodeCase{"FolderOfAShare", PathStyle::Windows, "\\\\SERVER\\JOBS\\A", "A", "open"},
        NodeCase{"Root", PathStyle::Posix, "/", "/", "drive"},
        NodeCase{"ShortPosixFolder", PathStyle::Posix, "/a", "a", "open"},
        NodeCase{"PosixFolder", PathStyle::Posix, "/home/robot/jobs/", "jobs", "open"}),
    [](const auto& row) { return std::string(row.param.title); });

} // namespace
} // namespace vantrel
