#include "ProgramWorld.h"
#include "ui/CommandToolBar.h"
#include "ui/FileViewer.h"

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
}

} // namespace
} // namespace vantrel::tests
