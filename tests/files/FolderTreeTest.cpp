#include "files/FolderTree.h"

#include "support/NamedRow.h"

#include <map>

#include <gmock/gmock.h>

namespace vantrel::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using W = std::integral_constant<PathStyle, PathStyle::Windows>;
using P = std::integral_constant<PathStyle, PathStyle::Posix>;

/// A disk of sub-folder names by path that keeps what was read.
struct FakeDisk {
    std::map<std::string, std::vector<std::string>> folders;
    std::vector<std::string> read;

    FolderTree::ListSubfolders list() {
        return [this](const std::string& path) {
            read.push_back(path);
            const auto found = folders.find(path);
            return found == folders.end() ? std::vector<std::string>() : found->second;
        };
    }
};

void describe(const FolderTree& tree, FolderTree::Id id, int depth, std::string& lines) {
    const auto& node = tree.node(id);
    lines += std::string(std::size_t(depth) * 2, ' ') + node.text + " (" + std::string(node.image) +
             ' ' + node.path + ')' + (node.expanded ? " open" : "") +
             (id == tree.selected() ? " <" : "") + '\n';
    for (const auto child : node.children)
        describe(tree, child, depth + 1, lines);
}

/// One line per node: its text, image and path, whether it is opened, and "<" for the selected one.
std::string pictureOf(const FolderTree& tree) {
    std::string lines;
    for (const auto root : tree.roots())
        describe(tree, root, 0, lines);
    return lines;
}

TEST(WholeFolderTree, OpensEveryFolderDownToTheSelectedOne) {
    FakeDisk disk{{{"/", {"etc", "home"}}, {"/home", {"a", "op"}}, {"/home/op", {"jobs"}}}, {}};
    const auto tree = FolderTree::whole("/home/op", {{"/", "/"}, {"/mnt/usb", "usb [/mnt/usb]"}},
                                        disk.list(), PathRules(P::value));
    EXPECT_EQ(pictureOf(tree), "/ (drive /) open\n"
                               "  etc (open /etc)\n"
                               "  home (open /home) open\n"
                               "    a (open /home/a)\n"
                               "    op (open /home/op) open <\n"
                               "      jobs (open /home/op/jobs)\n"
                               "usb [/mnt/usb] (drive /mnt/usb)\n");
    EXPECT_THAT(disk.read, ElementsAre("/", "/home", "/home/op"));
}

TEST(WholeFolderTree, OfAWindowsPathFindsFoldersInAnyLetterCase) {
    FakeDisk disk{{{"C:\\", {"Jobs", "Windows"}}, {"C:\\Jobs", {"\u00C4"}}}, {}};
    const auto tree =
        FolderTree::whole("c:/JOBS\\\u00E4\\", {{"C:\\", "C: [SYSTEM]"}, {"D:\\", "D:"}},
                          disk.list(), PathRules(W::value));
    EXPECT_EQ(pictureOf(tree), "C: [SYSTEM] (drive C:\\) open\n"
                               "  Jobs (open C:\\Jobs) open\n"
                               "    \u00C4 (open C:\\Jobs\\\u00C4) open <\n"
                               "  Windows (open C:\\Windows)\n"
                               "D: (drive D:\\)\n");
}

TEST(WholeFolderTree, TellsLetterCaseApartWhereTheSystemDoes) {
    FakeDisk disk{{{"/", {"A", "a"}}}, {}};
    const auto tree = FolderTree::whole("/a", {{"/", "/"}}, disk.list(), PathRules(P::value));
    EXPECT_EQ(pictureOf(tree), "/ (drive /) open\n"
                               "  A (open /A)\n"
                               "  a (open /a) open <\n");
}

TEST(WholeFolderTree, PutsAFolderOnAMediumBelowTheMedium) {
    FakeDisk disk{{{"/mnt/usb", {"jobs"}}}, {}};
    const auto tree = FolderTree::whole(
        "/mnt/usb/jobs", {{"/", "/"}, {"/mnt/usb", "usb [/mnt/usb]"}, {"/mnt/usb2", "usb2"}},
        disk.list(), PathRules(P::value));
    EXPECT_EQ(pictureOf(tree), "/ (drive /)\n"
                               "usb [/mnt/usb] (drive /mnt/usb) open\n"
                               "  jobs (open /mnt/usb/jobs) open <\n"
                               "usb2 (drive /mnt/usb2)\n");
}

TEST(WholeFolderTree, AddsAShareThatIsNoDrive) {
    FakeDisk disk{{{"\\\\SRV\\jobs\\", {"a", "b"}}}, {}};
    const auto tree =
        FolderTree::whole("\\\\SRV\\jobs\\b", {{"C:\\", "C:"}}, disk.list(), PathRules(W::value));
    EXPECT_EQ(pictureOf(tree), "C: (drive C:\\)\n"
                               "\\\\SRV\\jobs (drive \\\\SRV\\jobs\\) open\n"
                               "  a (open \\\\SRV\\jobs\\a)\n"
                               "  b (open \\\\SRV\\jobs\\b) open <\n");
}

TEST(WholeFolderTree, ShowsAFolderThatItsParentDoesNot) {
    FakeDisk disk{{{"/", {"b"}}}, {}};
    const auto tree =
        FolderTree::whole("/secret/jobs", {{"/", "/"}}, disk.list(), PathRules(P::value));
    EXPECT_EQ(pictureOf(tree), "/ (drive /) open\n"
                               "  b (open /b)\n"
                               "  secret (open /secret) open\n"
                               "    jobs (open /secret/jobs) open <\n");
}

