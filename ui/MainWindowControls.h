#pragma once

#include <array>
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

class FileListControl;
class FileViewer;
class FolderTreeDropDown;
class KeyedToolBar;
class PathDisplay;

/// A frame of the main window: a panel with a titled box behind its controls. The controls are the
/// panel's own children, so that their places count from its corner on every system.
struct PaneFrame {
    wxPanel* panel = nullptr;
    wxStaticBox* box = nullptr;
};

/// The controls of the main window, made once from top to bottom in tab order; the window owns
/// them.
struct MainWindowControls {
    explicit MainWindowControls(wxFrame& window);

    wxPanel* surface = nullptr; ///< what everything stands on

    KeyedToolBar* tlbMain = nullptr;
    wxStaticText* lblSerial = nullptr; ///< element 3 of `lblDisp`: heading of the serial line
    wxStaticText* lbl232CParam = nullptr;
    wxStaticText* lblRbtName = nullptr;
    wxChoice* cmbRbtName = nullptr;
    wxStaticText* lblIPaddr = nullptr;
    wxStaticText* lblIPAddr2 = nullptr;

    PaneFrame fraPC;
    KeyedToolBar* tlbPCButton = nullptr;
    wxStaticBitmap* Picture1 = nullptr;
    wxStaticText* lblFolder = nullptr; ///< element 2 of `lblDisp`
    PathDisplay* trvFolderName = nullptr;
    wxBitmapButton* Command1 = nullptr;
    KeyedToolBar* tlbPC = nullptr;
    FolderTreeDropDown* trvFolderList = nullptr;
    FileListControl* lsvPC = nullptr;
    wxStaticText* lblPCFileType = nullptr; ///< element 0 of `lblDisp`
    wxChoice* cmbPCFileType = nullptr;

    wxStaticBitmap* pctDirectArrow = nullptr;

    PaneFrame fraCtrl;
    KeyedToolBar* tlbCtrlButton = nullptr;
    KeyedToolBar* tlbFile = nullptr;
    FileListControl* lsvCtrl = nullptr;
    wxStaticText* lblCtrlFileType = nullptr; ///< element 1 of `lblDisp`
    wxChoice* cmbCtrlFileType = nullptr;

    PaneFrame fraFile; ///< the viewer, in the place of `fraCtrl`
    FileViewer* rtxFileDisp = nullptr;
    wxStaticText* lblFile = nullptr; ///< its heading, an element of `lblDisp` too
    wxStaticText* lblFileName = nullptr;

    wxPanel* pcHighlight = nullptr; ///< shows the mode's colour under the active pane
    wxPanel* controllerHighlight = nullptr;
    wxStatusBar* stsFileInf = nullptr;

  private:
    void makeToolBar();
    void makeConnectionBlock();
    void makePCPane();
    void makeControllerPane();
    void makeViewerPane();
    void makeHighlights();
};

} // namespace vantrel
