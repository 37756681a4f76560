#include "app/window/WindowLayout.h"

#include <algorithm>

namespace vantrel {
namespace {

constexpr double paneLeft = 60;
constexpr double paneTop = 600;
constexpr double paneWidth = 4572;
constexpr double paneHeight = 5436;
constexpr double gap = 540;       ///< between the panes
constexpr double arrowSide = 480; ///< the arrow is square

/// How much a pane is wider and higher than in the design.
struct Growth {
    double wide = 0, high = 0;
};

void layPanes(WindowLayout& layout, Growth growth) {
    layout.fraPC = {paneLeft, paneTop, paneWidth + growth.wide, paneHeight + growth.high};
    layout.fraCtrl = layout.fraPC;
    layout.fraCtrl.left = layout.fraPC.right() + gap;
    layout.fraFile = layout.fraCtrl;
    layout.pctDirectArrow = {layout.fraPC.right() + (gap - arrowSide) / 2,
                             paneTop + (layout.fraPC.height - arrowSide) / 2, arrowSide, arrowSide};
}

Rectangle highlightUnder(const Rectangle& pane) {
    return {pane.left, pane.top + pane.height + 15, pane.width, 60};
}

/// The address stands at the right end, with the mark or its heading above it; the box has what is
/// left. `left` is where the controller pane begins, or the tool bar ends.
void layRobot(WindowLayout& layout, double left, RobotRoom robots) {
    constexpr double addressWidth = 1500;
    constexpr double besideBox = 720 + 90; ///< its heading, and the gap to the address
    constexpr double smallestBox = 1300;
    constexpr double designLeft = paneLeft + paneWidth + gap;
    constexpr double swatch = 210;
    const double right = layout.fraCtrl.right();
    const double most = std::max(addressWidth, right - left - besideBox - smallestBox);
    const double address = std::clamp(robots.mark + swatch + 60, addressWidth, most);
    // In a window that is wider than designed there is room between the tool bar and the pane.
    const double wanted = right - address - besideBox - robots.box;
    const double begin = std::clamp(wanted, std::min(left, designLeft), left);
    layout.lblRbtName = {begin, 180, 690, 225};
    layout.cmbRbtName = {begin + 720, 105, right - begin - besideBox - address, 315};
    layout.lblIPaddr = {right - address, 15, address, 270};
    layout.lblIPAddr2 = {right - address, 285, address, 270};
    layout.robotColour = {right - address, 45, swatch, swatch};
    layout.lblRobotMark = {right - address + swatch + 60, 15, address - swatch - 60, 270};
}

void layConnection(WindowLayout& layout, RobotRoom robots) {
    // Never over the tool bar, however far the controller pane moves to the left.
    const double left = std::max(layout.fraCtrl.left, layout.tlbMain.right() + 30);
    const double right = layout.fraCtrl.right();
    layout.lblDisp[serialLabelIndex] = {left, 180, 900, 225};
    layout.lbl232CParam = {left + 930, 60, right - left - 930, 450};
    layRobot(layout, left, robots);
}

void layPCPane(WindowLayout& layout, Growth growth) {
    layout.tlbPCButton = {90, 270, 390, 390};
    layout.Picture1 = {510, 345, 240, 240};
    layout.lblDisp[folderLabel] = {780, 360, 660, 225};
    layout.trvFolderName = {1470, 300, 1770 + growth.wide, 330};
    layout.Command1 = {3240 + growth.wide, 300, 270, 330};
    layout.tlbPC = {3570 + growth.wide, 270, 912, 390};
    layout.trvFolderList = {780, 630, 2730 + growth.wide, 3000 + growth.high};
    layout.lsvPC = {90, 720, 4392 + growth.wide, 4110 + growth.high};
    layout.lblDisp[pcTypeLabel] = {90, 4965 + growth.high, 1050, 240};
    layout.cmbPCFileType = {1170, 4890 + growth.high, 3312 + growth.wide, 315};
}

void layControllerPane(WindowLayout& layout) {
    layout.tlbCtrlButton = layout.tlbPCButton;
    layout.tlbFile = {510, 270, 1560, 390};
    layout.lsvCtrl = layout.lsvPC;
    layout.lblDisp[controllerTypeLabel] = layout.lblDisp[pcTypeLabel];
    layout.cmbCtrlFileType = layout.cmbPCFileType;
}

void layViewer(WindowLayout& layout, Growth growth) {
    layout.rtxFileDisp = {90, 270, 4392 + growth.wide, 4560 + growth.high};
    layout.lblDisp[viewerFileLabel] = {90, 4965 + growth.high, 1050, 240};
    layout.lblFileName = {1170, 4965 + growth.high, 3312 + growth.wide, 240};
}

} // namespace

WindowSize atLeastMinimum(WindowSize size) {
    return {std::max(size.width, minimumSize.width), std::max(size.height, minimumSize.height)};
}

WindowLayout windowLayout(WindowSize outer, RobotRoom robots) {
    const WindowSize size = atLeastMinimum(outer);
    // The panes share what the window is wider; in height both take all of it.
    const Growth growth{(size.width - designSize.width) / 2, size.height - designSize.height};
    WindowLayout layout;
    layout.tlbMain = {60, 45, 4770, 450};
    layPanes(layout, growth);
    layout.shapePC = highlightUnder(layout.fraPC);
    layout.shapeCtrl = highlightUnder(layout.fraCtrl);
    layConnection(layout, robots);
    layPCPane(layout, growth);
    layControllerPane(layout);
    layViewer(layout, growth);
    return layout;
}

} // namespace vantrel
