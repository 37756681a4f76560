#include "ProgramWorld.h"
#include "ui/CommandToolBar.h"
#include "ui/FileViewer.h"
#include "ui/ViewerSearch.h"

#include <wx/menu.h>
#include <wx/statbox.h>

namespace vantrel::tests {
namespace {

/// The program with a folder, a job, a data file and a plain file in its PC pane, in this order.
class ViewerInMainWindowTest : public testing::Test, public ProgramWorld {
  protected:
    static constexpr std::size_t folderRow = 0, jobRow = 1, dataRow = 2, plainRow = 3;

    void startWithFiles(const std::string& language = "English") {
        folder.makeFolder("jobs/JBI");
        pcJob("A");
        folder.write("jobs/B.DAT", "1,2,3\r\n");
        folder.write("jobs/C.TXT", "plain");
        settings("TransMode=1\r\n", language);
        start(true);
        auto& filter = *controls().cmbPCFileType;
        pick(filter, int(filter.GetCount()) - 1);
        choose(*controls().lsvPC, {jobRow});
    }
    void press() {
        controls().tlbMain->press("FileDisp");
        runEvents();
    }
    bool isViewerShown() { return controls().fraFile.panel->IsShown(); }
    std::string shown() { return controls().rtxFileDisp->GetValue().utf8_string(); }
    const wxMenuItem& entry(int index) {
        return *window().menus().find("mnuFile(" + std::to_string(index) + ")");
    }
};

TEST_F(ViewerInMainWindowTest, StandsInThePlaceOfTheControllerPane) {
    startWithFiles();
    EXPECT_FALSE(isViewerShown());
    press();
    ASSERT_TRUE(isViewerShown());
    EXPECT_FALSE(controls().fraCtrl.panel->IsShown());
    // The window manager may still be at work on the window's size, which both follow.
    const auto place = [&] { return controls().fraCtrl.panel->GetRect(); };
    EXPECT_EQ(controls().fraFile.panel->GetRect(), place());
    // Where it is said to be is not always where the system shows it.
    const auto onScreen = [](wxWindow& panel) { return panel.ClientToScreen(wxPoint(0, 0)); };
    auto& pc = *controls().fraPC.panel;
    EXPECT_TRUE(waitFor([&] {
        return onScreen(*controls().fraFile.panel) - onScreen(pc) ==
               place().GetPosition() - pc.GetPosition();
    }));
    EXPECT_EQ(controls().rtxFileDisp->GetRect().x, controls().lsvCtrl->GetRect().x);
    EXPECT_EQ(shown(), "NOP\nEND\n");
    EXPECT_EQ(controls().lblFileName->GetLabelText(), "A.JBI");
    EXPECT_TRUE(controls().tlbMain->isPressed("FileDisp"));
    EXPECT_TRUE(controls().tlbPC->isEnabled("Print"));
    EXPECT_TRUE(entry(6).IsEnabled());
}

TEST_F(ViewerInMainWindowTest, ASecondPressReturnsToTheControllerPane) {
    startWithFiles();
    press();
    std::filesystem::remove(folder.path("jobs/A.JBI"));
    menu("mnuFile(5)");
    EXPECT_FALSE(isViewerShown());
    EXPECT_TRUE(controls().fraCtrl.panel->IsShown());
    EXPECT_FALSE(controls().tlbMain->isPressed("FileDisp"));
    EXPECT_FALSE(controls().tlbPC->isEnabled("Print"));
    EXPECT_FALSE(entry(6).IsEnabled());
    EXPECT_TRUE(entry(5).IsEnabled());
    EXPECT_EQ(shown(), "");
}

TEST_F(ViewerInMainWindowTest, AFolderAndAPlainFileDoNotOpenIt) {
    startWithFiles();
    for (const auto row : {folderRow, plainRow}) {
        choose(*controls().lsvPC, {row});
        press();
        EXPECT_FALSE(isViewerShown()) << row;
        EXPECT_FALSE(controls().tlbMain->isPressed("FileDisp")) << row;
    }
}

TEST_F(ViewerInMainWindowTest, TheItemWithTheFocusIsShown) {
    startWithFiles();
    choose(*controls().lsvPC, {jobRow, dataRow});
    pcList().SetItemState(long(dataRow), wxLIST_STATE_FOCUSED, wxLIST_STATE_FOCUSED);
    press();
    EXPECT_EQ(controls().lblFileName->GetLabelText(), "B.DAT");
}

TEST_F(ViewerInMainWindowTest, AFileThatIsGoneIsToldAndTheControllerPaneStays) {
    startWithFiles();
    std::filesystem::remove(folder.path("jobs/A.JBI"));
    modal.answer([](wxDialog& box) {
        const auto& text = dynamic_cast<wxMessageDialogBase&>(box);
        EXPECT_TRUE(text.GetMessage().Contains("[A.JBI]")) << text.GetMessage();
        return wxID_OK;
    });
    press();
    EXPECT_FALSE(isViewerShown());
    EXPECT_FALSE(controls().tlbMain->isPressed("FileDisp"));
    EXPECT_FALSE(wxIsBusy());
}

TEST_F(ViewerInMainWindowTest, TypingALetterChangesNothingAndArrowsMoveTheCaret) {
    startWithFiles();
    press();
    auto& text = *controls().rtxFileDisp;
    text.SetFocus();
    ASSERT_TRUE(waitFor([&] { return text.HasFocus(); }));
    pressKey('X');
    pressKey(WXK_DOWN);
    EXPECT_TRUE(waitFor([&] { return text.GetInsertionPoint() == 4; }));
    EXPECT_EQ(shown(), "NOP\nEND\n");
}

TEST_F(ViewerInMainWindowTest, AFocusInAPaneThatIsHiddenGoesToThePCList) {
    robotJob("Z");
    startWithFiles();
    choose(*controls().lsvCtrl, {0});
    menu("mnuFile(5)");
    ASSERT_TRUE(isViewerShown());
    EXPECT_TRUE(waitFor([this] { return pcList().HasFocus(); }));
    controls().rtxFileDisp->SetFocus();
    waitFor([this] { return controls().rtxFileDisp->HasFocus(); });
    press();
    EXPECT_TRUE(waitFor([this] { return pcList().HasFocus(); }));
    EXPECT_TRUE(controls().pcHighlight->IsShown());
}

TEST_F(ViewerInMainWindowTest, ItIsClosedToTheOperatorWhileAnOperationRuns) {
    startWithFiles();
    press();
    window().setLocked(true);
    EXPECT_FALSE(controls().fraFile.panel->IsEnabled());
    menu("mnuFile(5)");
    EXPECT_TRUE(isViewerShown());
    window().setLocked(false);
    EXPECT_TRUE(controls().fraFile.panel->IsEnabled());
}

TEST_F(ViewerInMainWindowTest, PrintingIsAskedForFirst) {
    startWithFiles();
    press();
    modal.answer([](wxDialog& box) {
        const auto& text = dynamic_cast<wxMessageDialogBase&>(box);
        EXPECT_EQ(text.GetMessage(), "Print the displayed file? [A.JBI]");
        return wxID_NO;
    });
    controls().tlbPC->press("Print");
    runEvents();
    EXPECT_TRUE(isViewerShown());
}

TEST_F(ViewerInMainWindowTest, TheFontIsFixedPitchAndOfTheCaptionsSize) {
    startWithFiles();
    const auto font = controls().rtxFileDisp->GetFont();
    EXPECT_TRUE(font.IsFixedWidth());
    EXPECT_EQ(font.GetPointSize(), controls().lblFileName->GetFont().GetPointSize());
}

TEST_F(ViewerInMainWindowTest, AGrownWindowGrowsIt) {
    startWithFiles();
    press();
    const auto before = controls().rtxFileDisp->GetSize();
    const auto size = window().GetSize();
    window().SetSize(size.x + 100, size.y + 80);
    ASSERT_TRUE(waitFor([&] { return controls().rtxFileDisp->GetSize().y == before.y + 80; }));
    EXPECT_EQ(controls().rtxFileDisp->GetSize().x, before.x + 50);
}

/// The viewer with two jobs' worth of lines, its keys pressed for real.
class ViewerKeysTest : public ViewerInMainWindowTest {
  protected:
    void openViewer(const std::string& lines = "NOP\r\nMOVL C1\r\nmovj C2\r\nEND\r\n") {
        startWithFiles();
        folder.write("jobs/A.JBI", lines);
        press();
        ASSERT_TRUE(isViewerShown());
        controls().lsvPC->focus();
        ASSERT_TRUE(waitFor([this] { return pcList().HasFocus() && window().IsActive(); }));
    }
    void openSearch() {
        pressKey('F', wxMOD_CONTROL);
        ASSERT_TRUE(waitFor([this] { return field().HasFocus(); }));
    }
    void openSearchFor(const std::string& text) {
        openSearch();
        field().SetValue(text);
    }
    wxTextCtrl& field() { return control<wxTextCtrl>(window(), "viewerSearchText"); }
    FileViewer& viewer() { return *controls().rtxFileDisp; }
    bool isSearchShown() { return control<wxWindow>(window(), "viewerSearch").IsShown(); }
    std::string note() { return labelOf(window(), "viewerSearchNote"); }
    bool isSelected(long begin, long end) {
        return waitFor([=, this] {
            long from = -1, to = -1;
            viewer().GetSelection(&from, &to);
            return from == begin && to == end;
        });
    }
};

TEST_F(ViewerKeysTest, EscClosesItAndTheListHasTheKeyboard) {
    openViewer();
    for (wxWindow* const from :
         {static_cast<wxWindow*>(&viewer()), static_cast<wxWindow*>(&pcList())}) {
        focus(*from);
        pressKey(WXK_ESCAPE);
        EXPECT_TRUE(waitFor([this] { return !isViewerShown() && pcList().HasFocus(); }));
        EXPECT_FALSE(controls().tlbMain->isPressed("FileDisp"));
        press();
    }
}

TEST_F(ViewerKeysTest, EscInAControlThatHasAUseForItLeavesItOpen) {
    openViewer();
    focus(*controls().cmbPCFileType);
    pressKey(WXK_ESCAPE);
    pressKey(WXK_TAB); // what was pressed before it has arrived too
    ASSERT_TRUE(waitFor([this] { return !controls().cmbPCFileType->HasFocus(); }));
    EXPECT_TRUE(isViewerShown());
    ASSERT_NO_FATAL_FAILURE(dropFolderTree());
    focus(*controls().trvFolderList);
    pressKey(WXK_ESCAPE);
    EXPECT_TRUE(waitFor([this] { return !controls().trvFolderList->IsShown(); }));
    EXPECT_TRUE(isViewerShown());
}

TEST_F(ViewerKeysTest, EscWithoutAViewerDoesNothing) {
    openViewer();
    press();
    focus(pcList());
    pressKey(WXK_ESCAPE);
    pressKey('F', wxMOD_CONTROL);
    pressKey(WXK_DOWN);
    EXPECT_TRUE(waitFor([this] { return controls().lsvPC->selectedRow() == dataRow; }));
    EXPECT_FALSE(isViewerShown());
    EXPECT_FALSE(isSearchShown());
}

TEST_F(ViewerKeysTest, TheSearchLineTakesItsRoomFromTheTextWhileItIsShown) {
    openViewer();
    EXPECT_FALSE(isSearchShown());
    const auto whole = viewer().GetRect();
    openSearch();
    EXPECT_LT(viewer().GetRect().GetBottom(), controls().viewerSearch->GetRect().y);
    EXPECT_EQ(controls().viewerSearch->GetRect().GetBottom(), whole.GetBottom());
    EXPECT_EQ(controls().viewerSearch->GetSize().x, whole.width);
    EXPECT_EQ(viewer().GetPosition(), whole.GetPosition());
    pressKey(WXK_ESCAPE);
    EXPECT_TRUE(waitFor([this] { return !isSearchShown() && viewer().HasFocus(); }));
    EXPECT_TRUE(isViewerShown());
    EXPECT_EQ(viewer().GetRect(), whole);
    pressKey(WXK_ESCAPE);
    EXPECT_TRUE(waitFor([this] { return !isViewerShown() && pcList().HasFocus(); }));
}

TEST_F(ViewerKeysTest, EnterGoesOnAndShiftEnterBack) {
    openViewer();
    openSearchFor("mov");
    pressKey(WXK_RETURN);
    EXPECT_TRUE(isSelected(4, 7));
    pressKey(WXK_RETURN);
    EXPECT_TRUE(isSelected(12, 15));
    EXPECT_EQ(note(), "");
    pressKey(WXK_RETURN);
    EXPECT_TRUE(isSelected(4, 7));
    EXPECT_EQ(note(), "Continued from the start");
    pressKey(WXK_RETURN, wxMOD_SHIFT);
    EXPECT_TRUE(isSelected(12, 15));
    EXPECT_EQ(note(), "Continued from the end");
    EXPECT_TRUE(field().HasFocus());
}

TEST_F(ViewerKeysTest, TheButtonsSearchToo) {
    openViewer();
    openSearchFor("C");
    const auto pressButton = [this](const std::string& name) {
        auto& button = control<wxButton>(window(), name);
        wxCommandEvent event(wxEVT_BUTTON, button.GetId());
        event.SetEventObject(&button);
        button.HandleWindowEvent(event);
    };
    pressButton("searchNext");
    EXPECT_TRUE(isSelected(9, 10));
    pressButton("searchNext");
    EXPECT_TRUE(isSelected(17, 18));
    pressButton("searchPrevious");
    EXPECT_TRUE(isSelected(9, 10));
}

TEST_F(ViewerKeysTest, WhatStandsNowhereIsSaidInPlaceAndTheSelectionStays) {
    openViewer();
    viewer().SetSelection(1, 3);
    openSearchFor("WAIT");
    pressKey(WXK_RETURN);
    EXPECT_TRUE(waitFor([this] { return note() == "Not found"; }));
    EXPECT_TRUE(isSelected(1, 3));
    field().SetValue("NOP");
    EXPECT_EQ(note(), "");
}

TEST_F(ViewerKeysTest, F3InTheTextSearchesOn) {
    openViewer();
    openSearchFor("c");
    pressKey(WXK_ESCAPE);
    ASSERT_TRUE(waitFor([this] { return viewer().HasFocus(); }));
    pressKey(WXK_F3);
    EXPECT_TRUE(isSelected(9, 10));
    EXPECT_TRUE(isSearchShown());
    EXPECT_TRUE(viewer().HasFocus());
    pressKey(WXK_F3);
    EXPECT_TRUE(isSelected(17, 18));
    pressKey(WXK_F3, wxMOD_SHIFT);
    EXPECT_TRUE(isSelected(9, 10));
}

TEST_F(ViewerKeysTest, F3BeforeAnySearchAsksForTheText) {
    openViewer();
    focus(viewer());
    pressKey(WXK_F3);
    EXPECT_TRUE(waitFor([this] { return field().HasFocus(); }));
}

TEST_F(ViewerKeysTest, WhatHasNotBeenAppendedYetIsFoundAndShownAsSoonAsItHas) {
    std::string lines;
    for (int line = 0; line < 20000; ++line)
        lines += "MOVL C" + std::to_string(100000 + line) + "\r\n";
    openViewer();
    press();
    folder.write("jobs/A.JBI", lines);
    controls().tlbMain->press("FileDisp");
    ASSERT_FALSE(viewer().isWhole());
    control<wxTextCtrl>(window(), "viewerSearchText").SetValue("c119990");
    controls().viewerSearch->search(SearchDirection::Next);
    EXPECT_TRUE(isSelected(19990 * 13 + 5, 19990 * 13 + 12));
    EXPECT_EQ(viewer().GetStringSelection(), "C119990");
    EXPECT_TRUE(waitFor([this] {
        const wxPoint place = viewer().PositionToCoords(19990 * 13 + 5);
        return place != wxDefaultPosition && wxRect(viewer().GetClientSize()).Contains(place);
    })) << "it is scrolled to";
}

TEST_F(ViewerKeysTest, AnotherFileIsOpenedWithoutTheSearchLine) {
    openViewer();
    openSearchFor("mov");
    press();
    choose(*controls().lsvPC, {dataRow});
    press();
    ASSERT_TRUE(isViewerShown());
    EXPECT_FALSE(isSearchShown());
    EXPECT_TRUE(isSelected(0, 0));
}

TEST_F(ViewerKeysTest, NoKeyClosesItWhileAnOperationRuns) {
    openViewer();
    focus(viewer());
    window().setLocked(true);
    for (const int key : {int(WXK_ESCAPE), int(WXK_F3)}) {
        wxKeyEvent event(wxEVT_CHAR_HOOK);
        event.m_keyCode = key;
        event.SetEventObject(&window());
        window().HandleWindowEvent(event);
    }
    EXPECT_TRUE(isViewerShown());
    EXPECT_FALSE(isSearchShown());
    window().setLocked(false);
}

class ViewerLooksTest : public ViewerInMainWindowTest,
                        public testing::WithParamInterface<const char*> {};
INSTANTIATE_TEST_SUITE_P(Languages, ViewerLooksTest, testing::Values("English", "Japanese"),
                         [](const auto& row) { return std::string(row.param); });

TEST_P(ViewerLooksTest, Finished) {
    startWithFiles(GetParam());
    // Before its first paint a window does not show its parts where they stand.
    bool painted = false;
    controls().fraPC.panel->Bind(wxEVT_PAINT, [&](wxPaintEvent& event) {
        painted = true;
        event.Skip();
    });
    controls().fraPC.panel->Refresh();
    EXPECT_TRUE(waitFor([&] { return painted; }));
    press();
    for (auto* label : {controls().lblFile, controls().lblFileName})
        EXPECT_LE(label->GetTextExtent(label->GetLabelText()).x, label->GetSize().x)
            << label->GetLabelText();
    EXPECT_FALSE(controls().fraFile.box->GetLabel().empty());
    for (auto* bar : {controls().tlbMain, controls().tlbPC})
        EXPECT_LE(bar->GetBestSize().x, bar->GetSize().x) << bar->GetName();
    saveScreenshot(window(), std::string("viewer-") + GetParam());
    auto& search = *controls().viewerSearch;
    control<wxTextCtrl>(search, "viewerSearchText").SetValue("?");
    search.search(SearchDirection::Next);
    const auto& note = control<wxStaticText>(search, "viewerSearchNote");
    EXPECT_LE(note.GetTextExtent(note.GetLabelText()).x, note.GetSize().x);
    EXPECT_GE(control<wxTextCtrl>(search, "viewerSearchText").GetSize().x, window().FromDIP(60));
    saveScreenshot(window(), std::string("viewer-search-") + GetParam());
}

} // namespace
} // namespace vantrel::tests
