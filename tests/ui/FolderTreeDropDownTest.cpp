#include "ui/FolderTreeDropDown.h"

#include "ProgramWorld.h"
#include "ui/PathDisplay.h"

#include <gmock/gmock.h>
#include <wx/bmpbuttn.h>
#include <wx/msgdlg.h>
#include <wx/statusbr.h>
#include <wx/toolbar.h>

namespace vantrel::tests {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

/// The whole program in the folder "jobs", which has the sub-folders "Alpha" and "beta".
class FolderTreeDropDownTest : public testing::Test {
  protected:
    FolderTreeDropDownTest() {
        world.pcJob("A");
        world.folder.write("jobs/Alpha/B.JBI", ProgramWorld::job("B"));
        world.folder.makeFolder("jobs/Alpha/deep");
        world.folder.makeFolder("jobs/beta");
        world.start(false);
    }

    FolderTreeDropDown& tree() { return *world.controls().trvFolderList; }
    wxWindow& button() { return *world.controls().Command1; }
    bool hasFocus(wxWindow& window) {
        return waitFor([&] { return wxWindow::FindFocus() == &window; });
    }

    void drop() { world.dropFolderTree(); }
    std::vector<std::string> childrenOf(const wxTreeItemId& item) {
        std::vector<std::string> texts;
        wxTreeItemIdValue cookie = nullptr;
        for (auto child = tree().GetFirstChild(item, cookie); child.IsOk();
             child = tree().GetNextChild(item, cookie))
            texts.push_back(tree().GetItemText(child).utf8_string());
        return texts;
    }
    wxTreeItemId child(const wxTreeItemId& item, const std::string& text) {
        wxTreeItemIdValue cookie = nullptr;
        for (auto found = tree().GetFirstChild(item, cookie); found.IsOk();
             found = tree().GetNextChild(item, cookie))
            if (tree().GetItemText(found).utf8_string() == text)
                return found;
        throw std::runtime_error("no such node: " + text);
    }
    std::string selected() { return tree().GetItemText(tree().GetSelection()).utf8_string(); }
    std::vector<std::string> pcNames() { return ProgramWorld::namesIn(world.pcList()); }
    std::string pathShown() { return world.controls().trvFolderName->nodeText().utf8_string(); }

    void mouse(const wxEventTypeTag<wxMouseEvent>& type, wxPoint at) {
        wxMouseEvent event(type);
        event.SetPosition(at);
        event.SetEventObject(&tree());
        tree().HandleWindowEvent(event);
    }
    /// A click with the mouse on the node's text.
    void clickOn(const wxTreeItemId& item) {
        const auto at = centreOf(item);
        mouse(wxEVT_LEFT_DOWN, at);
        mouse(wxEVT_LEFT_UP, at);
        runEvents();
    }
    wxPoint centreOf(const wxTreeItemId& item) {
        wxRect text;
        EXPECT_TRUE(tree().GetBoundingRect(item, text, true));
        return text.GetPosition() + text.GetSize() / 2;
    }

