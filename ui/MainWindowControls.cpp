#include "ui/MainWindowControls.h"

#include "app/commands/Commands.h"
#include "ui/CommandToolBar.h"
#include "ui/FileListControl.h"
#include "ui/FileViewer.h"
#include "ui/FolderTreeDropDown.h"
#include "ui/PathDisplay.h"
#include "ui/QuickFilter.h"
#include "ui/ViewerSearch.h"
#include "ui/look/ColourSwatch.h"
#include "ui/look/IconSet.h"
#include "ui/look/SystemLook.h"

#include <wx/bmpbuttn.h>
#include <wx/choice.h>
#include <wx/frame.h>
#include <wx/panel.h>
#include <wx/statbmp.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/statusbr.h>

namespace vantrel {

namespace {

const wxSize smallIcon{16, 16};
const wxSize arrowIcon{32, 32};
const wxSize dropDownIcon{12, 12};

PaneFrame makeFrame(wxWindow* parent, const wxString& name) {
    PaneFrame frame;
    frame.panel =
        new wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL, name);
    frame.box = new wxStaticBox(frame.panel, wxID_ANY, wxString());
    return frame;
}

wxStaticText* makeLabel(wxWindow* parent, const wxString& name, long style = 0) {
    return new wxStaticText(parent, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
                            style | wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END, name);
}

wxChoice* makeChoice(wxWindow* parent, const wxString& name) {
    auto* choice = new wxChoice(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, nullptr, 0,
                                wxDefaultValidator, name);
    return choice;
}

} // namespace

MainWindowControls::MainWindowControls(wxFrame& window, std::span<const CommandRow> table)
    : surface(new wxPanel(&window)),
      tlbMain(new CommandToolBar(surface, "tlbMain", table, CommandPlace::tlbMain)) {
    makeConnectionBlock();
    makePCPane(table);
    pctDirectArrow = new wxStaticBitmap(surface, wxID_ANY, icon("arrowToController", arrowIcon));
    makeControllerPane(table);
    makeViewerPane();
    makeHighlights();
    stsFileInf = window.CreateStatusBar(statusPanels, wxSTB_DEFAULT_STYLE, wxID_ANY, "stsFileInf");
}

void MainWindowControls::makeConnectionBlock() {
    lblSerial = makeLabel(surface, "lblDisp3");
    lbl232CParam = makeLabel(surface, "lbl232CParam");
    lblRbtName = makeLabel(surface, "lblRbtName");
    cmbRbtName = makeChoice(surface, "cmbRbtName");
    lblIPaddr = makeLabel(surface, "lblIPaddr");
    lblIPAddr2 = makeLabel(surface, "lblIPAddr2");
    robotColour = new ColourSwatch(surface, "robotColour", wxBORDER_SIMPLE);
    lblRobotMark = makeLabel(surface, "lblRobotMark");
    robotColour->Hide();
    lblRobotMark->Hide();
}

void MainWindowControls::makePCPane(std::span<const CommandRow> table) {
    fraPC = makeFrame(surface, "fraPC");
    auto* pane = fraPC.panel;
    tlbPCButton = new CommandToolBar(pane, "tlbPCButton", table, CommandPlace::tlbPCButton);
    Picture1 = new wxStaticBitmap(pane, wxID_ANY, icon("folder", smallIcon));
    lblFolder = makeLabel(pane, "lblDisp2");
    trvFolderName = new PathDisplay(pane, "trvFolderName");
    Command1 = new wxBitmapButton(pane, wxID_ANY, icon("dropDown", dropDownIcon), wxDefaultPosition,
                                  wxDefaultSize, wxBU_EXACTFIT, wxDefaultValidator, "Command1");
    allowNarrow(*Command1);
    tlbPC = new CommandToolBar(pane, "tlbPC", table, CommandPlace::tlbPC);
    lsvPC = new FileListControl(pane, "lsvPC");
    // After the list, so that it lies above it.
    trvFolderList = new FolderTreeDropDown(pane, "trvFolderList", *Command1);
    pcQuickFilter = new QuickFilter(pane, "pcQuickFilter");
    lblPCFileType = makeLabel(pane, "lblDisp0");
    cmbPCFileType = makeChoice(pane, "cmbPCFileType");
}

void MainWindowControls::makeControllerPane(std::span<const CommandRow> table) {
    fraCtrl = makeFrame(surface, "fraCtrl");
    auto* pane = fraCtrl.panel;
    tlbCtrlButton = new CommandToolBar(pane, "tlbCtrlButton", table, CommandPlace::tlbCtrlButton);
    tlbFile = new CommandToolBar(pane, "tlbFile", table, CommandPlace::tlbFile);
    lsvCtrl = new FileListControl(pane, "lsvCtrl");
    ctrlQuickFilter = new QuickFilter(pane, "ctrlQuickFilter");
    lblCtrlFileType = makeLabel(pane, "lblDisp1");
    cmbCtrlFileType = makeChoice(pane, "cmbCtrlFileType");
}

void MainWindowControls::makeViewerPane() {
    fraFile = makeFrame(surface, "fraFile");
    auto* pane = fraFile.panel;
    rtxFileDisp = new FileViewer(pane, "rtxFileDisp");
    viewerSearch = new ViewerSearch(pane, *rtxFileDisp, "viewerSearch");
    lblFile = makeLabel(pane, "lblDispFile");
    lblFileName = makeLabel(pane, "lblFileName");
    pane->Hide();
}

void MainWindowControls::makeHighlights() {
    pcHighlight = new ColourSwatch(surface);
    controllerHighlight = new ColourSwatch(surface);
}

} // namespace vantrel
