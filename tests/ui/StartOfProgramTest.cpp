#include "ProgramWorld.h"
#include "support/ScreenPicture.h"
#include "ui/PathDisplay.h"

#include <stdexcept>

#include <wx/menu.h>
#include <wx/msgdlg.h>
#include <wx/stattext.h>
#include <wx/statusbr.h>

namespace vantrel::tests {
namespace {

/// Looks at the start message while the main window is built behind it.
class StartMessageWatch : public wxEventFilter {
  public:
    StartMessageWatch() { wxEvtHandler::AddFilter(this); }
    ~StartMessageWatch() override { wxEvtHandler::RemoveFilter(this); }

    int windows = 0;         ///< to be seen then
    std::size_t colours = 0; ///< of its text

  private:
    int FilterEvent(wxEvent& /*event*/) override {
        wxWindow* const message = wxWindow::FindWindowByName("FrmMessage");
        if (windows > 0 || !message || !message->IsShown() ||
            !wxWindow::FindWindowByName("frmZuroVant"))
            return Event_Skip;
        windows = windowsOnScreen();
        colours = ScreenPicture(control<wxWindow>(*message, "lblMsg")).colours();
        return Event_Skip;
    }
};

/// The whole program from its start to its end, with whatever files are there.
class StartOfProgramTest : public testing::Test, public ProgramWorld {
  protected:
    void remove(const std::string& name) { std::filesystem::remove(folder.path(name)); }
    /// The next dialog is a box whose text begins like this; boxes break their lines.
    void expectBox(const std::string& start) {
        modal.answer([start](wxDialog& dialog) {
            auto text = dynamic_cast<wxMessageDialogBase&>(dialog).GetMessage();
            text.Replace("\n", " ");
            EXPECT_TRUE(text.StartsWith(wxString::FromUTF8(start))) << text;
            return wxID_OK;
        });
    }
    void end() {
        expectBox("Exit Vantrel?");
        menu("mnuEnd");
        ASSERT_TRUE(waitFor([this] { return !program->mainWindow(); }));
    }
    wxString count(int panel) { return window().GetStatusBar()->GetStatusText(panel); }
    wxWindow* versionWindow() { return wxWindow::FindWindowByName("frmVers"); }
};

TEST_F(StartOfProgramTest, WithoutAnyLanguageFileItTellsSoAndEnds) {
    for (const char* name :
         {"English.lng", "Japanese.lng", "System.lng", "Vantrel.ini", "robot.ini", "FileTable.tbl"})
        remove(name);
    expectBox("Language File Read Error.(System.lng)");
    EXPECT_EQ(startProgram(), StartResult::NoLanguage);
    EXPECT_FALSE(program->mainWindow());
    EXPECT_FALSE(folder.has("Vantrel.ini"));
    EXPECT_FALSE(folder.has("robot.ini"));
}

TEST_F(StartOfProgramTest, TheExitSwitchReadsShowsAndWritesNothing) {
    for (const char* name :
         {"English.lng", "Japanese.lng", "System.lng", "Vantrel.ini", "robot.ini"})
        remove(name);
    for (const char* argument : {"/EXIT", "jobs/EXITNOW"}) {
        EXPECT_EQ(startProgram({"first", argument}), StartResult::ExitSwitch) << argument;
        EXPECT_FALSE(program->mainWindow());
    }
    EXPECT_FALSE(folder.has("Vantrel.ini"));
    EXPECT_FALSE(folder.has("robot.ini"));
}

TEST_F(StartOfProgramTest, AnotherLetterCaseOfTheExitSwitchStartsTheProgram) {
    answerDirectoryQuestion(false);
    EXPECT_EQ(startProgram({"/exit"}), StartResult::Running);
    EXPECT_TRUE(program->mainWindow());
}

TEST_F(StartOfProgramTest, AnAutomationStartShowsNoWindowAndWritesNothing) {
    const std::string settingsBefore = folder.read("Vantrel.ini");
    remove("robot.ini");
    for (const char* argument : {"-Embedding", "/automation"}) {
        EXPECT_EQ(startProgram({argument}), StartResult::Automation) << argument;
        EXPECT_FALSE(program->mainWindow());
        for (wxWindow* const window : wxTopLevelWindows)
            EXPECT_FALSE(window->IsShown()) << window->GetName();
    }
    EXPECT_EQ(folder.read("Vantrel.ini"), settingsBefore);
    EXPECT_FALSE(folder.has("robot.ini"));
}

TEST_F(StartOfProgramTest, ARenamedExecutableReadsAndWritesItsOwnSettings) {
    const std::string others = folder.read("Vantrel.ini");
    folder.write("tool.ini", "[Vantrel]\r\nPath=" + folder.path("robot") +
                                 "\r\nPort=9\r\n[Language Info]\r\nLanguage=Japanese\r\n"
                                 "LangSelect=0\r\n");
    answerDirectoryQuestion(false);
    ASSERT_EQ(startProgram({}, "tool"), StartResult::Running);
    runEvents();
    EXPECT_EQ(controls().trvFolderName->GetToolTipText(), folder.path("robot"));
    menu("mnuModeHiSpeed");
    modal.answer([](wxDialog&) { return wxID_OK; });
    menu("mnuEnd");
    ASSERT_TRUE(waitFor([this] { return !program->mainWindow(); }));
    EXPECT_NE(folder.read("tool.ini").find("Port=9\r\n"), std::string::npos);
    EXPECT_NE(folder.read("tool.ini").find("TransMode=16\r\n"), std::string::npos);
    EXPECT_EQ(folder.read("Vantrel.ini"), others);
}

TEST_F(StartOfProgramTest, TheFirstStartAsksForTheLanguageAndMakesItsFiles) {
    remove("Vantrel.ini");
    remove("robot.ini");
    chooseLanguage("English");
    answerDirectoryQuestion(false);
    ASSERT_EQ(startProgram(), StartResult::Running);
    runEvents();
    EXPECT_TRUE(folder.has("robot.ini"));
    EXPECT_NE(folder.read("Vantrel.ini").find("Language=English\r\n"), std::string::npos);
    EXPECT_EQ(controls().cmbRbtName->GetStringSelection(), "DEFAULT");
    EXPECT_TRUE(window().GetTitle().Contains("BSC"));
    EXPECT_EQ(pcList().GetItemCount(), 3) << "what the program's own folder shows";
    end();
    EXPECT_NE(folder.read("Vantrel.ini").find("Path=" + folder.path() + "\r\n"), std::string::npos);
    EXPECT_TRUE(folder.read("robot.ini").starts_with("[Boot]\r\nName=DEFAULT\r\n"));
}

TEST_F(StartOfProgramTest, WithNothingButTheSystemsLanguageItWorks) {
    for (const char* name :
         {"English.lng", "Japanese.lng", "Vantrel.ini", "robot.ini", "FileTable.tbl"})
        remove(name);
    remove(libraryFileName());
    chooseLanguage("System");
    answerDirectoryQuestion(false);
    ASSERT_EQ(startProgram(), StartResult::Running);
    runEvents();
    menu("mnuRefresh");
    EXPECT_EQ(pcList().GetItemCount(), 3);
    choose(*controls().lsvCtrl, {});
    for (int refresh = 0; refresh < 2; ++refresh) {
        expectBox("The communication library cannot be used");
        menu("mnuRefresh");
    }
    end();
    EXPECT_TRUE(folder.has("robot.ini"));
}

TEST_F(StartOfProgramTest, ALanguageFileWithoutTextsLeavesTheCaptionsEmpty) {
    folder.write("English.lng", "no text at all\r\n");
    pcJob("A");
    answerDirectoryQuestion(false);
    ASSERT_EQ(startProgram(), StartResult::Running);
    runEvents();
    const auto* const copy = window().menus().find("mnuFile(0)");
    EXPECT_EQ(copy->GetItemLabelText().Strip(wxString::both), "");
    ProgramWorld::choose(*controls().lsvPC, {0});
}

TEST_F(StartOfProgramTest, ACancelledLanguageDialogEndsItAndWritesNothing) {
    remove("Vantrel.ini");
    remove("robot.ini");
    modal.act([](wxDialog& dialog) { click(dialog, "Command2"); });
    EXPECT_EQ(startProgram(), StartResult::LanguageCancelled);
    EXPECT_FALSE(program->mainWindow());
    EXPECT_FALSE(folder.has("Vantrel.ini"));
    EXPECT_FALSE(folder.has("robot.ini"));
}

TEST_F(StartOfProgramTest, ARecordedLanguageIsUsedWithoutADialog) {
    settings("TransMode=1\r\n", "Japanese");
    answerDirectoryQuestion(false);
    ASSERT_EQ(startProgram(), StartResult::Running);
    EXPECT_EQ(window().GetMenuBar()->GetMenuLabelText(0), wxString::FromUTF8("ファイル"));
    EXPECT_TRUE(count(0).StartsWith(wxString::FromUTF8("PC： "))) << count(0);
}

TEST_F(StartOfProgramTest, ARecordedLanguageThatIsGoneIsNamedAndAskedFor) {
    settings("TransMode=1\r\n", "Klingon");
    // In the language of this machine, whichever that is.
    modal.answer([](wxDialog& dialog) {
        const auto text = dynamic_cast<wxMessageDialogBase&>(dialog).GetMessage();
        EXPECT_TRUE(text.Contains("[Klingon.lng]")) << text;
        return wxID_OK;
    });
    chooseLanguage("Japanese");
    answerDirectoryQuestion(false);
    ASSERT_EQ(startProgram(), StartResult::Running);
    EXPECT_EQ(window().GetMenuBar()->GetMenuLabelText(0), wxString::FromUTF8("ファイル"));
    EXPECT_NE(folder.read("Vantrel.ini").find("Language=Japanese\r\n"), std::string::npos);
}

TEST_F(StartOfProgramTest, TheLanguageIsAskedForAtEveryStartThatIsToldTo) {
    folder.write("Vantrel.ini", "[Language Info]\r\nLanguage=English\r\nLangSelect=1\r\n");
    chooseLanguage("English");
    answerDirectoryQuestion(false);
    EXPECT_EQ(startProgram(), StartResult::Running);
}

TEST_F(StartOfProgramTest, TheStartMessageStandsOnTheScreenWhileFilesAreReadAndIsGoneAfter) {
    const StartMessageWatch watch;
    modal.answer([](wxDialog&) {
        const wxWindow* const message = wxWindow::FindWindowByName("FrmMessage");
        EXPECT_TRUE(!message || !message->IsShown());
        return wxID_NO;
    });
    ASSERT_EQ(startProgram(), StartResult::Running);
    EXPECT_EQ(watch.windows, 1);
    EXPECT_GT(watch.colours, 2u);
    EXPECT_TRUE(waitFor([] { return !wxWindow::FindWindowByName("FrmMessage"); }));
}

TEST_F(StartOfProgramTest, YesReadsTheDirectoryAndShowsTheVersion) {
    robotJob("X");
    answerDirectoryQuestion(true);
    ASSERT_EQ(startProgram(), StartResult::Running);
    EXPECT_EQ(controllerList().GetItemText(0), "X.JBI");
    EXPECT_EQ(count(1), "Controller: 1 items");
    ASSERT_TRUE(versionWindow());
    EXPECT_TRUE(versionWindow()->IsShown());
}

TEST_F(StartOfProgramTest, NoConnectsToNothingAndCountsNothing) {
    robotJob("X");
    script("1=BscOpen 1+ fail 2030");
    answerDirectoryQuestion(false);
    ASSERT_EQ(startProgram(), StartResult::Running);
    EXPECT_EQ(controllerList().GetItemCount(), 0);
    EXPECT_EQ(count(1), "Controller: 0 items");
    EXPECT_FALSE(versionWindow());
}

TEST_F(StartOfProgramTest, ADirectoryThatCannotBeReadIsToldAndTheProgramStarts) {
    robotJob("X");
    pcJob("A");
    script("1=BscConnect 1 fail 2010");
    answerDirectoryQuestion(true);
    expectBox("The file list of the controller could not be read.");
    ASSERT_EQ(startProgram(), StartResult::Running);
    EXPECT_EQ(count(1), "Controller: 0 items");
    EXPECT_EQ(pcList().GetItemCount(), 1);
    ASSERT_TRUE(versionWindow()) << "the message has not taken it away";
    EXPECT_TRUE(versionWindow()->IsShown());
    choose(*controls().lsvCtrl, {});
    menu("mnuRefresh");
    EXPECT_EQ(count(1), "Controller: 1 items");
}

TEST_F(StartOfProgramTest, RobotsWhoseFoldersAreGoneAreListedAndNamedWhenChosen) {
    settings("TransMode=16\r\nSyncroRobotDir=1\r\n");
    pcJob("A");
    folder.write("robot.ini", "[Boot]\r\nName=SECOND\r\n\r\n[Robot]\r\nName=FIRST\r\n"
                              "IPaddr=10.0.0.1\r\nPath=nowhere\r\n\r\n[Robot]\r\nName=SECOND\r\n"
                              "IPaddr=10.0.0.2\r\nPath=nowhere either\r\n\r\n");
    answerDirectoryQuestion(false);
    ASSERT_EQ(startProgram(), StartResult::Running);
    EXPECT_EQ(controls().cmbRbtName->GetCount(), 2u);
    EXPECT_EQ(controls().cmbRbtName->GetStringSelection(), "SECOND");
    EXPECT_EQ(pcList().GetItemText(0), "A.JBI");
    expectBox("[FIRST] The folder of this robot could not be opened. The current folder is kept.");
    window().onRobotChosen(0);
    EXPECT_EQ(pcList().GetItemText(0), "A.JBI");
    EXPECT_EQ(controls().lblIPAddr2->GetLabel(), "10.0.0.1");
}

TEST_F(StartOfProgramTest, AStoredFolderThatIsGoneOpensTheOneAbove) {
    folder.write("jobs/inner.txt", "");
    folder.write("Vantrel.ini", "[Vantrel]\r\nPath=" + folder.path("jobs/gone/deeper") +
                                    "\r\n[Language Info]\r\nLanguage=English\r\nLangSelect=0\r\n");
    answerDirectoryQuestion(false);
    expectBox("[" + folder.path("jobs/gone/deeper") + "] This folder ");
    ASSERT_EQ(startProgram(), StartResult::Running);
    EXPECT_EQ(controls().trvFolderName->GetToolTipText(), folder.path("jobs"));
}

TEST_F(StartOfProgramTest, AfterAnErrorInTheWindowsStartTheSimulationIsShownAllTheSame) {
    folder.write("Vantrel.ini", "[Vantrel]\r\nPath=" + folder.path("gone") +
                                    "\r\n[Language Info]\r\nLanguage=English\r\nLangSelect=0\r\n");
    answerDirectoryQuestion(false);
    modal.answer([](wxDialog&) -> int { throw std::runtime_error("no more boxes"); });
    modal.answer([this](wxDialog&) {
        runEvents();
        EXPECT_EQ(count(2), "") << "not while the operator still reads of the error";
        return wxID_OK;
    });
    ASSERT_EQ(startProgram(), StartResult::Running);
    EXPECT_TRUE(waitFor([this] { return !count(2).empty(); }));
}

} // namespace
} // namespace vantrel::tests