    ProgramWorld world;
};

TEST_F(FolderTreeDropDownTest, IsHiddenUntilItsButtonIsPressed) {
    EXPECT_FALSE(tree().IsShown());
    drop();
    EXPECT_TRUE(hasFocus(tree()));
    EXPECT_EQ(tree().GetName(), "trvFolderList");
    EXPECT_FALSE(button().GetToolTipText().empty());
}

TEST_F(FolderTreeDropDownTest, OpensAndChoosesWithTheMouse) {
    wxUIActionSimulator mouse;
    mouse.MouseMove(button().ClientToScreen(wxPoint(8, 8)));
    mouse.MouseClick();
    ASSERT_TRUE(waitFor([this] { return tree().IsShownOnScreen(); }));
    runEvents();
    ASSERT_TRUE(tree().IsShown());
    ASSERT_TRUE(hasFocus(tree()));
    mouse.MouseMove(tree().ClientToScreen(centreOf(child(tree().GetSelection(), "Alpha"))));
    mouse.MouseClick();
    EXPECT_TRUE(waitFor([this] { return pathShown() == "Alpha"; }));
    EXPECT_FALSE(tree().IsShown());
    drop();
    mouse.MouseMove(world.controllerList().ClientToScreen(wxPoint(20, 60)));
    mouse.MouseClick();
    EXPECT_TRUE(waitFor([this] { return !tree().IsShown(); }));
    EXPECT_TRUE(hasFocus(world.controllerList()));
}

TEST_F(FolderTreeDropDownTest, ShowsTheWholeWayDownToThePCFolder) {
    drop();
    EXPECT_EQ(selected(), "jobs");
    EXPECT_THAT(childrenOf(tree().GetSelection()), ElementsAre("Alpha", "beta"));
    wxRect visible;
    EXPECT_TRUE(tree().GetBoundingRect(tree().GetSelection(), visible, true));
    EXPECT_TRUE(wxRect(tree().GetClientSize()).Contains(visible));
    for (auto above = tree().GetItemParent(tree().GetSelection()); above != tree().GetRootItem();
         above = tree().GetItemParent(above))
        EXPECT_TRUE(tree().IsExpanded(above)) << tree().GetItemText(above);
    const auto drive = std::filesystem::path(world.folder.path()).root_name().string();
    EXPECT_THAT(childrenOf(tree().GetRootItem()), Contains(drive.empty() ? "/" : drive));
}

TEST_F(FolderTreeDropDownTest, AClickOnANodeListsItsFolderAndHidesTheTree) {
    drop();
    clickOn(child(tree().GetSelection(), "Alpha"));
    EXPECT_FALSE(tree().IsShown());
    EXPECT_THAT(pcNames(), ElementsAre("deep", "B.JBI"));
    EXPECT_EQ(pathShown(), "Alpha");
    EXPECT_EQ(world.window().GetStatusBar()->GetStatusText(0), "PC: 2 items");
    EXPECT_THAT(childrenOf(tree().GetRootItem()), ElementsAre("Alpha"));
    EXPECT_TRUE(hasFocus(world.pcList()));
}

TEST_F(FolderTreeDropDownTest, APressThatIsDrawnOffItsNodeChoosesNothing) {
    drop();
    const auto jobs = tree().GetSelection();
    mouse(wxEVT_LEFT_DOWN, centreOf(child(jobs, "Alpha")));
    mouse(wxEVT_LEFT_UP, centreOf(child(jobs, "beta")));
    EXPECT_TRUE(tree().IsShown());
    EXPECT_EQ(pathShown(), "jobs");
}

TEST_F(FolderTreeDropDownTest, ArrowKeysMoveAndEnterChooses) {
    drop();
    ASSERT_TRUE(hasFocus(tree()));
    pressKey(WXK_DOWN);
    ASSERT_TRUE(waitFor([this] { return selected() == "Alpha"; }));
    EXPECT_EQ(pathShown(), "jobs");
    EXPECT_TRUE(tree().IsShown());
    pressKey(WXK_RETURN);
    EXPECT_TRUE(waitFor([this] { return pathShown() == "Alpha"; }));
    EXPECT_FALSE(tree().IsShown());
}

TEST_F(FolderTreeDropDownTest, OpeningANodeReadsItsFoldersAndChoosesNothing) {
    drop();
    const auto alpha = child(tree().GetSelection(), "Alpha");
    EXPECT_THAT(childrenOf(alpha), IsEmpty());
    EXPECT_TRUE(tree().ItemHasChildren(alpha));
    tree().Expand(alpha);
    EXPECT_THAT(childrenOf(alpha), ElementsAre("deep"));
    tree().Collapse(alpha);
    world.folder.makeFolder("jobs/Alpha/new");
    tree().Expand(alpha);
    EXPECT_THAT(childrenOf(alpha), ElementsAre("deep")) << "until the tree is built anew";
    EXPECT_EQ(pathShown(), "jobs");
    EXPECT_TRUE(tree().IsShown());
}

TEST_F(FolderTreeDropDownTest, AnExpanderOpensAndDoesNotChoose) {
    drop();
    const auto alpha = child(tree().GetSelection(), "Alpha");
    auto at = centreOf(alpha);
    int where = 0;
    do {
        --at.x;
        tree().HitTest(at, where);
    } while (at.x > 0 && (where & wxTREE_HITTEST_ONITEMBUTTON) == 0);
    ASSERT_GT(at.x, 0);
    wxUIActionSimulator pointer;
    pointer.MouseMove(tree().ClientToScreen(at));
    pointer.MouseClick();
    EXPECT_TRUE(waitFor([&] { return tree().IsExpanded(alpha); }));
    EXPECT_TRUE(tree().IsShown());
    EXPECT_EQ(pathShown(), "jobs");
}

TEST_F(FolderTreeDropDownTest, AFolderWithoutFoldersLosesItsExpander) {
    drop();
    const auto beta = child(tree().GetSelection(), "beta");
    tree().Expand(beta);
    EXPECT_FALSE(tree().ItemHasChildren(beta));
    EXPECT_FALSE(tree().IsExpanded(beta));
}

TEST_F(FolderTreeDropDownTest, EscHidesItAndGivesTheFocusToItsButton) {
    drop();
    ASSERT_TRUE(hasFocus(tree()));
    pressKey(WXK_ESCAPE);
    EXPECT_TRUE(waitFor([this] { return !tree().IsShown(); }));
    EXPECT_TRUE(hasFocus(button()));
    EXPECT_EQ(pathShown(), "jobs");
}

TEST_F(FolderTreeDropDownTest, KeysOfItsButtonShowIt) {
    for (const auto& [key, modifiers] :
         {std::pair(int(WXK_SPACE), wxMOD_NONE), std::pair(int(WXK_RETURN), wxMOD_NONE),
          std::pair(int(WXK_F4), wxMOD_NONE), std::pair(int(WXK_DOWN), wxMOD_ALT)}) {
        button().SetFocus();
        ASSERT_TRUE(hasFocus(button()));
        pressKey(key, modifiers);
        EXPECT_TRUE(waitFor([this] { return tree().IsShown(); })) << key;
        ASSERT_TRUE(hasFocus(tree()));
        pressKey(WXK_ESCAPE);
        EXPECT_TRUE(waitFor([this] { return !tree().IsShown(); })) << key;
    }
}

TEST_F(FolderTreeDropDownTest, ASecondPressOfItsButtonHidesIt) {
    drop();
    click(world.window(), "Command1");
    runEvents();
    EXPECT_FALSE(tree().IsShown());
}

TEST_F(FolderTreeDropDownTest, ThePressOnTheBareFormHidesIt) {
    drop();
    wxMouseEvent press(wxEVT_LEFT_DOWN);
    press.SetEventObject(world.controls().surface);
    world.controls().surface->HandleWindowEvent(press);
    EXPECT_FALSE(tree().IsShown());
}

TEST_F(FolderTreeDropDownTest, AnotherControlWithTheFocusHidesIt) {
    drop();
    ASSERT_TRUE(hasFocus(tree()));
    world.controls().lsvCtrl->focus();
    EXPECT_TRUE(waitFor([this] { return !tree().IsShown(); }));
    EXPECT_TRUE(hasFocus(world.controllerList()));
}

TEST_F(FolderTreeDropDownTest, ACommandHidesIt) {
    drop();
    world.menu("mnuDisp(0)");
    EXPECT_FALSE(tree().IsShown());
}

TEST_F(FolderTreeDropDownTest, AFolderThatIsGoneIsNamedAndTheTreeStays) {
    drop();
    const auto beta = child(tree().GetSelection(), "beta");
    std::filesystem::remove(world.folder.path("jobs/beta"));
    std::string told;
    world.modal.act([&](wxDialog& box) {
        EXPECT_TRUE(waitFor([this] { return !world.window().IsActive(); }));
        told = dynamic_cast<wxMessageDialogBase&>(box).GetMessage().utf8_string();
        answer(box, wxID_OK);
    });
    clickOn(beta);
    EXPECT_THAT(told, testing::HasSubstr(world.folder.path("jobs/beta")));
    EXPECT_TRUE(tree().IsShown());
    EXPECT_TRUE(hasFocus(tree()));
    EXPECT_EQ(pathShown(), "jobs");
    EXPECT_THAT(pcNames(), Contains("A.JBI"));
}

TEST_F(FolderTreeDropDownTest, IsRefusedWhileAnOperationRuns) {
    world.window().setLocked(true);
    wxCommandEvent press(wxEVT_BUTTON, button().GetId());
    press.SetEventObject(&button());
    button().HandleWindowEvent(press);
    EXPECT_FALSE(tree().IsShown());
    world.window().setLocked(false);
    drop();
    world.window().setLocked(true);
    EXPECT_FALSE(tree().IsShown());
    world.window().setLocked(false);
}

TEST_F(FolderTreeDropDownTest, UpAndDoubleClickShowTheirFolderInTheTree) {
    world.choose(*world.controls().lsvPC, {0});
    world.controls().lsvPC->onOpen(0);
    runEvents();
    EXPECT_THAT(childrenOf(tree().GetRootItem()), ElementsAre(world.folder.path("jobs/Alpha")));
    world.controls().lsvPC->onOpen(0);
    runEvents();
    drop();
    EXPECT_EQ(selected(), "deep");
}

} // namespace
} // namespace vantrel::tests
