#pragma once

#include <array>
#include <span>
#include <string>

class wxBitmapButton;
class wxChoice;
class wxPanel;
class wxStaticBitmap;
class wxStaticBox;
class wxStaticText;
class wxStatusBar;
class wxFrame;
class wxWindow;

namespace vantrel {

class ColourSwatch;
class CommandToolBar;
class FileListControl;
class FileViewer;
class FolderTreeDropDown;
class PathDisplay;
class QuickFilter;
class ViewerSearch;
struct CommandRow;

/// A frame of the main window: a panel with a titled box behind its controls. The controls are the
/// panel's own children, so that their places count from its corner on every system.
struct PaneFrame {
    wxPanel* panel = nullptr;
    wxStaticBox* box = nullptr;
};

/// The controls of the main window, made once from top to bottom in tab order; the window owns
/// them.
struct MainWindowControls {
    /// The table outlives the controls.
    MainWindowControls(wxFrame& window, std::span<const CommandRow> table);

    wxPanel* surface = nullptr; ///< what everything stands on

    CommandToolBar* tlbMain = nullptr;
    wxStaticText* lblSerial = nullptr; ///< element 3 of `lblDisp`: heading of the serial line
    wxStaticText* lbl232CParam = nullptr;
    wxStaticText* lblRbtName = nullptr;
    wxChoice* cmbRbtName = nullptr;
    wxStaticText* lblIPaddr = nullptr;
    wxStaticText* lblIPAddr2 = nullptr;
    /// The robot's mark, in the place of `lblIPaddr` when there is one: what is below says by
    /// itself that it is an address.
    ColourSwatch* robotColour = nullptr;
    wxStaticText* lblRobotMark = nullptr;

    PaneFrame fraPC;
    CommandToolBar* tlbPCButton = nullptr;
    wxStaticBitmap* Picture1 = nullptr;
    wxStaticText* lblFolder = nullptr; ///< element 4 of `lblDisp`
    PathDisplay* trvFolderName = nullptr;
    wxBitmapButton* Command1 = nullptr;
    CommandToolBar* tlbPC = nullptr;
    FolderTreeDropDown* trvFolderList = nullptr;
    FileListControl* lsvPC = nullptr;
    QuickFilter* pcQuickFilter = nullptr;
    wxStaticText* lblPCFileType = nullptr; ///< element 1 of `lblDisp`
    wxChoice* cmbPCFileType = nullptr;

    wxStaticBitmap* pctDirectArrow = nullptr;

    PaneFrame fraCtrl;
    CommandToolBar* tlbCtrlButton = nullptr;
    CommandToolBar* tlbFile = nullptr;
    FileListControl* lsvCtrl = nullptr;
    QuickFilter* ctrlQuickFilter = nullptr;
    wxStaticText* lblCtrlFileType = nullptr; ///< element 2 of `lblDisp`
    wxChoice* cmbCtrlFileType = nullptr;

    PaneFrame fraFile; ///< the viewer, in the place of `fraCtrl`
    FileViewer* rtxFileDisp = nullptr;
    ViewerSearch* viewerSearch = nullptr;
    wxStaticText* lblFile = nullptr; ///< its heading, element 0 of `lblDisp`
    wxStaticText* lblFileName = nullptr;

    wxPanel* pcHighlight = nullptr; ///< shows the mode's colour under the active pane
    wxPanel* controllerHighlight = nullptr;
    wxStatusBar* stsFileInf = nullptr;

    static constexpr int statusPanels = 4;

    std::array<CommandToolBar*, 5> toolBars() const {
        return {tlbMain, tlbPCButton, tlbPC, tlbCtrlButton, tlbFile};
    }

  private:
    void makeConnectionBlock();
    void makePCPane(std::span<const CommandRow> table);
    void makeControllerPane(std::span<const CommandRow> table);
    void makeViewerPane();
    void makeHighlights();
};

} // namespace vantrel
