#include "DialogTest.h"
#include "ProgramWorld.h"

#include <gmock/gmock.h>
#include <wx/button.h>
#include <wx/listctrl.h>
#include <wx/menu.h>
#include <wx/statusbr.h>

namespace vantrel::tests {
namespace {

/// The result of the last command, through the whole program in each language.
class ResultInMainWindowTest : public testing::TestWithParam<const char*>, public ProgramWorld {
  protected:
    static constexpr int panelResult = 3;

    ResultInMainWindowTest() {
        settings("TransMode=1\r\n", GetParam());
        EXPECT_TRUE(bool(LanguageFiles(dataFolder()).readInto(GetParam(), messages)));
        for (const char* name : {"A", "B", "C"})
            robotJob(name);
    }

    /// Fetches A, B and C, of which B is gone meanwhile.
    void fetchInPart() {
        start(true);
        choose(*controls().lsvCtrl, {0, 1, 2});
        std::filesystem::remove(folder.path("robot/B.JBI"));
        modal.answer([](wxDialog&) { return wxID_OK; }); // the report
        menu("mnuFile(0)");
        runEvents();
    }
    std::string shownResult() {
        return controls().stsFileInf->GetStatusText(panelResult).utf8_string();
    }
    void clickResult(int panel = panelResult) {
        wxRect place;
        ASSERT_TRUE(controls().stsFileInf->GetFieldRect(panel, place));
        wxMouseEvent click(wxEVT_LEFT_UP);
        click.SetPosition(place.GetPosition() + place.GetSize() / 2);
        click.SetEventObject(controls().stsFileInf);
        controls().stsFileInf->HandleWindowEvent(click);
        runEvents();
    }
    static std::string cell(wxDialog& dialog, long row, int column) {
        return control<wxListView>(dialog, "lsvResult").GetItemText(row, column).utf8_string();
    }

    MessageTable messages;
};

TEST_P(ResultInMainWindowTest, BeforeACommandThereIsNone) {
    start(false);
    EXPECT_EQ(shownResult(), "");
    EXPECT_FALSE(window().menus().find("mnuTools(0)")->IsEnabled());
    clickResult();
}

TEST_P(ResultInMainWindowTest, TheStatusBarSaysItAndAClickOpensTheSheet) {
    fetchInPart();
    const CommandResult expected{.kind = CommandKind::ReceiveCopy,
                                 .items = {{"A", "A", ItemEnd::Done},
                                           {"B", "B", ItemEnd::Failed},
                                           {"C", "C", ItemEnd::NotTried}}};
    EXPECT_EQ(shownResult(), resultLine(messages, expected));
    bool isOpened = false;
    modal.act([&](wxDialog& dialog) {
        isOpened = true;
        ASSERT_EQ(dialog.GetName(), "frmResult");
        EXPECT_EQ(labelOf(dialog, "lblResult"), shownResult());
        EXPECT_EQ(control<wxListView>(dialog, "lsvResult").GetItemCount(), 3);
        EXPECT_EQ(cell(dialog, 0, 0), "A.JBI");
        EXPECT_EQ(cell(dialog, 0, 1), messages.getMessage(401));
        EXPECT_EQ(cell(dialog, 1, 1), messages.getMessage(405));
        EXPECT_NE(cell(dialog, 1, 2).find("1200"), std::string::npos);
        EXPECT_EQ(cell(dialog, 2, 1), messages.getMessage(406));
        EXPECT_TRUE(control<wxButton>(dialog, "cmdTryAgain").IsEnabled());
        expectButtonOrder(dialog, {"cmdClose", "cmdTryAgain", "cmdSave", "cmdPrint"});
        expectNothingCutOff(dialog);
        saveScreenshot(dialog, std::string("result-") + GetParam());
        EXPECT_TRUE(swallows(dialog, WXK_ESCAPE));
    });
    clickResult();
    EXPECT_TRUE(waitFor([&] { return isOpened; }));
    EXPECT_EQ(namesIn(pcList()), (std::vector<std::string>{"A.JBI"})) << "Esc does nothing else";
    saveScreenshot(window(), std::string("status-result-") + GetParam());
}

TEST_P(ResultInMainWindowTest, AClickBesideItOpensNothing) {
    fetchInPart();
    clickResult(0);
    clickResult(1);
}

TEST_P(ResultInMainWindowTest, TryAgainFetchesWhatIsLeft) {
    fetchInPart();
    robotJob("B");
    focus(pcList());
    modal.act([](wxDialog& dialog) { click(dialog, "cmdTryAgain"); });
    menu("mnuTools(0)");
    runEvents();
    EXPECT_EQ(namesIn(pcList()), (std::vector<std::string>{"A.JBI", "B.JBI", "C.JBI"}));
    EXPECT_TRUE(waitFor([&] { return controls().lsvCtrl->native().HasFocus(); }))
        << "the side that the command works on";
}

TEST_P(ResultInMainWindowTest, OfACompleteCommandNothingIsTriedAgain) {
    start(true);
    choose(*controls().lsvCtrl, {0});
    menu("mnuFile(0)");
    modal.act([](wxDialog& dialog) {
        EXPECT_FALSE(control<wxButton>(dialog, "cmdTryAgain").IsEnabled());
        click(dialog, "cmdClose");
    });
    menu("mnuTools(0)");
}

INSTANTIATE_TEST_SUITE_P(In, ResultInMainWindowTest, bothLanguages, languageName);

} // namespace
} // namespace vantrel::tests
