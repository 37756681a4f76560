#include "ui/frmZuroVant.h"

#include "MainWindowTest.h"
#include "app/SettingsFile.h"
#include "app/WindowLayout.h"
#include "lang/MessageNumbers.h"
#include "support/ScreenPicture.h"
#include "ui/FileListControl.h"
#include "ui/IconSet.h"
#include "ui/KeyedToolBar.h"
#include "ui/OperationGuard.h"
#include "ui/PathDisplay.h"

#include <wx/bmpbuttn.h>
#include <wx/choice.h>
#include <wx/display.h>
#include <wx/menu.h>
#include <wx/statbmp.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/statusbr.h>

namespace vantrel::tests {
namespace {

INSTANTIATE_TEST_SUITE_P(Languages, MainWindowTest, bothLanguages, languageName);

TEST_P(MainWindowTest, EveryCaptionHasAText) {
    for (const auto& caption : menuCaptions()) {
        const auto* entry = window.menus().find(caption.item);
        EXPECT_TRUE(!entry || !entry->GetItemLabelText().Strip().empty()) << caption.message;
    }
    for (std::size_t top = 0; top < window.GetMenuBar()->GetMenuCount(); ++top)
        EXPECT_GT(window.GetMenuBar()->GetMenuLabelText(top).length(), 1u) << top;
    for (auto* bar : {controls.tlbMain, controls.tlbPC, controls.tlbFile, controls.tlbPCButton,
                      controls.tlbCtrlButton})
        for (const auto& key : bar->keys())
            EXPECT_FALSE(bar->toolTip(key).empty()) << key;
    EXPECT_FALSE(controls.Command1->GetToolTipText().empty());
    for (wxWindow* label :
         {static_cast<wxWindow*>(controls.fraPC.box), static_cast<wxWindow*>(controls.fraCtrl.box),
          static_cast<wxWindow*>(controls.lblPCFileType),
          static_cast<wxWindow*>(controls.lblCtrlFileType),
          static_cast<wxWindow*>(controls.lblFolder), static_cast<wxWindow*>(controls.lblSerial),
          static_cast<wxWindow*>(controls.lblRbtName), static_cast<wxWindow*>(controls.lblIPaddr)})
        EXPECT_FALSE(label->GetLabel().empty()) << label->GetName();
}

TEST_P(MainWindowTest, OnlyThePCsDetailsAreFlat) {
    for (const std::int16_t view : {3, 0, 3, 1, 3, 2, 3}) {
        window.showView(ActiveSide::PC, view);
        EXPECT_EQ(controls.lsvPC->appearance(),
                  view == 3 ? Appearance::Flat : Appearance::ThreeDimensional);
        window.showView(ActiveSide::Controller, view);
        EXPECT_EQ(controls.lsvCtrl->appearance(), Appearance::ThreeDimensional);
    }
}

TEST_P(MainWindowTest, NoLabelIsCutOff) {
    for (auto* label : {controls.lblPCFileType, controls.lblCtrlFileType, controls.lblFolder,
                        controls.lblSerial, controls.lblRbtName, controls.lblIPaddr})
        EXPECT_LE(label->GetTextExtent(label->GetLabel()).x, label->GetSize().x)
            << label->GetLabel();
}

TEST_P(MainWindowTest, NothingOverlapsInItsPane) {
    const auto expectApart = [](std::initializer_list<wxWindow*> row) {
        for (auto* left : row) {
            for (auto* right : row)
                EXPECT_TRUE(left == right || !left->GetRect().Intersects(right->GetRect()))
                    << left->GetName() << " and " << right->GetName();
        }
    };
    expectApart({controls.tlbPCButton, controls.lblFolder, controls.trvFolderName,
                 controls.Command1, controls.tlbPC, controls.lsvPC, controls.cmbPCFileType,
                 controls.lblPCFileType});
    expectApart({controls.tlbCtrlButton, controls.tlbFile, controls.lsvCtrl,
                 controls.cmbCtrlFileType, controls.lblCtrlFileType});
    expectApart({controls.tlbMain, controls.fraPC.panel, controls.fraCtrl.panel,
                 controls.lblRbtName, controls.cmbRbtName, controls.lblIPaddr,
                 controls.lblIPAddr2});
}

TEST_P(MainWindowTest, EveryToolButtonHasRoom) {
    for (auto* bar : {controls.tlbMain, controls.tlbPC, controls.tlbFile, controls.tlbPCButton,
                      controls.tlbCtrlButton})
        EXPECT_LE(bar->GetBestSize().x, bar->GetSize().x) << bar->GetName();
}

TEST_P(MainWindowTest, ModesShowTheirOwnConnectionBlock) {
    EXPECT_TRUE(controls.lbl232CParam->IsShown());
    EXPECT_FALSE(controls.cmbRbtName->IsShown());
    window.showMode(modeLook(TransferMode::HispeedLink, messages));
    EXPECT_FALSE(controls.lblSerial->IsShown());
    EXPECT_TRUE(controls.cmbRbtName->IsShown());
    EXPECT_EQ(window.GetTitle(), "Vantrel  -- Hispeed Link --");
    EXPECT_EQ(controls.pcHighlight->GetBackgroundColour(), wxColour(0, 0xC0, 0));
}

TEST_P(MainWindowTest, TheHighlightFollowsTheActiveSide) {
    EXPECT_TRUE(controls.pcHighlight->IsShown());
    window.showActiveSide(ActiveSide::Controller);
    EXPECT_FALSE(controls.pcHighlight->IsShown());
    EXPECT_TRUE(controls.controllerHighlight->IsShown());
}

TEST_P(MainWindowTest, EachShapeIsSeenInTheColourOfTheMode) {
    constexpr std::uint32_t blue = 0x0000C0, green = 0x00C000;
    for (const bool hispeed : {true, false}) {
        window.showMode(
            modeLook(hispeed ? TransferMode::HispeedLink : TransferMode::Bsc, messages));
        for (const auto side : {ActiveSide::Controller, ActiveSide::PC}) {
            window.showActiveSide(side);
            paintInGoodTime();
            const ScreenPicture shape(side == ActiveSide::PC ? *controls.pcHighlight
                                                             : *controls.controllerHighlight);
            EXPECT_EQ(shape.at(0, 0), hispeed ? green : blue);
            EXPECT_EQ(shape.colours(), 1u);
        }
    }
}

TEST_P(MainWindowTest, TheArrowPointsAwayFromTheActiveSide) {
    const auto pixels = [](const wxBitmap& picture) {
        const wxImage image = picture.ConvertToImage();
        const auto count = static_cast<std::size_t>(image.GetWidth() * image.GetHeight());
        return std::string(reinterpret_cast<const char*>(image.GetData()), 3 * count) +
               std::string(reinterpret_cast<const char*>(image.GetAlpha()), count);
    };
    const auto delivered = [&](const char* name) {
        const wxSize size(32, 32);
        return pixels(icon(name, size).GetBitmap(size));
    };
    ASSERT_NE(delivered("arrowToPC"), delivered("arrowToController"));
    for (int round = 0; round < 2; ++round) {
        window.showActiveSide(ActiveSide::Controller);
        EXPECT_EQ(pixels(controls.pctDirectArrow->GetBitmap()), delivered("arrowToPC"));
        window.showActiveSide(ActiveSide::PC);
        EXPECT_EQ(pixels(controls.pctDirectArrow->GetBitmap()), delivered("arrowToController"));
    }
}

TEST_P(MainWindowTest, StatesReachMenusAndButtons) {
    auto states = commandStates({.active = ActiveSide::Controller, .hispeedAvailable = false});
    window.showStates(states);
    EXPECT_FALSE(controls.tlbMain->isEnabled("DispDetail"));
    EXPECT_FALSE(window.menus().find({Menu::mnuModeHiSpeed, 0})->IsEnabled());
    EXPECT_TRUE(window.menus().find({Menu::mnuModeBsc, 0})->IsChecked());
    EXPECT_TRUE(controls.tlbMain->isPressed("DispSmall"));
}

TEST_P(MainWindowTest, LockingDisablesPanesMenusAndTheToolBar) {
    window.showStates(commandStates({.locked = true}));
    EXPECT_FALSE(controls.tlbMain->IsEnabled());
    EXPECT_FALSE(controls.fraPC.panel->IsEnabled());
    EXPECT_FALSE(controls.fraCtrl.panel->IsEnabled());
    EXPECT_FALSE(controls.cmbRbtName->IsEnabled());
    EXPECT_FALSE(window.GetMenuBar()->IsEnabledTop(0));
    window.showStates(commandStates({}));
    EXPECT_TRUE(controls.tlbMain->IsEnabled());
    EXPECT_TRUE(window.GetMenuBar()->IsEnabledTop(0));
}

TEST_P(MainWindowTest, FillingTheRobotBoxIsNoChoiceOfTheOperator) {
    int chosen = 0;
    window.onRobotChosen = [&](int) { ++chosen; };
    window.clear();
    window.add("R1");
    window.add("R2");
    window.select(1);
    runEvents();
    EXPECT_EQ(chosen, 0);
    wxCommandEvent event(wxEVT_CHOICE, controls.cmbRbtName->GetId());
    event.SetInt(1);
    controls.cmbRbtName->HandleWindowEvent(event);
    EXPECT_EQ(chosen, 1);
}

TEST_P(MainWindowTest, FilterChoicesStartAtTheFirst) {
    window.setFilterChoices(ActiveSide::PC, {"*.JBI", "*.*"});
    EXPECT_EQ(window.filterIndex(ActiveSide::PC), 0);
    controls.cmbPCFileType->SetSelection(1);
    EXPECT_EQ(window.filterIndex(ActiveSide::PC), 1);
    EXPECT_EQ(controls.cmbPCFileType->GetString(1), "*.*");
}

TEST_P(MainWindowTest, AnAmpersandInAnAddressIsShown) {
    window.showAddress("a&b");
    EXPECT_EQ(controls.lblIPAddr2->GetLabelText(), "a&b");
}

TEST_P(MainWindowTest, ShowsTheFolderWithItsFullPathAsTip) {
    window.showFolder("/srv/jobs/");
    EXPECT_EQ(controls.trvFolderName->nodeText(), "jobs");
    EXPECT_EQ(controls.trvFolderName->GetToolTipText(), "/srv/jobs/");
}

TEST_P(MainWindowTest, AWindowThatNobodyMovedKeepsItsStoredPlace) {
    EXPECT_TRUE(waitFor([this] { return window.placement().width == 9720; }));
    const auto placement = window.placement();
    EXPECT_TRUE(placement.isNormal);
    EXPECT_EQ(placement.left, 0);
    EXPECT_EQ(placement.top, 0);
    EXPECT_EQ(placement.height, 7000);
    EXPECT_EQ(placement.columnWidths[0], 1400);
}

TEST_P(MainWindowTest, AWindowStoredOffEveryScreenIsBroughtBack) {
    state.WindowPos = {1'000'000, 1'000'000, 9720, 7000, 1400, 700, 1500, 0};
    window.place(state.WindowPos);
    EXPECT_TRUE(
        waitFor([this] { return wxDisplay::GetFromPoint(window.GetPosition()) != wxNOT_FOUND; }));
    EXPECT_EQ(window.placement().left, 1'000'000) << "its screen may come back";
}

TEST_P(MainWindowTest, ATooSmallStoredSizeIsRaised) {
    state.WindowPos = {0, 0, 100, 100, 0, 0, 0, 0};
    window.place(state.WindowPos);
    EXPECT_TRUE(waitFor([this] { return window.GetSize().x >= window.FromDIP(586); }));
    EXPECT_GE(window.GetSize().y, window.FromDIP(313));
    EXPECT_GT(controls.lsvPC->GetSize().y, 0);
}

TEST_P(MainWindowTest, CloseIsRefusedSilentlyWhileLocked) {
    int asked = 0;
    window.onClose = [&] { return ++asked, true; };
    window.setLocked(true);
    EXPECT_FALSE(window.Close());
    EXPECT_EQ(asked, 0);
    window.setLocked(false);
    window.onClose = [&] { return ++asked, false; };
    EXPECT_FALSE(window.Close());
    EXPECT_EQ(asked, 1);
}

TEST_P(MainWindowTest, ACloseThatCannotBeRefusedWaitsForWhatRuns) {
    int asked = 0;
    window.onClose = [&] { return ADD_FAILURE() << "nobody is asked", false; };
    window.onForcedClose = [&] { return ++asked, false; };
    window.setLocked(true);
    window.Close(true);
    EXPECT_EQ(asked, 1);
    EXPECT_FALSE(window.IsBeingDeleted());
    window.setLocked(false);
    EXPECT_TRUE(waitFor([&] { return asked == 2; })) << "it is made up for";
}

TEST_P(MainWindowTest, TheNoticeOfTheSimulationIsShownWhole) {
    window.showNotice(messages.getMessage(message::simulationNotice));
    wxRect panel;
    constexpr int notice = 2;
    ASSERT_TRUE(controls.stsFileInf->GetFieldRect(notice, panel));
    EXPECT_LE(controls.stsFileInf->GetTextExtent(controls.stsFileInf->GetStatusText(notice)).x,
              panel.width);
}

TEST_P(MainWindowTest, ARobotsWholeNameIsTheTipOfItsBox) {
    window.add("A ROBOT WITH A VERY LONG NAME");
    window.select(0);
    EXPECT_EQ(controls.cmbRbtName->GetToolTipText(), "A ROBOT WITH A VERY LONG NAME");
}

TEST_P(MainWindowTest, AnOpenMenuLeavesTheCountsInPlace) {
    window.setStatus(ActiveSide::PC, "PC: 3 items");
    wxMenuEvent open(wxEVT_MENU_OPEN, 0, window.GetMenuBar()->GetMenu(0));
    window.HandleWindowEvent(open);
    wxMenuEvent highlight(wxEVT_MENU_HIGHLIGHT, MainMenus::idOf({Menu::mnuFile, 0}),
                          window.GetMenuBar()->GetMenu(0));
    window.HandleWindowEvent(highlight);
    EXPECT_EQ(window.GetStatusBar()->GetStatusText(0), "PC: 3 items");
}

TEST_P(MainWindowTest, LooksFinished) {
    window.setFilterChoices(ActiveSide::PC, {"*.JBI", "*.*"});
    window.setFilterChoices(ActiveSide::Controller, {"*.JBI"});
    window.showFolder("/srv/jobs");
    window.showSerialLine("COM1: 9600bps", "DataLength:8  Parity:EVEN  StopBit:1");
    window.setStatus(ActiveSide::PC, "PC: 3");
    window.showView(ActiveSide::PC, 3);
    runEvents();
    saveScreenshot(window, "main-window-" + language());
    EXPECT_LE(controls.lbl232CParam->GetTextExtent("DataLength:8  Parity:EVEN  StopBit:1").x,
              controls.lbl232CParam->GetSize().x);
}

} // namespace
} // namespace vantrel::tests
