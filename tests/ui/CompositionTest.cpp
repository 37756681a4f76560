#include "ui/Composition.h"

#include "ProgramWorld.h"
#include "ui/CommandToolBar.h"
#include "ui/PaneDrag.h"

#include <wx/bmpbuttn.h>
#include <wx/menu.h>
#include <wx/statusbr.h>

namespace vantrel::tests {
namespace {

class CompositionTest : public testing::Test {
  protected:
    std::vector<std::string> names(FileListControl& list) {
        return ProgramWorld::namesIn(list.native());
    }
    FileListControl& pc() { return *world.controls().lsvPC; }
    FileListControl& controller() { return *world.controls().lsvCtrl; }
    bool onPC(const std::string& name) { return world.folder.has("jobs/" + name); }
    bool onRobot(const std::string& name) { return world.folder.has("robot/" + name); }
    void copy() { world.menu("mnuFile(0)"); }

    ProgramWorld world;
};

/// Everything that an operator can do to the main window, done at once.
class EverythingAtOnce {
  public:
    explicit EverythingAtOnce(ProgramWorld& world) : world_(world) {}

    void operator()() {
        ++times;
        const auto& controls = world_.controls();
        for (const auto& [name, caption] : menuEntries())
            world_.menu(name);
        for (auto* bar : {controls.tlbMain, controls.tlbPC, controls.tlbFile, controls.tlbPCButton,
                          controls.tlbCtrlButton})
            for (wxToolBarToolBase* tool : toolsOf(*bar))
                command(*bar, wxEVT_TOOL, tool->GetId());
        for (auto* list : {controls.lsvPC, controls.lsvCtrl})
            actOn(list->native());
        for (auto* choice :
             {controls.cmbRbtName, controls.cmbPCFileType, controls.cmbCtrlFileType}) {
            choice->SetSelection(1);
            command(*choice, wxEVT_CHOICE, choice->GetId());
        }
        command(*controls.Command1, wxEVT_BUTTON, controls.Command1->GetId());
        wxTreeEvent opening(wxEVT_TREE_ITEM_EXPANDING, controls.trvFolderList);
        controls.trvFolderList->HandleWindowEvent(opening);
        key(*controls.trvFolderList, wxEVT_KEY_DOWN, WXK_RETURN);
        key(world_.window(), wxEVT_CHAR_HOOK, WXK_F1);
        key(world_.window(), wxEVT_CHAR_HOOK, WXK_F5);
        for (auto* part : {controls.fraPC.panel, controls.fraCtrl.panel})
            press(*part);
        world_.window().drag().begin(ActiveSide::PC);
        EXPECT_FALSE(world_.window().drag().drop(ActiveSide::Controller));
        wxCloseEvent close(wxEVT_CLOSE_WINDOW);
        close.SetEventObject(&world_.window());
        close.SetCanVeto(true);
        world_.window().HandleWindowEvent(close);
        EXPECT_TRUE(close.GetVeto());
    }

    int times = 0;

