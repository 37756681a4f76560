#include "DialogTest.h"
#include "ProgramWorld.h"
#include "ui/FileViewer.h"

#include <wx/bmpbuttn.h>
#include <wx/menu.h>

namespace vantrel::tests {
namespace {

/// The whole program with nothing but a keyboard.
class KeyboardInMainWindowTest : public testing::Test, public ProgramWorld {
  protected:
    KeyboardInMainWindowTest() {
        settings("TransMode=16\r\n");
        pcJob("A");
        pcJob("B");
        robotJob("X");
        start(true);
        controls().lsvPC->focus();
        EXPECT_TRUE(waitFor([this] { return pcList().HasFocus() && window().IsActive(); }));
    }

    /// The name of the control that the keyboard works in; its own parts have none.
    std::string focused() {
        const auto* part = keyboardIn(window());
        while (part && part->GetName() == wxPanelNameStr)
            part = part->GetParent();
        return part ? part->GetName().utf8_string() : std::string();
    }
};

TEST_F(KeyboardInMainWindowTest, ShiftAndTabGoThroughTheWholeWindow) {
    std::vector<std::string> way{focused()};
    do {
        pressKey(WXK_TAB, wxMOD_SHIFT);
        ASSERT_TRUE(waitFor([&] { return focused() != way.back(); })) << way.back();
        way.push_back(focused());
    } while (way.back() != way.front() && way.size() < 20);
    EXPECT_EQ(way,
              (std::vector<std::string>{"lsvPC", "Command1", "trvFolderName", "cmbRbtName",
                                        "cmbCtrlFileType", "lsvCtrl", "cmbPCFileType", "lsvPC"}));
}

TEST_F(KeyboardInMainWindowTest, TabAndF6GoFromListToListWithTheActivePane) {
    const auto expectIn = [this](const char* list, ActiveSide side) {
        EXPECT_TRUE(waitFor([&] { return focused() == list; })) << focused();
        EXPECT_EQ(controls().pcHighlight->IsShown(), side == ActiveSide::PC);
    };
    for (const int key : {int(WXK_TAB), int(WXK_F6)}) {
        pressKey(key);
        expectIn("lsvCtrl", ActiveSide::Controller);
        pressKey(key);
        expectIn("lsvPC", ActiveSide::PC);
    }
}

/// Outside the lists it goes on through the window, as everywhere.
TEST_F(KeyboardInMainWindowTest, TabLeavesTheOtherControlsInTheirOrder) {
    focus(*controls().Command1);
    pressKey(WXK_TAB);
    EXPECT_TRUE(waitFor([this] { return focused() == "lsvPC"; }));
    menu("mnuFile(5)"); // the viewer covers the other pane
    focus(pcList());
    pressKey(WXK_TAB);
    EXPECT_TRUE(waitFor([this] { return focused() == "cmbPCFileType"; }));
}

TEST_F(KeyboardInMainWindowTest, F3ShowsTheJobOfThePaneThatIsActive) {
    pressKey(WXK_F3);
    EXPECT_TRUE(waitFor([this] { return controls().rtxFileDisp->IsShownOnScreen(); }));
    EXPECT_EQ(controls().lblFileName->GetLabelText(), "A.JBI");
    pressKey(WXK_F3);
    EXPECT_TRUE(waitFor([this] { return !controls().rtxFileDisp->IsShownOnScreen(); }));
    choose(*controls().lsvCtrl, {0});
    pressKey(WXK_F3);
    EXPECT_TRUE(waitFor([this] { return controls().rtxFileDisp->IsShownOnScreen(); }));
    EXPECT_EQ(controls().lblFileName->GetLabelText(), "X.JBI");
    EXPECT_TRUE(controls().pcHighlight->IsShown());
    EXPECT_FALSE(folder.has("jobs/X.JBI")) << "no file of the PC comes of it";
}

TEST_F(KeyboardInMainWindowTest, F5ReadsTheActivePaneAnewFromEverywhere) {
    menu("mnuFile(5)");
    int files = 2;
    const auto expectRefresh = [&](wxWindow& control) {
        pcJob("NEW" + std::to_string(++files));
        focus(control);
        pressKey(WXK_F5);
        EXPECT_TRUE(waitFor([&] { return pcList().GetItemCount() == files; })) << control.GetName();
    };
    expectRefresh(pcList());
    expectRefresh(*controls().rtxFileDisp);
    expectRefresh(*controls().cmbPCFileType);
    expectRefresh(*controls().Command1);
    ASSERT_NO_FATAL_FAILURE(dropFolderTree());
    expectRefresh(*controls().trvFolderList);
}

TEST_F(KeyboardInMainWindowTest, AnOperationThatHasBegunSinceAKeyWasPressedIsNotEntered) {
    pcJob("NEW");
    const int items = pcList().GetItemCount();
    wxKeyEvent key(wxEVT_CHAR_HOOK);
    key.m_keyCode = WXK_F5;
    key.SetEventObject(&window());
    window().HandleWindowEvent(key);
    window().setLocked(true);
    wxTheApp->ProcessPendingEvents();
    EXPECT_EQ(pcList().GetItemCount(), items);
    window().setLocked(false);
}

TEST_F(KeyboardInMainWindowTest, KeysOfTheListsDoNothingElsewhere) {
    for (wxWindow* control : {static_cast<wxWindow*>(controls().cmbPCFileType),
                              static_cast<wxWindow*>(controls().Command1)}) {
        focus(*control);
        pressKey(WXK_DELETE);
        pressKey('A', wxMOD_CONTROL);
        pressKey(WXK_BACK);
        runEvents();
    }
    EXPECT_TRUE(folder.has("jobs/A.JBI"));
    EXPECT_EQ(controls().lsvPC->selectedRows().size(), 1u);
    EXPECT_EQ(pcList().GetItemText(0), "A.JBI");
}

TEST_F(KeyboardInMainWindowTest, TheListsHaveTheirKeys) {
    pressKey('A', wxMOD_CONTROL);
    EXPECT_TRUE(waitFor([this] { return controls().lsvPC->selectedRows().size() == 2; }));
    pressKey(WXK_BACK);
    EXPECT_TRUE(waitFor([this] { return pcList().FindItem(-1, "jobs") >= 0; }));
    choose(*controls().lsvPC, {std::size_t(pcList().FindItem(-1, "jobs"))});
    pressKey(WXK_RETURN);
    EXPECT_TRUE(waitFor([this] { return pcList().FindItem(-1, "A.JBI") == 0; }));
    modal.act([](wxDialog& question) { click(question, "cmdYesNo0"); });
    pressKey(WXK_DELETE);
    EXPECT_TRUE(waitFor([this] { return !folder.has("jobs/A.JBI"); }));
}

TEST_F(KeyboardInMainWindowTest, EveryMenuOpensByItsKey) {
    const auto& bar = *window().GetMenuBar();
    std::string keys;
    // Those that are commands are there as well.
    for (const std::string& label : menuBarEntries(window())) {
        const auto mark = label.find('&');
        ASSERT_NE(mark, std::string::npos) << label;
        keys += label.at(mark + 1);
    }
    EXPECT_EQ(keys.size(), bar.GetMenuCount() + 1);
    std::sort(keys.begin(), keys.end());
    EXPECT_EQ(std::adjacent_find(keys.begin(), keys.end()), keys.end()) << keys;
}

} // namespace
} // namespace vantrel::tests
