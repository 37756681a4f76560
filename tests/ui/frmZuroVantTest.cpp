#include "ui/frmZuroVant.h"

#include "MainWindowTest.h"
#include "app/settings/SettingsFile.h"
#include "app/window/WindowLayout.h"
#include "lang/MessageNumbers.h"
#include "support/ScreenPicture.h"
#include "ui/CommandToolBar.h"
#include "ui/FileListControl.h"
#include "ui/OperationGuard.h"
#include "ui/PathDisplay.h"
#include "ui/look/IconSet.h"

#include <array>
#include <cmath>
#include <tuple>

#include <wx/bmpbuttn.h>
#include <wx/choice.h>
#include <wx/display.h>
#include <wx/menu.h>
#include <wx/statbmp.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/statusbr.h>
#include <wx/timer.h>

namespace vantrel::tests {
namespace {

INSTANTIATE_TEST_SUITE_P(Languages, MainWindowTest, bothLanguages, languageName);

TEST_P(MainWindowTest, EveryCaptionHasAText) {
    for (const auto& [name, caption] : menuEntries()) {
        const auto* entry = window.menus().find(name);
        EXPECT_TRUE(!entry || !entry->GetItemLabelText().Strip().empty()) << name;
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

TEST_P(MainWindowTest, EveryFrameAndLabelHasItsOwnCaption) {
    const std::pair<const wxWindow*, int> expected[] = {
        {controls.fraPC.box, 153},     {controls.fraCtrl.box, 155},     {controls.lblFile, 156},
        {controls.lblPCFileType, 157}, {controls.lblCtrlFileType, 157}, {controls.lblSerial, 158},
        {controls.lblFolder, 159},     {controls.lblRbtName, 230},      {controls.lblIPaddr, 192}};
    for (const auto& [control, number] : expected)
        EXPECT_EQ(control->GetLabel().utf8_string(), messages.getMessage(number)) << number;
}

TEST_P(MainWindowTest, EveryColumnHasItsOwnTitle) {
    for (auto* list : {controls.lsvPC, controls.lsvCtrl}) {
        list->setView(ListView::Details);
        ASSERT_EQ(list->native().GetColumnCount(), 3);
        for (int column = 0; column < 3; ++column) {
            wxListItem title;
            title.SetMask(wxLIST_MASK_TEXT);
            list->native().GetColumn(column, title);
            EXPECT_EQ(title.GetText().utf8_string(), messages.getMessage(211 + column));
        }
    }
}

TEST_P(MainWindowTest, EveryToolButtonHasItsOwnTip) {
    const std::tuple<const CommandToolBar*, const char*, int> expected[] = {
        {controls.tlbMain, "FileCopy", 140},     {controls.tlbMain, "FileMove", 141},
        {controls.tlbMain, "FileDelete", 142},   {controls.tlbMain, "AllSelect", 143},
        {controls.tlbMain, "Refresh", 145},      {controls.tlbMain, "modeHiSpeed", 190},
        {controls.tlbMain, "modeBsc", 191},      {controls.tlbMain, "DispBig", 146},
        {controls.tlbMain, "DispSmall", 147},    {controls.tlbMain, "DispList", 148},
        {controls.tlbMain, "DispDetail", 149},   {controls.tlbMain, "FileDisp", 150},
        {controls.tlbPC, "UpFolder", 151},       {controls.tlbPC, "Print", 152},
        {controls.tlbPCButton, "PCButton", 214}, {controls.tlbCtrlButton, "CTRLButton", 215},
        {controls.tlbFile, "FileCopy", 140},     {controls.tlbFile, "FileMove", 141},
        {controls.tlbFile, "FileDelete", 142},   {controls.tlbFile, "AllSelect", 143}};
    for (const auto& [bar, key, number] : expected)
        EXPECT_EQ(bar->toolTip(key).utf8_string(), messages.getMessage(number)) << key;
}

TEST_P(MainWindowTest, EveryMenuEntryHasItsOwnCaption) {
    int found = 0;
    for (const auto& [name, caption] : menuEntries()) {
        const auto* const entry = window.menus().find(name);
        if (!entry)
            continue;
        ++found;
        EXPECT_EQ(entry->GetItemLabel().BeforeFirst('\t').utf8_string(),
                  messages.getMessage(caption))
            << name;
    }
    EXPECT_EQ(found, int(menuEntries().size()) - 1) << "all but what stands in the menu bar itself";
    const int headMessages[] = {101, 109, 130, 114, 119, 126, 411};
    ASSERT_EQ(window.GetMenuBar()->GetMenuCount(), std::size(headMessages));
    for (std::size_t head = 0; head < std::size(headMessages); ++head)
        EXPECT_EQ(window.GetMenuBar()->GetMenuLabel(head).utf8_string(),
                  messages.getMessage(headMessages[head]));
}

TEST_P(MainWindowTest, OnlyThePCsDetailsAreFlat) {
    for (const auto view : std::to_array<std::int16_t>({3, 0, 3, 1, 3, 2, 3})) {
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
    window.showStates({.active = ActiveSide::Controller, .hispeedAvailable = false});
    EXPECT_FALSE(controls.tlbMain->isEnabled("DispDetail"));
    EXPECT_FALSE(window.menus().find("mnuModeHiSpeed")->IsEnabled());
    EXPECT_TRUE(window.menus().find("mnuModeBsc")->IsChecked());
    EXPECT_TRUE(controls.tlbMain->isPressed("DispSmall"));
}

TEST_P(MainWindowTest, LockingDisablesPanesMenusAndTheToolBar) {
    window.showStates({.locked = true});
    EXPECT_FALSE(controls.tlbMain->IsEnabled());
    EXPECT_FALSE(controls.fraPC.panel->IsEnabled());
    EXPECT_FALSE(controls.fraCtrl.panel->IsEnabled());
    EXPECT_FALSE(controls.cmbRbtName->IsEnabled());
    EXPECT_FALSE(window.GetMenuBar()->IsEnabledTop(0));
    window.showStates({});
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
    // What the tree asks for when the pointer comes to its item; without an answer it shows none.
    wxTreeEvent asked(wxEVT_TREE_ITEM_GETTOOLTIP, controls.trvFolderName,
                      controls.trvFolderName->GetRootItem());
    ASSERT_TRUE(controls.trvFolderName->GetEventHandler()->ProcessEvent(asked));
    EXPECT_TRUE(asked.IsAllowed());
    EXPECT_EQ(asked.GetLabel(), "/srv/jobs/");
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

TEST_P(MainWindowTest, NoSideOfTheWindowGetsSmallerThanItsMinimum) {
    // Captions that need more room make the window larger.
    const double scale = window.GetMinSize().x / 8800.0;
    EXPECT_GE(window.GetMinSize().x, window.FromDIP(587));
    const auto pixels = [scale](double twips) { return int(std::lround(twips * scale)); };
    const auto isAbout = [&](int width, int height) {
        const wxSize size = window.GetSize();
        return std::abs(size.x - pixels(width)) <= 1 && std::abs(size.y - pixels(height)) <= 1;
    };
    state.WindowPos = {0, 0, 8799, 6000, 0, 0, 0, 0};
    window.place(state.WindowPos);
    EXPECT_TRUE(waitFor([&] { return isAbout(8800, 6000); }))
        << window.GetSize().x << 'x' << window.GetSize().y;
    window.SetSize(wxSize(100, 100));
    EXPECT_TRUE(waitFor([&] { return isAbout(8800, 4700); }))
        << window.GetSize().x << 'x' << window.GetSize().y;
}

TEST_P(MainWindowTest, AMaximisedOrMinimisedWindowIsNoPlaceToStore) {
    EXPECT_TRUE(window.placement().isNormal);
    window.Maximize();
    EXPECT_TRUE(waitFor([this] { return window.IsMaximized(); }));
    EXPECT_FALSE(window.placement().isNormal);
    window.Maximize(false);
    EXPECT_TRUE(waitFor([this] { return !window.IsMaximized(); }));
    EXPECT_TRUE(window.placement().isNormal);
    window.Iconize();
    EXPECT_TRUE(waitFor([this] { return window.IsIconized(); }));
    EXPECT_FALSE(window.placement().isNormal);
    window.Iconize(false);
    EXPECT_TRUE(waitFor([this] { return !window.IsIconized(); }));
}

TEST_P(MainWindowTest, NothingIsLaidOutWhileMinimised) {
    window.Iconize();
    ASSERT_TRUE(waitFor([this] { return window.IsIconized(); }));
    auto& pane = *controls.fraPC.panel;
    const wxSize before = pane.GetSize();
    const wxSize other = before - wxSize(20, 20);
    pane.SetSize(other);
    wxSizeEvent resize(wxSize(200, 200), window.GetId());
    resize.SetEventObject(&window);
    window.HandleWindowEvent(resize);
    EXPECT_EQ(pane.GetSize(), other);
    window.Iconize(false);
    ASSERT_TRUE(waitFor([this] { return !window.IsIconized(); }));
    window.HandleWindowEvent(resize);
    EXPECT_EQ(pane.GetSize(), before);
}

TEST_P(MainWindowTest, AWindowThatWasMovedAndResizedIsStoredSo) {
    // The window has settled before this timer ends, which was begun later and takes as long.
    wxTimer settled;
    bool hasSettled = false;
    settled.Bind(wxEVT_TIMER, [&](wxTimerEvent&) { hasSettled = true; });
    settled.StartOnce(1000);
    ASSERT_TRUE(waitFor([&] { return hasSettled; }));
    const auto before = window.placement();
    const auto corner = [this] { return window.ClientToScreen(wxPoint(0, 0)); };
    const wxPoint from = corner();
    const wxSize size = window.GetSize();
    const double twipsPerPixel = before.width / size.x;
    window.Move(window.GetPosition() + wxPoint(90, 60));
    window.SetSize(size + wxSize(120, 80));
    ASSERT_TRUE(waitFor([&] { return corner() != from && window.GetSize() != size; }));
    EXPECT_TRUE(waitFor([&] {
        const auto now = window.placement();
        const wxPoint moved = corner() - from;
        const wxSize grown = window.GetSize() - size;
        return std::abs(now.left - before.left - moved.x * twipsPerPixel) < twipsPerPixel &&
               std::abs(now.top - before.top - moved.y * twipsPerPixel) < twipsPerPixel &&
               std::abs(now.width - before.width - grown.x * twipsPerPixel) < twipsPerPixel &&
               std::abs(now.height - before.height - grown.y * twipsPerPixel) < twipsPerPixel;
    }));
    EXPECT_GT(window.placement().width, before.width);
    EXPECT_GT(window.placement().left, before.left);
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
    wxMenuEvent highlight(wxEVT_MENU_HIGHLIGHT, window.menus().idOf("mnuFile(0)"),
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