  private:
    static std::vector<wxToolBarToolBase*> toolsOf(wxToolBar& bar) {
        std::vector<wxToolBarToolBase*> tools;
        for (std::size_t position = 0; position < bar.GetToolsCount(); ++position)
            tools.push_back(const_cast<wxToolBarToolBase*>(bar.GetToolByPos(int(position))));
        return tools;
    }
    static void command(wxWindow& window, const wxEventTypeTag<wxCommandEvent>& type, int id) {
        wxCommandEvent event(type, id);
        event.SetEventObject(&window);
        event.SetInt(1);
        window.HandleWindowEvent(event);
    }
    static void key(wxWindow& window, const wxEventTypeTag<wxKeyEvent>& type, int code,
                    bool control = false) {
        wxKeyEvent event(type);
        event.m_keyCode = code;
        event.SetControlDown(control);
        event.SetEventObject(&window);
        window.HandleWindowEvent(event);
    }
    static void press(wxWindow& window) {
        for (const auto& type : {wxEVT_LEFT_DOWN, wxEVT_LEFT_DCLICK, wxEVT_RIGHT_DOWN}) {
            wxMouseEvent event(type);
            event.SetEventObject(&window);
            window.HandleWindowEvent(event);
        }
    }
    static void listEvent(wxListView& list, const wxEventTypeTag<wxListEvent>& type) {
        wxListEvent event(type, list.GetId());
        event.SetEventObject(&list);
        event.m_itemIndex = 0;
        event.m_col = 1;
        list.HandleWindowEvent(event);
    }
    static void actOn(wxListView& list) {
        key(list, wxEVT_KEY_DOWN, WXK_DELETE);
        key(list, wxEVT_KEY_DOWN, WXK_BACK);
        key(list, wxEVT_KEY_DOWN, 'A', true);
        for (const auto& type :
             {wxEVT_LIST_ITEM_ACTIVATED, wxEVT_LIST_COL_CLICK, wxEVT_LIST_BEGIN_DRAG})
            listEvent(list, type);
        press(list);
        wxContextMenuEvent menu(wxEVT_CONTEXT_MENU, list.GetId());
        menu.SetEventObject(&list);
        list.HandleWindowEvent(menu);
    }

