#include "ProgramWorld.h"
#include "ui/CommandToolBar.h"
#include "ui/FileViewer.h"
#include "ui/PaneDrag.h"

#include <wx/menu.h>
#include <wx/msgdlg.h>
#include <wx/utils.h>

namespace vantrel::tests {
namespace {

/// The whole program: which pane is the active one, and which has the keyboard. The same job stands
/// on both sides, so that a command that takes the wrong one is seen.
class PaneFocusTest : public testing::Test, public ProgramWorld {
  protected:
    PaneFocusTest() {
        for (const char* name : {"A", "B"}) {
            pcJob(name);
            robotJob(name);
        }
        folder.makeFolder("jobs/INNER");
        start(true);
    }

    FileListControl& pc() { return *controls().lsvPC; }
    FileListControl& controller() { return *controls().lsvCtrl; }
    bool isActive(ActiveSide side) {
        const bool pcShown = controls().pcHighlight->IsShown();
        EXPECT_NE(pcShown, controls().controllerHighlight->IsShown());
        EXPECT_EQ(controls().tlbPCButton->isPressed("PCButton"), pcShown);
        EXPECT_EQ(controls().tlbCtrlButton->isPressed("CTRLButton"), !pcShown);
        return pcShown == (side == ActiveSide::PC);
    }
    bool hasKeyboard(FileListControl& list) {
        return waitFor([&] { return list.native().HasFocus(); });
    }
    /// The other pane is active although this list has the keyboard.
    void divide(FileListControl& withKeyboard, FileListControl& active) {
        choose(withKeyboard, {0});
        ASSERT_TRUE(hasKeyboard(withKeyboard));
        active.onActivated();
    }
    /// A real press of the mouse on a window, at a place in it.
    static void press(wxWindow& window, const wxPoint& place, int button = wxMOUSE_BTN_LEFT) {
        wxUIActionSimulator mouse;
        mouse.MouseMove(window.ClientToScreen(place));
        runEvents();
        mouse.MouseClick(button);
        awaitDisplay();
        runEvents();
    }
    /// Between the lines of a frame and its controls.
    static wxPoint bareSpot(const wxPanel& frame) { return {frame.GetClientSize().x / 2, 14}; }
};

TEST_F(PaneFocusTest, ThePaneButtonsActivateTheirPaneThoughItHasTheKeyboardAlready) {
    divide(controller(), pc());
    ASSERT_TRUE(isActive(ActiveSide::PC));
    controls().tlbCtrlButton->press("CTRLButton");
    EXPECT_TRUE(isActive(ActiveSide::Controller));
    EXPECT_TRUE(hasKeyboard(controller()));

    divide(pc(), controller());
    ASSERT_TRUE(isActive(ActiveSide::Controller));
    controls().tlbPCButton->press("PCButton");
    EXPECT_TRUE(isActive(ActiveSide::PC));
    EXPECT_TRUE(hasKeyboard(pc()));
}

TEST_F(PaneFocusTest, APressOnAFrameActivatesItsPaneThoughItHasTheKeyboardAlready) {
    divide(controller(), pc());
    press(*controls().fraCtrl.panel, bareSpot(*controls().fraCtrl.panel));
    EXPECT_TRUE(waitFor([&] { return isActive(ActiveSide::Controller); }));
    EXPECT_TRUE(hasKeyboard(controller()));

    divide(pc(), controller());
    press(*controls().fraPC.panel, bareSpot(*controls().fraPC.panel));
    EXPECT_TRUE(waitFor([&] { return isActive(ActiveSide::PC); }));
    EXPECT_TRUE(hasKeyboard(pc()));
}

TEST_F(PaneFocusTest, UpGivesTheKeyboardToThePC) {
    choose(controller(), {0});
    ASSERT_TRUE(hasKeyboard(controller()));
    controls().tlbPC->press("UpFolder");
    EXPECT_TRUE(isActive(ActiveSide::PC));
    EXPECT_TRUE(hasKeyboard(pc()));
    EXPECT_TRUE(isActive(ActiveSide::PC));
    EXPECT_GE(pcList().FindItem(-1, "jobs"), 0);
}

TEST_F(PaneFocusTest, TheControllersToolBarWorksOnItsPaneAndGivesItTheKeyboard) {
    choose(controller(), {0});
    choose(pc(), {1});
    ASSERT_TRUE(hasKeyboard(pc()));
    controls().tlbFile->press("AllSelect");
    EXPECT_TRUE(isActive(ActiveSide::Controller));
    EXPECT_TRUE(hasKeyboard(controller()));
    EXPECT_EQ(pc().selectedRows().size(), 1U);
    EXPECT_EQ(int(controller().selectedRows().size()), controllerList().GetItemCount());

    choose(controller(), {0});
    choose(pc(), {1});
    modal.act([](wxDialog& question) { click(question, "cmdYesNo0"); });
    controls().tlbFile->press("FileDelete");
    EXPECT_FALSE(folder.has("robot/A.JBI"));
    EXPECT_TRUE(folder.has("jobs/A.JBI"));
    EXPECT_TRUE(isActive(ActiveSide::Controller));
    EXPECT_TRUE(hasKeyboard(controller()));
}

TEST_F(PaneFocusTest, AModalWindowChangesNoSide) {
    choose(controller(), {0});
    choose(pc(), {1});
    ASSERT_TRUE(hasKeyboard(pc()));
    controls().tlbFile->press("AllSelect");
    modal.act([](wxDialog& version) { click(version, "Command1"); });
    menu("mnuVer");
    EXPECT_TRUE(waitFor([&] { return window().IsActive(); }));
    outwaitToolkit();
    EXPECT_TRUE(isActive(ActiveSide::Controller));
    EXPECT_TRUE(hasKeyboard(controller()));
}

TEST_F(PaneFocusTest, AnotherWindowInBetweenChangesNoSide) {
    choose(controller(), {0});
    controls().tlbPC->press("UpFolder");
    auto* const other = new wxFrame(nullptr, wxID_ANY, "another program");
    other->Show();
    other->Raise();
    EXPECT_TRUE(waitFor([&] { return other->IsActive() && !window().IsActive(); }));
    window().Raise();
    other->Destroy();
    EXPECT_TRUE(waitFor([&] { return window().IsActive(); }));
    outwaitToolkit();
    EXPECT_TRUE(isActive(ActiveSide::PC));
    EXPECT_TRUE(hasKeyboard(pc()));
}

TEST_F(PaneFocusTest, AListThatGotTheKeyboardWhileLockedGivesItBack) {
    choose(pc(), {1});
    ASSERT_TRUE(hasKeyboard(pc()));
    window().setLocked(true);
    window().setLocked(false);
    // As a system does that hands the focus of a locked list on: nobody pressed anything.
    const auto listener = std::exchange(controller().onActivated, {});
    controller().focus();
    EXPECT_TRUE(hasKeyboard(pc()));
    controller().onActivated = listener;
    EXPECT_TRUE(isActive(ActiveSide::PC));
}

TEST_F(PaneFocusTest, TheKeysWorkOnThePaneThatIsHighlighted) {
    choose(controller(), {0});
    controls().tlbPC->press("UpFolder");
    choose(pc(), {std::size_t(pcList().FindItem(-1, "jobs"))});
    pressKeyAndWait(WXK_RETURN);
    ASSERT_TRUE(isActive(ActiveSide::PC));
    const auto item = pcList().FindItem(-1, "B.JBI");
    ASSERT_GE(item, 0);
    pc().select({std::size_t(item)});
    modal.act([](wxDialog& question) { click(question, "cmdYesNo0"); });
    pressKey(WXK_DELETE);
    EXPECT_TRUE(waitFor([this] { return !folder.has("jobs/B.JBI"); }));
    EXPECT_TRUE(folder.has("robot/B.JBI"));
}

TEST_F(PaneFocusTest, APressOnTheViewersFrameGivesTheViewerTheKeyboard) {
    choose(pc(), {1});
    menu("mnuFile(5)");
    ASSERT_TRUE(controls().fraFile.panel->IsShownOnScreen());
    pc().focus();
    ASSERT_TRUE(hasKeyboard(pc()));
    press(*controls().fraFile.panel, bareSpot(*controls().fraFile.panel));
    EXPECT_TRUE(waitFor([&] { return controls().rtxFileDisp->HasFocus(); }));
    EXPECT_TRUE(isActive(ActiveSide::PC));
}

TEST_F(PaneFocusTest, TheRightButtonOpensTheMenuOfItsPane) {
    choose(pc(), {0});
    wxMenu* opened = nullptr;
    controller().Bind(wxEVT_MENU_OPEN, [&](wxMenuEvent& event) {
        opened = event.GetMenu();
        controller().CallAfter([menu = opened] { closeOpenMenu(*menu); });
        event.Skip();
    });
    wxRect item;
    ASSERT_TRUE(controllerList().GetItemRect(1, item, wxLIST_RECT_LABEL));
    press(controllerList(), item.GetPosition() + item.GetSize() / 2, wxMOUSE_BTN_RIGHT);
    EXPECT_TRUE(waitFor([&] { return opened; }));
    ASSERT_TRUE(opened);
    outwaitToolkit();
    EXPECT_TRUE(isActive(ActiveSide::Controller)) << "its commands are those of this pane";
    EXPECT_TRUE(hasKeyboard(controller()));
    EXPECT_TRUE(opened->FindItem(window().menus().idOf("mnuRightFile(0)")));
    EXPECT_TRUE(opened->FindItem(window().menus().idOf("mnuRightRefresh")));
    EXPECT_EQ(controller().selectedRows(), std::vector<std::size_t>{1});
    waitFor([] { return !wxGetMouseState().RightIsDown(); });
}

TEST_F(PaneFocusTest, AHeaderOfTheControllerPaneSortsNothing) {
    controller().setView(ListView::Details);
    const auto before = std::pair(namesIn(pcList()), namesIn(controllerList()));
    for (const int column : {0, 0, 1, 2}) {
        wxListEvent header(wxEVT_LIST_COL_CLICK, controllerList().GetId());
        header.SetEventObject(&controllerList());
        header.m_col = column;
        controllerList().HandleWindowEvent(header);
        EXPECT_EQ(std::pair(namesIn(pcList()), namesIn(controllerList())), before) << column;
        EXPECT_TRUE(window().menus().find("mnuSort(0)")->IsChecked());
    }
}

TEST_F(PaneFocusTest, ADropOfFoldersOnlyIsRefusedWhileHovering) {
    choose(pc(), {std::size_t(pcList().FindItem(-1, "INNER"))});
    auto& drag = window().drag();
    drag.whileDragging(ActiveSide::PC, [&] {
        EXPECT_FALSE(drag.accepts(ActiveSide::Controller));
        EXPECT_FALSE(drag.drop(ActiveSide::Controller));
    });
}

TEST_F(PaneFocusTest, ADropOfFoldersAndFilesSendsTheFilesAndNamesTheFolder) {
    pcJob("NEW1");
    pcJob("NEW2");
    menu("mnuRefresh");
    const auto row = [&](const char* name) {
        return std::size_t(pcList().FindItem(-1, wxString(name)));
    };
    // The folder is the item with the focus.
    choose(pc(), {row("INNER"), row("NEW1.JBI"), row("NEW2.JBI")});
    wxString told;
    modal.answer([&](wxDialog& box) {
        if (auto* const message = dynamic_cast<wxMessageDialogBase*>(&box))
            told = message->GetMessage();
        return wxID_OK;
    });
    auto& drag = window().drag();
    drag.whileDragging(ActiveSide::PC, [&] {
        EXPECT_TRUE(drag.accepts(ActiveSide::Controller));
        EXPECT_TRUE(drag.drop(ActiveSide::Controller));
    });
    EXPECT_TRUE(waitFor([&] {
        return folder.has("robot/NEW1.JBI") && folder.has("robot/NEW2.JBI") && !told.empty();
    }));
    EXPECT_TRUE(told.Contains("[INNER]")) << told;
    EXPECT_FALSE(folder.has("robot/INNER"));
}

TEST_F(PaneFocusTest, TheRobotBoxComesBackWithItsChoice) {
    menu("mnuModeHiSpeed");
    auto& box = *controls().cmbRbtName;
    box.SetSelection(1);
    wxCommandEvent chosen(wxEVT_CHOICE, box.GetId());
    chosen.SetEventObject(&box);
    chosen.SetInt(1);
    box.HandleWindowEvent(chosen);
    menu("mnuModeBsc");
    EXPECT_FALSE(box.IsShownOnScreen());
    menu("mnuModeHiSpeed");
    EXPECT_TRUE(box.IsShownOnScreen());
    EXPECT_EQ(box.GetStringSelection(), "SECOND");
    EXPECT_EQ(controls().lblIPAddr2->GetLabel(), "10.0.0.2");
}

TEST_F(PaneFocusTest, RefreshInTheMenuBarIsOneCommand) {
    pcJob("NEW");
    constexpr std::size_t refresh = 4;
    EXPECT_EQ(menuBarEntries(window()).at(refresh), "&Refresh");
    EXPECT_FALSE(isMenu(window(), refresh));
    EXPECT_EQ(namesIn(pcList()).size(), 3U);
    chooseCommand(window(), refresh);
    EXPECT_TRUE(waitFor([&] { return pcList().FindItem(-1, "NEW.JBI") >= 0; }));
    pcJob("NEXT");
    pc().focus();
    pressKey('R', wxMOD_ALT);
    EXPECT_TRUE(waitFor([&] { return pcList().FindItem(-1, "NEXT.JBI") >= 0; }));
}

} // namespace
} // namespace vantrel::tests
