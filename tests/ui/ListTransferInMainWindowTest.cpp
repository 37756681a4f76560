#include "DialogTest.h"
#include "ProgramWorld.h"
#include "support/ProjectFiles.h"

#include <wx/filedlg.h>
#include <wx/menu.h>
#include <wx/msgdlg.h>

namespace vantrel::tests {
namespace {

/// Entries of the option menu that transfer lists, through the whole program.
class ListTransferInMainWindowTest : public testing::Test, public ProgramWorld {
  protected:
    ListTransferInMainWindowTest() {
        folder.write("jobs/jobs.lst", "A.JBI\r\nB.JBI\r\n");
        folder.write("jobs/VARS.LST", "B001=5\r\n");
    }

    static constexpr int saveJobs = 2, loadJobs = 3, saveVariables = 4, loadVariables = 5;

    /// Names a list file in the entry's dialog.
    void run(int entry, const std::string& file) {
        modal.act([&](wxDialog& dialog) {
            EXPECT_EQ(dialog.GetParent(), &window());
            type(dialog, "txtFile", file);
            click(dialog, "cmdOK");
        });
        menu("mnuOpt(" + std::to_string(entry) + ")");
        runEvents();
        EXPECT_TRUE(window().menus().find("mnuOpt(" + std::to_string(entry) + ")")->IsEnabled());
    }
};

TEST_F(ListTransferInMainWindowTest, SavesJobsToThePCAndShowsThem) {
    robotJob("A");
    robotJob("B");
    start(false);
    run(saveJobs, "jobs");
    EXPECT_EQ(folder.read("jobs/A.JBI"), job("A"));
    EXPECT_EQ(folder.read("jobs/B.JBI"), job("B"));
    EXPECT_EQ(namesIn(pcList()), (std::vector<std::string>{"A.JBI", "B.JBI"}));
}

TEST_F(ListTransferInMainWindowTest, LoadsJobsIntoTheControllerAndShowsThem) {
    pcJob("A");
    pcJob("B");
    start(false);
    run(loadJobs, "jobs.lst");
    EXPECT_EQ(folder.read("robot/A.JBI"), job("A"));
    EXPECT_EQ(folder.read("robot/B.JBI"), job("B"));
    const auto shown = namesIn(controllerList());
    ASSERT_GE(shown.size(), 2u);
    EXPECT_EQ(shown[0], "A.JBI");
    EXPECT_EQ(shown[1], "B.JBI");
}

TEST_F(ListTransferInMainWindowTest, LoadsVariablesIntoTheControllerAndSavesThemBack) {
    start(false);
    run(loadVariables, "VARS.LST");
    EXPECT_NE(folder.read("robot/variables.txt").find("B001=5"), std::string::npos);
    folder.write("jobs/OTHER.LST", "B001=\r\n");
    run(saveVariables, "OTHER.LST");
    EXPECT_EQ(folder.read("jobs/OTHER.LST"), "B001=5\r\n");
}

// What it gives back can only be tried by hand: a window that is not shown has no path everywhere.
TEST_F(ListTransferInMainWindowTest, AsksWithTheSystemsWindowWhereTheSelectionIsSaved) {
    pcJob("A");
    pcJob("B");
    start(false);
    const auto isOffered = [this] { return window().menus().find("mnuTools(3)")->IsEnabled(); };
    choose(*controls().lsvPC, {});
    EXPECT_TRUE(waitFor([&] { return !isOffered(); }));
    choose(*controls().lsvPC, {0, 1});
    EXPECT_TRUE(waitFor(isOffered));
    modal.answer([this](wxDialog& dialog) {
        EXPECT_EQ(dialog.GetParent(), &window());
        const auto& system = dynamic_cast<wxFileDialog&>(dialog);
        EXPECT_EQ(system.GetMessage(), "Save Selection as Job List");
        EXPECT_TRUE(system.HasFlag(wxFD_SAVE));
        EXPECT_FALSE(system.HasFlag(wxFD_OVERWRITE_PROMPT)) << "the program itself asks";
        EXPECT_EQ(system.GetWildcard(), "*.lst|*.lst") << "no words of the toolkit's";
        return wxID_CANCEL;
    });
    menu("mnuTools(3)");
    EXPECT_FALSE(folder.has("jobs/A.lst"));
    EXPECT_TRUE(waitFor([this] { return controls().lsvPC->native().HasFocus(); }));
}

/// The same in each language, for what the dialogs show.
class ListFileOfEntry : public ListTransferInMainWindowTest,
                        public testing::WithParamInterface<const char*> {
  protected:
    ListFileOfEntry() {
        settings("TransMode=1\r\n", GetParam());
        EXPECT_TRUE(bool(LanguageFiles(dataFolder()).readInto(GetParam(), messages)));
    }

    MessageTable messages;
};

TEST_P(ListFileOfEntry, IsAskedForInWordsOfItsOwnAndCancelChangesNothing) {
    robotJob("A");
    start(false);
    constexpr int jobListField = 23, variableListField = 24;
    int title = 19;
    for (const int entry : {saveJobs, loadJobs, saveVariables, loadVariables}) {
        modal.act([&](wxDialog& dialog) {
            const int field = entry < saveVariables ? jobListField : variableListField;
            EXPECT_EQ(dialog.GetTitle().utf8_string(), messages.getMessage(title++));
            EXPECT_EQ(labelOf(dialog, "lblFile"), messages.getMessage(field));
            expectNothingCutOff(dialog);
            saveScreenshot(dialog, "list-file-" + std::to_string(entry) + "-" + GetParam());
            type(dialog, "txtFile", "jobs.lst");
            swallows(dialog, WXK_ESCAPE);
        });
        menu("mnuOpt(" + std::to_string(entry) + ")");
    }
    EXPECT_FALSE(folder.has("jobs/A.JBI"));
    EXPECT_FALSE(folder.has("robot/variables.txt"));
}

TEST_P(ListFileOfEntry, GivesAReportInFullWhenItsTransferFails) {
    start(false);
    modal.act([](wxDialog& dialog) {
        type(dialog, "txtFile", "jobs.lst");
        click(dialog, "cmdOK");
    });
    modal.act([this](wxDialog& box) {
        const auto text = dynamic_cast<wxMessageDialogBase&>(box).GetMessage().utf8_string();
        EXPECT_TRUE(text.starts_with(messages.getMessage(5) + "BscUpLoad ( 1200 )")) << text;
        EXPECT_TRUE(text.ends_with("[A.JBI]")) << text;
        saveScreenshot(box, std::string("list-report-") + GetParam());
        answer(box, wxID_OK);
    });
    menu("mnuOpt(" + std::to_string(saveJobs) + ")");
    EXPECT_TRUE(controls().fraPC.panel->IsEnabled());
    EXPECT_TRUE(window().menus().find("mnuOpt(" + std::to_string(saveJobs) + ")")->IsEnabled());
}

INSTANTIATE_TEST_SUITE_P(In, ListFileOfEntry, bothLanguages, languageName);

TEST_F(ListTransferInMainWindowTest, TheNameThatWorkedIsOfferedAgainAndSavedAtTheEnd) {
    start(false);
    run(loadVariables, "VARS.LST");
    modal.act([](wxDialog& dialog) {
        EXPECT_EQ(control<wxTextCtrl>(dialog, "txtFile").GetValue(), "VARS.LST");
        click(dialog, "cmdCancel");
    });
    menu("mnuOpt(" + std::to_string(saveVariables) + ")");
    modal.answer([](wxDialog&) { return wxID_OK; });
    menu("mnuEnd");
    ASSERT_TRUE(waitFor([this] { return !program->mainWindow(); }));
    EXPECT_NE(folder.read("Vantrel.ini").find("VarListFile=VARS.LST"), std::string::npos)
        << folder.read("Vantrel.ini");
}

} // namespace
} // namespace vantrel::tests