struct RootRow : NamedRow {
    PathStyle style;
    std::string folder;
    std::string whole;     ///< the picture with the style's first drive present
    std::string driveOnly; ///< the picture as drive and folder
};

class RootOfATree : public testing::TestWithParam<RootRow> {};

TEST_P(RootOfATree, IsADriveWithNothingAboveOrBelowIt) {
    const auto& row = GetParam();
    FakeDisk disk;
    const std::vector<Drive> drives{row.style == PathStyle::Windows ? Drive{"C:\\", "C: [S]"}
                                                                    : Drive{"/", "/"}};
    EXPECT_EQ(pictureOf(FolderTree::whole(row.folder, drives, disk.list(), PathRules(row.style))),
              row.whole);
    EXPECT_EQ(pictureOf(FolderTree::driveAndFolder(row.folder, PathRules(row.style))),
              row.driveOnly);
}

const RootRow rootRows[] = {
    {{"WindowsDrive"}, W::value, "C:\\", "C: [S] (drive C:\\) open <\n", "C: (drive C:\\) <\n"},
    {{"WindowsDriveWithoutSeparator"},
     W::value,
     "C:",
     "C: [S] (drive C:\\) open <\n",
     "C: (drive C:\\) <\n"},
    {{"WindowsOtherDrive"},
     W::value,
     "X:\\",
     "C: [S] (drive C:\\)\nX: (drive X:\\) open <\n",
     "X: (drive X:\\) <\n"},
    {{"WindowsShare"},
     W::value,
     "\\\\server\\share",
     "C: [S] (drive C:\\)\n\\\\server\\share (drive \\\\server\\share\\) open <\n",
     "\\\\server\\share (drive \\\\server\\share\\) <\n"},
    {{"WindowsShareWithSeparator"},
     W::value,
     "\\\\server\\share\\",
     "C: [S] (drive C:\\)\n\\\\server\\share (drive \\\\server\\share\\) open <\n",
     "\\\\server\\share (drive \\\\server\\share\\) <\n"},
    {{"WindowsWithoutADrive"},
     W::value,
     "\\jobs",
     "C: [S] (drive C:\\)\n\\jobs (open \\jobs) open <\n",
     "\\jobs (open \\jobs) <\n"},
    {{"Posix"}, P::value, "/", "/ (drive /) open <\n", "/ (drive /) <\n"},
    {{"PosixDoubled"}, P::value, "//", "/ (drive /) open <\n", "/ (drive /) <\n"},
};

INSTANTIATE_TEST_SUITE_P(Rows, RootOfATree, testing::ValuesIn(rootRows), rowName);

TEST(WholeFolderTree, OfNoFolderShowsTheDrives) {
    FakeDisk disk;
    const auto tree = FolderTree::whole("", {{"/", "/"}}, disk.list(), PathRules(P::value));
    EXPECT_EQ(pictureOf(tree), "/ (drive /)\n");
    EXPECT_THAT(disk.read, IsEmpty());
}

TEST(WholeFolderTree, ReadsNoLevelThatIsNotOpened) {
    FakeDisk disk{{{"/", {"loop"}}, {"/loop", {"loop"}}, {"/loop/loop", {"loop"}}}, {}};
    auto tree = FolderTree::whole("/loop", {{"/", "/"}}, disk.list(), PathRules(P::value));
    EXPECT_THAT(disk.read, ElementsAre("/", "/loop"));
    const auto inner = tree.node(tree.selected()).children.front();
    tree.read(inner, disk.list());
    tree.read(inner, disk.list());
    EXPECT_THAT(disk.read, ElementsAre("/", "/loop", "/loop/loop"));
    EXPECT_EQ(tree.node(tree.node(inner).children.front()).path, "/loop/loop/loop");
}

TEST(FolderTree, AsDriveAndFolderShowsTheRestOfThePathInOneNode) {
    EXPECT_EQ(pictureOf(FolderTree::driveAndFolder("C:\\JOBS\\LINE 1\\", PathRules(W::value))),
              "C: (drive C:\\) open\n"
              "  JOBS\\LINE 1 (open C:\\JOBS\\LINE 1) <\n");
    EXPECT_EQ(pictureOf(FolderTree::driveAndFolder("\\\\S\\jobs\\a", PathRules(W::value))),
              "\\\\S\\jobs (drive \\\\S\\jobs\\) open\n"
              "  a (open \\\\S\\jobs\\a) <\n");
    EXPECT_EQ(pictureOf(FolderTree::driveAndFolder("/home/op", PathRules(P::value))),
              "/ (drive /) open\n"
              "  home/op (open /home/op) <\n");
}

TEST(FolderTree, OfAFolderIsOneNodeWithItsPath) {
    EXPECT_EQ(pictureOf(FolderTree::folderOnly("/home/op")), "/home/op (open /home/op) <\n");
}

TEST(FolderTree, OfANodeIsThatNodeAlone) {
    FakeDisk disk{{{"/", {"home"}}}, {}};
    const auto tree = FolderTree::whole("/home", {{"/", "/"}}, disk.list(), PathRules(P::value));
    EXPECT_EQ(pictureOf(FolderTree::nodeOnly(tree.node(tree.roots().front()))), "/ (drive /) <\n");
    EXPECT_EQ(pictureOf(FolderTree::nodeOnly(tree.node(tree.selected()))), "home (open /home) <\n");
}

} // namespace
} // namespace vantrel::tests
