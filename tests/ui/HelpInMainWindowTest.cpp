#include "HelpWorld.h"
#include "ui/FileViewer.h"

#include <wx/bmpbuttn.h>

namespace vantrel::tests {
namespace {

class HelpInMainWindowTest : public testing::Test, public HelpWorld {
  protected:
    HelpInMainWindowTest() {
        settings("TransMode=16\r\n");
        pcJob("A");
        robotJob("X");
    }

    static constexpr const char* manual = "Zurolink_us.pdf";

    /// A press of F1 at the keyboard, with the focus in this control.
    void pressF1In(wxWindow& control) {
        ASSERT_NO_FATAL_FAILURE(focus(control));
        pressKey(WXK_F1);
        ++presses_;
        EXPECT_TRUE(waitFor([this] { return opened() == openings(manual, presses_); }))
            << control.GetName() << '\n'
            << opened();
    }
    /// Opens a dialog by its menu entry, presses F1 in it and closes it.
    void pressF1InDialogOf(const std::string& item, const std::string& closing) {
        modal.act([&closing](wxDialog& dialog) {
            EXPECT_TRUE(waitFor([&] { return dialog.IsActive(); })) << dialog.GetName();
            pressKey(WXK_F1);
            runEvents();
            click(dialog, closing);
        });
        menu(item);
        runEvents();
    }

  private:
    int presses_ = 0;
};

TEST_F(HelpInMainWindowTest, TheMenuOpensTheManual) {
    start(false);
    menu("mnuHelp(0)");
    EXPECT_TRUE(waitFor([this] { return opened() == openings(manual); })) << opened();
}

TEST_F(HelpInMainWindowTest, TheKeyIsTheKeyWhateverIsHeldDownWithIt) {
    start(false);
    wxKeyEvent key(wxEVT_CHAR_HOOK);
    key.m_keyCode = WXK_F1;
    key.SetShiftDown(true);
    key.SetEventObject(&window());
    window().HandleWindowEvent(key);
    EXPECT_FALSE(key.GetSkipped());
    EXPECT_TRUE(waitFor([this] { return opened() == openings(manual); })) << opened();
}

TEST_F(HelpInMainWindowTest, TheManualIsThatOfTheLanguage) {
    settings("TransMode=1\r\n", "Japanese");
    start(false);
    menu("mnuHelp(0)");
    EXPECT_TRUE(waitFor([this] { return opened() == openings("Zurolink_jp.pdf"); })) << opened();
}

TEST_F(HelpInMainWindowTest, AManualThatIsNotThereIsNotReported) {
    std::filesystem::remove_all(folder.path("../ZUROLINKDLL"));
    start(false);
    menu("mnuHelp(0)");
    runEvents();
    EXPECT_EQ(opened(), "");
}

TEST_F(HelpInMainWindowTest, F1OpensItFromEveryControl) {
    start(true);
    const auto& all = controls();
    for (wxWindow* control :
         {static_cast<wxWindow*>(&pcList()), static_cast<wxWindow*>(&controllerList()),
          static_cast<wxWindow*>(all.cmbRbtName), static_cast<wxWindow*>(all.cmbPCFileType),
          static_cast<wxWindow*>(all.cmbCtrlFileType), static_cast<wxWindow*>(all.Command1)})
        pressF1In(*control);
}

TEST_F(HelpInMainWindowTest, F1OpensItFromTheViewerAndTheFolderTree) {
    start(true);
    choose(*controls().lsvPC, {0});
    menu("mnuFile(5)");
    pressF1In(*controls().rtxFileDisp);
    ASSERT_NO_FATAL_FAILURE(dropFolderTree());
    pressF1In(*controls().trvFolderList);
}

TEST_F(HelpInMainWindowTest, F1IsConsumed) {
    start(false);
    EXPECT_TRUE(swallows(window(), WXK_F1));
    EXPECT_TRUE(waitFor([this] { return opened() == openings(manual); })) << opened();
    EXPECT_FALSE(swallows(window(), WXK_F9));
}

TEST_F(HelpInMainWindowTest, F1IsRefusedWhileAnOperationRuns) {
    start(false);
    window().setLocked(true);
    pressKey(WXK_F1);
    swallows(window(), WXK_F1);
    menu("mnuHelp(0)");
    runEvents();
    window().setLocked(false);
    window().list(ActiveSide::PC).focus();
    pressF1In(pcList());
}

TEST_F(HelpInMainWindowTest, F1InADialogOpensNothing) {
    start(false);
    pressF1InDialogOf("mnuOpt(0)", "cmdCancel");
    pressF1InDialogOf("mnuOpt(2)", "cmdCancel");
    pressF1InDialogOf("mnuOpt(7)", "Command2");
    pressF1InDialogOf("mnuVer", "Command1");
    window().Raise();
    window().list(ActiveSide::PC).focus();
    pressF1In(pcList());
}

} // namespace
} // namespace vantrel::tests
