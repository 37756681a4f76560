#pragma once

#include <array>

namespace vantrel {

/// In twips (1/1440 inch), relative to the window's client area or to the frame that holds the
/// control. Fractions are kept: they are rounded once, to pixels, by whoever places the control.
struct Rectangle {
    double left = 0, top = 0, width = 0, height = 0;

    double right() const { return left + width; }
    bool operator==(const Rectangle&) const = default;
};

struct WindowSize {
    double width = 0, height = 0;

    bool operator==(const WindowSize&) const = default;
};

inline constexpr WindowSize designSize{10050, 7420};
inline constexpr WindowSize minimumSize{8800, 4700};

/// Elements of the label array `lblDisp`.
enum LabelIndex {
    viewerFileLabel,
    pcTypeLabel,
    controllerTypeLabel,
    serialLabelIndex,
    folderLabel
};

/// Where every control of the main window stands. The status bar is not among them: it is the
/// window's own and lies along its lower edge.
struct WindowLayout {
    // On the window, below its menu bar.
    Rectangle tlbMain;
    Rectangle fraPC, fraCtrl, fraFile;
    Rectangle pctDirectArrow;
    Rectangle shapePC, shapeCtrl; ///< the highlights under the two panes
    Rectangle lbl232CParam;
    Rectangle lblRbtName, cmbRbtName, lblIPaddr, lblIPAddr2;
    Rectangle robotColour, lblRobotMark; ///< in the place of `lblIPaddr`

    // In `fraPC`.
    Rectangle tlbPCButton, Picture1, trvFolderName, Command1, tlbPC;
    Rectangle trvFolderList, lsvPC, cmbPCFileType;

    // In `fraCtrl`.
    Rectangle tlbCtrlButton, tlbFile, lsvCtrl, cmbCtrlFileType;

    // In `fraFile`.
    Rectangle rtxFileDisp, lblFileName;

    /// By LabelIndex; each in the frame that it belongs to, the serial heading on the window.
    std::array<Rectangle, 5> lblDisp;
};

/// A size that is too small raised to the smallest one.
WindowSize atLeastMinimum(WindowSize size);

/// What the robots would like to have in the window; they get it as far as there is room.
struct RobotRoom {
    double box = 0;  ///< width of a box that shows the longest name
    double mark = 0; ///< of the text of the mark, none without one
};

/// The layout for an outer size; one below the minimum is laid out as the minimum.
WindowLayout windowLayout(WindowSize outer, RobotRoom robots = {});

} // namespace vantrel
