#include "app/window/WindowLayout.h"

#include <gtest/gtest.h>

namespace vantrel {

static void PrintTo(const Rectangle& rectangle, std::ostream* out) {
    *out << rectangle.left << ", " << rectangle.top << ", " << rectangle.width << ", "
         << rectangle.height;
}

namespace {

/// The controls that follow the window's size.
struct Column {
    const char* name;
    WindowSize size;
    Rectangle fraPC, fraCtrl, arrow, shapePC, shapeCtrl, list, viewer;
    Rectangle filter; ///< its height is the control's own affair
};

class WindowSizeTest : public testing::TestWithParam<Column> {};

TEST_P(WindowSizeTest, PanesFollowTheSize) {
    const Column& expected = GetParam();
    const WindowLayout layout = windowLayout(expected.size);
    EXPECT_EQ(layout.fraPC, expected.fraPC);
    EXPECT_EQ(layout.fraCtrl, expected.fraCtrl);
    EXPECT_EQ(layout.fraFile, expected.fraCtrl);
    EXPECT_EQ(layout.pctDirectArrow, expected.arrow);
    EXPECT_EQ(layout.shapePC, expected.shapePC);
    EXPECT_EQ(layout.shapeCtrl, expected.shapeCtrl);
    EXPECT_EQ(layout.lsvPC, expected.list);
    EXPECT_EQ(layout.lsvCtrl, expected.list);
    EXPECT_EQ(layout.rtxFileDisp, expected.viewer);
    for (Rectangle filter : {layout.cmbPCFileType, layout.cmbCtrlFileType}) {
        filter.height = expected.filter.height;
        EXPECT_EQ(filter, expected.filter);
    }
}

const Column smallest{"Smallest",
                      {8800, 4700},
                      {60, 600, 3947, 2716},
                      {4547, 600, 3947, 2716},
                      {4037, 1718, 480, 480},
                      {60, 3331, 3947, 60},
                      {4547, 3331, 3947, 60},
                      {90, 720, 3767, 1390},
                      {90, 270, 3767, 1840},
                      {1170, 2170, 2687, 0}};

Column belowTheSmallest() {
    Column column = smallest;
    column.name = "BelowTheSmallest";
    column.size = {100, -5};
    return column;
}

INSTANTIATE_TEST_SUITE_P(, WindowSizeTest,
                         testing::Values(Column{"Design",
                                                {10050, 7420},
                                                {60, 600, 4572, 5436},
                                                {5172, 600, 4572, 5436},
                                                {4662, 3078, 480, 480},
                                                {60, 6051, 4572, 60},
                                                {5172, 6051, 4572, 60},
                                                {90, 720, 4392, 4110},
                                                {90, 270, 4392, 4560},
                                                {1170, 4890, 3312, 0}},
                                         Column{"FirstStart",
                                                {9720, 7000},
                                                {60, 600, 4407, 5016},
                                                {5007, 600, 4407, 5016},
                                                {4497, 2868, 480, 480},
                                                {60, 5631, 4407, 60},
                                                {5007, 5631, 4407, 60},
                                                {90, 720, 4227, 3690},
                                                {90, 270, 4227, 4140},
                                                {1170, 4470, 3147, 0}},
                                         Column{"Large",
                                                {15000, 10000},
                                                {60, 600, 7047, 8016},
                                                {7647, 600, 7047, 8016},
                                                {7137, 4368, 480, 480},
                                                {60, 8631, 7047, 60},
                                                {7647, 8631, 7047, 60},
                                                {90, 720, 6867, 6690},
                                                {90, 270, 6867, 7140},
                                                {1170, 7470, 5787, 0}},
                                         smallest, belowTheSmallest()),
                         [](const auto& test) { return test.param.name; });

TEST(WindowLayoutTest, ASmallSizeIsRaised) {
    EXPECT_EQ(atLeastMinimum({8799, 4699}), (WindowSize{8800, 4700}));
    EXPECT_EQ(atLeastMinimum({20000, 100}), (WindowSize{20000, 4700}));
    EXPECT_EQ(atLeastMinimum({8801, 4701}), (WindowSize{8801, 4701}));
}

TEST(WindowLayoutTest, OddWidthsAreSharedWithoutRounding) {
    const WindowLayout layout = windowLayout({10051, 7420});
    EXPECT_EQ(layout.fraPC.width, 4572.5);
    EXPECT_EQ(layout.fraCtrl.right(), 9745);
}

TEST(WindowLayoutTest, ConnectionBlockAtTheDesignSize) {
    const WindowLayout layout = windowLayout(designSize);
    EXPECT_EQ(layout.tlbMain, (Rectangle{60, 45, 4770, 450}));
    EXPECT_EQ(layout.lblDisp[serialLabelIndex], (Rectangle{5172, 180, 900, 225}));
    EXPECT_EQ(layout.lbl232CParam, (Rectangle{6102, 60, 3642, 450}));
    EXPECT_EQ(layout.lblRbtName, (Rectangle{5172, 180, 690, 225}));
    EXPECT_EQ(layout.cmbRbtName, (Rectangle{5892, 105, 2262, 315}));
    EXPECT_EQ(layout.lblIPaddr, (Rectangle{8244, 15, 1500, 270}));
    EXPECT_EQ(layout.lblIPAddr2, (Rectangle{8244, 285, 1500, 270}));
}

TEST(WindowLayoutTest, ConnectionBlockNeverCoversTheToolBar) {
    const WindowLayout layout = windowLayout(minimumSize);
    EXPECT_EQ(layout.lblRbtName.left, 4860);
    EXPECT_EQ(layout.lbl232CParam.right(), layout.fraCtrl.right());
    EXPECT_LE(layout.cmbRbtName.right(), layout.lblIPaddr.left);
}

TEST(WindowLayoutTest, ALongNameTakesTheRoomThatAWiderWindowHas) {
    EXPECT_EQ(windowLayout(designSize, {.box = 9000}).cmbRbtName,
              windowLayout(designSize).cmbRbtName);
    const WindowLayout usual = windowLayout({15000, 10000});
    EXPECT_EQ(usual.lblRbtName.left, usual.fraCtrl.left);
    EXPECT_EQ(windowLayout({15000, 10000}, {.box = usual.cmbRbtName.width}).cmbRbtName,
              usual.cmbRbtName);
    const WindowLayout longer = windowLayout({15000, 10000}, {.box = usual.cmbRbtName.width + 100});
    EXPECT_EQ(longer.cmbRbtName.width, usual.cmbRbtName.width + 100);
    EXPECT_EQ(longer.cmbRbtName.right(), usual.cmbRbtName.right());
    EXPECT_EQ(longer.lblRbtName.right() + 30, longer.cmbRbtName.left);
    const WindowLayout longest = windowLayout({15000, 10000}, {.box = 90000});
    EXPECT_EQ(longest.lblRbtName.left, 5172);
    EXPECT_EQ(longest.lblDisp[serialLabelIndex], usual.lblDisp[serialLabelIndex]);
}

TEST(WindowLayoutTest, AMarkStandsWhereTheHeadingOfTheAddressDoes) {
    const WindowLayout layout = windowLayout(designSize, {.mark = 900});
    EXPECT_EQ(layout.cmbRbtName, windowLayout(designSize).cmbRbtName);
    EXPECT_EQ(layout.robotColour, (Rectangle{8244, 45, 210, 210}));
    EXPECT_EQ(layout.lblRobotMark, (Rectangle{8514, 15, 1230, 270}));
}

TEST(WindowLayoutTest, AWideMarkTakesRoomFromTheBoxButLeavesIt) {
    const WindowLayout layout = windowLayout(designSize, {.mark = 1830});
    EXPECT_EQ(layout.lblRobotMark, (Rectangle{7914, 15, 1830, 270}));
    EXPECT_EQ(layout.lblIPAddr2, (Rectangle{7644, 285, 2100, 270}));
    EXPECT_EQ(layout.cmbRbtName.width, 1662);
    for (const WindowSize& size : {designSize, minimumSize}) {
        const WindowLayout wide = windowLayout(size, {.box = 9000, .mark = 9000});
        EXPECT_EQ(wide.cmbRbtName.width, 1300);
        EXPECT_EQ(wide.lblRobotMark.right(), wide.fraCtrl.right());
    }
}

TEST(WindowLayoutTest, PCPaneFollowsItsFrame) {
    const WindowLayout layout = windowLayout({15000, 10000});
    EXPECT_EQ(layout.tlbPCButton, (Rectangle{90, 270, 390, 390}));
    EXPECT_EQ(layout.Picture1, (Rectangle{510, 345, 240, 240}));
    EXPECT_EQ(layout.lblDisp[folderLabel], (Rectangle{780, 360, 660, 225}));
    EXPECT_EQ(layout.trvFolderName, (Rectangle{1470, 300, 4245, 330}));
    EXPECT_EQ(layout.Command1, (Rectangle{5715, 300, 270, 330}));
    EXPECT_EQ(layout.tlbPC, (Rectangle{6045, 270, 912, 390}));
    EXPECT_EQ(layout.trvFolderList, (Rectangle{780, 630, 5205, 5580}));
    EXPECT_EQ(layout.lblDisp[pcTypeLabel], (Rectangle{90, 7545, 1050, 240}));
}

TEST(WindowLayoutTest, ControllerPaneAndViewerFollowTheirFrames) {
    const WindowLayout layout = windowLayout({15000, 10000});
    EXPECT_EQ(layout.tlbCtrlButton, (Rectangle{90, 270, 390, 390}));
    EXPECT_EQ(layout.tlbFile, (Rectangle{510, 270, 1560, 390}));
    EXPECT_EQ(layout.lblDisp[controllerTypeLabel], (Rectangle{90, 7545, 1050, 240}));
    EXPECT_EQ(layout.lblDisp[viewerFileLabel], (Rectangle{90, 7545, 1050, 240}));
    EXPECT_EQ(layout.lblFileName, (Rectangle{1170, 7545, 5787, 240}));
}

TEST(WindowLayoutTest, ControlsStayInsideTheirFramesAtTheSmallestSize) {
    const WindowLayout layout = windowLayout(minimumSize);
    for (const Rectangle& inside :
         {layout.lsvPC, layout.tlbPC, layout.trvFolderList, layout.cmbPCFileType, layout.lsvCtrl,
          layout.rtxFileDisp, layout.lblFileName}) {
        EXPECT_LE(inside.right(), layout.fraPC.width);
        EXPECT_LE(inside.top + inside.height, layout.fraPC.height);
        EXPECT_GT(inside.height, 0);
    }
}

} // namespace
} // namespace vantrel