    ProgramWorld& world_;
};

TEST_F(CompositionTest, NothingThatTheOperatorDoesDuringATransferIsBegun) {
    for (const char* name : {"A", "B", "C"})
        world.pcJob(name);
    world.robotJob("OLD");
    world.script("1=BscDownLoad 1+ slow 20");
    world.start(true);
    ProgramWorld::choose(pc(), {0, 1, 2});
    EverythingAtOnce everything(world);
    // Runs at the first yield of the transfer; a dialog that opened would fail the test.
    wxTheApp->CallAfter([&] { everything(); });
    copy();
    EXPECT_EQ(everything.times, 1);
    EXPECT_TRUE(onRobot("A.JBI") && onRobot("B.JBI") && onRobot("C.JBI") && onRobot("OLD.JBI"));
    EXPECT_TRUE(onPC("A.JBI") && onPC("B.JBI") && onPC("C.JBI"));
    EXPECT_EQ(names(pc()).size(), 3u);
    EXPECT_EQ(pc().view(), ListView::Details);
    EXPECT_EQ(controller().view(), ListView::List);
    EXPECT_TRUE(world.controls().pcHighlight->IsShown());
    EXPECT_TRUE(world.window().GetTitle().Contains("BSC")) << world.window().GetTitle();
    EXPECT_FALSE(onPC("OLD.JBI"));
    EXPECT_FALSE(world.controls().trvFolderList->IsShown());
}

TEST_F(CompositionTest, TheSameIsTakenWhenNothingRuns) {
    world.pcJob("A");
    world.start(true);
    ProgramWorld::choose(pc(), {0});
    world.menu("mnuDisp(0)");
    EXPECT_EQ(pc().view(), ListView::LargeIcons);
    world.menu("mnuModeHiSpeed");
    EXPECT_TRUE(world.window().GetTitle().Contains("Hispeed Link"));
    wxCommandEvent press(wxEVT_TOOL, world.controls().tlbMain->GetToolByPos(3)->GetId());
    press.SetEventObject(world.controls().tlbMain);
    world.controls().tlbMain->HandleWindowEvent(press);
    EXPECT_EQ(pc().selectedRows().size(), 1u);
    wxListEvent header(wxEVT_LIST_COL_CLICK, world.pcList().GetId());
    header.SetEventObject(&world.pcList());
    header.m_col = 2;
    world.menu("mnuDisp(3)");
    world.pcList().HandleWindowEvent(header);
    EXPECT_TRUE(world.window().menus().find("mnuSort(2)")->IsChecked());
}

TEST_F(CompositionTest, EveryTransferCommandMovesTheBytesItSays) {
    for (const char* name : {"A", "B", "C"})
        world.pcJob(name);
    for (const char* name : {"X", "Y", "Z"})
        world.robotJob(name);
    world.start(true);
    ProgramWorld::choose(pc(), {0});
    copy();
    EXPECT_EQ(world.folder.read("robot/A.JBI"), ProgramWorld::job("A"));
    EXPECT_TRUE(onPC("A.JBI"));

    ProgramWorld::choose(pc(), {1});
    world.menu("mnuFile(1)");
    EXPECT_EQ(world.folder.read("robot/B.JBI"), ProgramWorld::job("B"));
    EXPECT_FALSE(onPC("B.JBI"));
    EXPECT_EQ(names(pc()), (std::vector<std::string>{"A.JBI", "C.JBI"}));

    // A, B, X, Y, Z and the data files of the table.
    ProgramWorld::choose(controller(), {2});
    copy();
    EXPECT_EQ(world.folder.read("jobs/X.JBI"), ProgramWorld::job("X"));
    EXPECT_TRUE(onRobot("X.JBI"));

    ProgramWorld::choose(controller(), {3});
    world.menu("mnuFile(1)");
    EXPECT_EQ(world.folder.read("jobs/Y.JBI"), ProgramWorld::job("Y"));
    EXPECT_FALSE(onRobot("Y.JBI"));

    ProgramWorld::choose(controller(), {0});
    world.modal.act([](wxDialog& question) { click(question, "cmdYesNo0"); });
    world.menu("mnuFile(2)");
    EXPECT_FALSE(onRobot("A.JBI"));
    EXPECT_TRUE(onPC("A.JBI"));

    ProgramWorld::choose(pc(), {0});
    world.modal.act([](wxDialog& question) { click(question, "cmdYesNo0"); });
    world.menu("mnuFile(2)");
    EXPECT_FALSE(onPC("A.JBI"));
    EXPECT_TRUE(onPC("C.JBI"));
}

TEST_F(CompositionTest, ADropFromOnePaneOnTheOtherCopiesAndOnItselfDoesNothing) {
    world.pcJob("A");
    world.robotJob("X");
    world.start(true);
    ProgramWorld::choose(pc(), {0});
    auto& drag = world.window().drag();
    EXPECT_FALSE(drag.drop(ActiveSide::Controller)) << "no drag has begun here";
    drag.whileDragging(ActiveSide::PC, [&] {
        EXPECT_FALSE(drag.accepts(ActiveSide::PC));
        EXPECT_FALSE(drag.drop(ActiveSide::PC));
        EXPECT_TRUE(drag.drop(ActiveSide::Controller));
        EXPECT_FALSE(onRobot("A.JBI")) << "the work waits until the drop is answered";
    });
    EXPECT_TRUE(waitFor([&] { return onRobot("A.JBI"); }));

    ProgramWorld::choose(controller(), {1}); // "A.JBI" is the first
    drag.whileDragging(ActiveSide::Controller, [&] { EXPECT_TRUE(drag.drop(ActiveSide::PC)); });
    EXPECT_TRUE(waitFor([&] { return onPC("X.JBI"); }));
}

TEST_F(CompositionTest, ArrowKeysInTheClosedRobotBoxConnectToNothing) {
    world.settings("TransMode=16\r\n");
    world.robotJob("X");
    world.folder.write("other/Y.JBI", ProgramWorld::job("Y"));
    world.start(true);
    EXPECT_EQ(names(controller()).front(), "X.JBI");
    auto& box = *world.controls().cmbRbtName;
    box.SetFocus();
    ASSERT_TRUE(waitFor([&] { return wxWindow::FindFocus() == &box; }));
    pressKey(WXK_DOWN);
    runEvents();
    EXPECT_EQ(box.GetSelection(), 0);
    EXPECT_EQ(names(controller()).front(), "X.JBI");
    pressKey(WXK_DOWN); // in the list that is open now
    pressKey(WXK_RETURN);
    EXPECT_TRUE(waitFor([&] { return box.GetSelection() == 1; }));
    runEvents();
    EXPECT_EQ(names(controller()).front(), "Y.JBI");
    EXPECT_EQ(world.controls().lblIPAddr2->GetLabel(), "10.0.0.2");
}

} // namespace
} // namespace vantrel::tests
