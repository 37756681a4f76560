#include "app/start/StartRoutine.h"

#include "AppFakes.h"
#include "app/settings/SettingsFile.h"
#include "base/PathRules.h"
#include "lang/LanguageChoice.h"

#include <functional>
#include <stdexcept>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

/// Records when it is filled, and a little of the state at that time.
class LoggingRobotBox final : public RobotBox {
  public:
    explicit LoggingRobotBox(tests::Desk& desk) : desk_(desk) {}

    void clear() override {
        names.clear();
        desk_.log.push_back("robot box, port " + std::to_string(desk_.state.Port));
    }
    void add(const std::string& name) override { names.push_back(name); }
    void select(int) override {}

    std::vector<std::string> names;

  private:
    tests::Desk& desk_;
};

/// Windows that record what the start routine does to them, and a little of the state at that time.
class RecordingStartWindows final : public StartWindows {
  public:
    explicit RecordingStartWindows(tests::Desk& desk) : desk_(desk) {}

    bool cancelsLanguage = false;
    std::function<void()> whenBuilt = [] {};
    std::function<void()> whenStarted = [] {};

    void showLanguageDialog() override {
        add("language dialog");
        if (cancelsLanguage)
            desk_.state.LangCancelled = true;
    }
    void showStartMessage() override { add("show message"); }
    void unloadStartMessage() override { add("unload message"); }
    void loadVersionWindow() override { add("load version"); }
    void showVersionWindow() override { add("show version"); }
    StartedWindow buildMainWindow() override {
        add("build main, port " + std::to_string(desk_.state.Port));
        whenBuilt();
        return {desk_.panes, box_, desk_.window, [this] { startMainWindow(); }};
    }
    void showMainWindow() override { add("show main"); }
    void mainWindowStarted() override { add("main started"); }
    const LoggingRobotBox& box() const { return box_; }

  private:
    void add(std::string entry) { desk_.log.push_back(std::move(entry)); }
    void startMainWindow() {
        add(std::string("start main") + (desk_.state.Busy ? ", busy" : "") +
            (desk_.state.StartupDone ? ", done" : "") +
            (desk_.window.pc.focuses == 1 ? ", focus" : ""));
        whenStarted();
    }

    tests::Desk& desk_;
    LoggingRobotBox box_{desk_};
};

class StartRoutineTest : public testing::Test {
  protected:
    StartRoutineTest() {
        writeLanguage("English");
        write("[Language Info]\r\nLanguage=English\r\nLangSelect=0\r\n");
        desk_.state.Busy = true;
        desk_.state.StartupDone = true;
    }
    tests::FakeController& controller() { return desk_.library.at("COM1"); }
    /// Every message N reads "mN" in this language.
    void writeLanguage(const std::string& name) {
        std::string text = "Start:\r\n";
        for (int number = 0; number < 600; ++number)
            text += std::to_string(number) + " \"\" \"m" + std::to_string(number) + "\"\r\n";
        desk_.folder.write(name + ".lng", text);
    }
    void write(const std::string& settings) { desk_.folder.write("Vantrel.ini", settings); }
    void addSettings(const std::string& more) { write(desk_.folder.read("Vantrel.ini") + more); }
    StartResult start(CommandLine commandLine = {}) {
        return startAs(desk_.folder.path("Vantrel"), desk_.folder.path(), "Vantrel.ini",
                       commandLine);
    }
    StartResult startAs(const std::string& executable, const std::string& programFolder,
                        const std::string& settingsFile, CommandLine commandLine = {}) {
        const SettingsFile settings(desk_.folder.path(), settingsFile);
        return StartRoutine({.state = desk_.state,
                             .table = desk_.table,
                             .language = language_,
                             .messages = desk_.messages,
                             .boxes = desk_.boxes,
                             .settings = settings,
                             .registry = registry_,
                             .session = desk_.session,
                             .windows = windows_,
                             .commandLine = commandLine,
                             .executable = executable,
                             .programFolder = programFolder})
            .Main();
    }
    /// A file that cannot take its place.
    void deliverInVain(const std::string& name) {
        desk_.folder.makeFolder(name);
        desk_.folder.write(".installed/" + name + ".new", "new");
    }
    static bool isTold(const std::string& entry) { return entry.starts_with("tell "); }
    bool logged(const std::string& entry) const {
        return std::ranges::find(desk_.log, entry) != desk_.log.end();
    }

    tests::Desk desk_;
    tests::TemporaryFolder elsewhere_;
    tests::InFolder inFolder_{elsewhere_.path()};
    RecordingStartWindows windows_{desk_};
    RobotRegistry registry_{desk_.state, desk_.messages, desk_.boxes, desk_.folder.path()};
    LanguageChoice language_{desk_.state, desk_.messages, desk_.languages, desk_.boxes, "English"};
};

TEST_F(StartRoutineTest, ExitReadsAndShowsAndWritesNothing) {
    desk_.state = ApplicationState();
    EXPECT_EQ(start({.endsAtOnce = true}), StartResult::ExitSwitch);
    EXPECT_TRUE(desk_.log.empty());
    EXPECT_EQ(desk_.state.IniFileName, "");
    EXPECT_FALSE(desk_.folder.has("robot.ini"));
}

TEST_F(StartRoutineTest, StepsRunInTheirOrder) {
    addSettings("[Vantrel]\r\nPort=3\r\n");
    EXPECT_EQ(start(), StartResult::Running);
    EXPECT_EQ(desk_.log, (tests::Log{"show message", "build main, port 1", "robot box, port 3",
                                     "unload message", "askYesNo m1", "status Ctrl m150m16",
                                     "show main", "start main, focus", "main started"}));
    EXPECT_FALSE(desk_.state.Busy);
    EXPECT_TRUE(desk_.state.StartupDone);
    EXPECT_FALSE(desk_.state.NoSave);
    EXPECT_EQ(desk_.state.IniFileName, "Vantrel.ini");
}

TEST_F(StartRoutineTest, ADeliveredTextIsInForceFromTheStartThatPlacesIt) {
    const auto delivered = desk_.folder.read("English.lng");
    ASSERT_TRUE(removeFile(desk_.folder.path("English.lng")));
    desk_.folder.write(".installed/English.lng.new", delivered);
    EXPECT_EQ(start(), StartResult::Running);
    EXPECT_TRUE(logged("askYesNo m1"));
}

TEST_F(StartRoutineTest, DeliveredFilesThatCannotBePlacedAreToldInOneBox) {
    deliverInVain("FileTable.tbl");
    deliverInVain("Japanese.lng");
    EXPECT_EQ(start(), StartResult::Running);
    EXPECT_THAT(desk_.log[0],
                AllOf(StartsWith("tell m382\n" + desk_.folder.path("FileTable.tbl") + ": m"),
                      HasSubstr("\n" + desk_.folder.path("Japanese.lng") + ": m")));
    EXPECT_EQ(desk_.boxes.shown[0].icon, BoxIcon::Exclamation);
    EXPECT_EQ(std::ranges::count_if(desk_.log, isTold), 1);
}

TEST_F(StartRoutineTest, AnEmptyDeliveryIsToldInTheLanguageInForce) {
    desk_.folder.write(".installed/FileTable.tbl.new", "");
    EXPECT_EQ(start(), StartResult::Running);
    EXPECT_EQ(desk_.log[0], "tell m382\n" + desk_.folder.path("FileTable.tbl") + ": m383");
}

// As in a folder that has been unpacked where nothing can be written.
TEST_F(StartRoutineTest, WithoutAnyLanguageFileWhatCouldNotBePlacedIsToldToo) {
    ASSERT_TRUE(removeFile(desk_.folder.path("English.lng")));
    desk_.messages.replace({});
    deliverInVain("System.lng");
    EXPECT_EQ(start(), StartResult::NoLanguage);
    ASSERT_EQ(desk_.log.size(), 2u);
    EXPECT_EQ(desk_.log[0], "tell Language File Read Error.(System.lng)");
    EXPECT_THAT(desk_.log[1], AllOf(StartsWith("tell New files "),
                                    HasSubstr(":\n" + desk_.folder.path("System.lng") + ": ")));
}

// The texts of an older version, which stay in force where the new ones cannot be placed.
TEST_F(StartRoutineTest, TextsThatDoNotKnowTheSentenceLeaveItInEnglish) {
    desk_.folder.write("English.lng", "Start:\r\n1 \"\" \"m1\"\r\n");
    deliverInVain("FileTable.tbl");
    EXPECT_EQ(start(), StartResult::Running);
    EXPECT_THAT(desk_.log[0], StartsWith("tell New files "));
}

TEST_F(StartRoutineTest, AStartForAutomationPlacesFilesAndTellsNothing) {
    deliverInVain("FileTable.tbl");
    desk_.folder.write(".installed/Japanese.lng.new", "new");
    EXPECT_EQ(start({.startedForAutomation = true}), StartResult::Automation);
    EXPECT_EQ(desk_.folder.read("Japanese.lng"), "new");
    EXPECT_TRUE(desk_.log.empty());
}

TEST_F(StartRoutineTest, AnExitSwitchPlacesNothing) {
    desk_.folder.write(".installed/Japanese.lng.new", "new");
    EXPECT_EQ(start({.endsAtOnce = true}), StartResult::ExitSwitch);
    EXPECT_FALSE(desk_.folder.has("Japanese.lng"));
}

TEST_F(StartRoutineTest, TheHelpFileIsTheSameForEveryLanguage) {
    for (const char* language : {"Japanese", "English", "System"}) {
        desk_.state.HelpFile.clear();
        writeLanguage(language);
        write("[Language Info]\r\nLanguage=" + std::string(language) + "\r\nLangSelect=0\r\n");
        EXPECT_EQ(start(), StartResult::Running);
        EXPECT_EQ(desk_.state.HelpFile, PathRules().join(desk_.folder.path(), "Vantrel.hlp"))
            << language;
    }
}

TEST_F(StartRoutineTest, ARelativeStoredFolderCountsFromTheProgramsFolder) {
    const auto jobs = desk_.folder.makeFolder("jobs");
    addSettings("[Vantrel]\r\nPath=jobs\r\n");
    EXPECT_EQ(start(), StartResult::Running);
    EXPECT_EQ(desk_.state.PCPath, jobs);
    EXPECT_EQ(desk_.session.path, jobs);
}

TEST_F(StartRoutineTest, TheFirstStartEverAsksForTheLanguage) {
    write("");
    EXPECT_EQ(start(), StartResult::Running);
    EXPECT_EQ(desk_.log[0], "language dialog");
    EXPECT_TRUE(desk_.folder.has("robot.ini"));
    EXPECT_EQ(desk_.state.PCPath, desk_.folder.path());
    EXPECT_EQ(windows_.box().names, (std::vector<std::string>{"DEFAULT"}));
}

TEST_F(StartRoutineTest, LangSelectBringsTheLanguageDialog) {
    write("[Language Info]\r\nLanguage=English\r\nLangSelect=1\r\n");
    EXPECT_EQ(start(), StartResult::Running);
    EXPECT_TRUE(logged("language dialog"));
}

TEST_F(StartRoutineTest, AMissingRecordedLanguageBringsTheLanguageDialog) {
    write("[Language Info]\r\nLanguage=Klingon\r\nLangSelect=0\r\n");
    EXPECT_EQ(start(), StartResult::Running);
    EXPECT_TRUE(logged("language dialog"));
}

TEST_F(StartRoutineTest, ACancelledLanguageDialogEndsTheStart) {
    write("");
    windows_.cancelsLanguage = true;
    EXPECT_EQ(start(), StartResult::LanguageCancelled);
    EXPECT_EQ(desk_.log.back(), "language dialog");
    EXPECT_FALSE(desk_.folder.has("robot.ini"));
    EXPECT_EQ(desk_.folder.read("Vantrel.ini"), "");
}

TEST_F(StartRoutineTest, AnEarlierCancelDoesNotCount) {
    write("");
    desk_.state.LangCancelled = true;
    EXPECT_EQ(start(), StartResult::Running);
}

TEST_F(StartRoutineTest, WithoutAnyLanguageFileNothingStarts) {
    ASSERT_TRUE(removeFile(desk_.folder.path("English.lng")));
    EXPECT_EQ(start(), StartResult::NoLanguage);
    EXPECT_EQ(desk_.log, (tests::Log{"tell Language File Read Error.(System.lng)"}));
}

TEST_F(StartRoutineTest, AnAutomationStartShowsNoWindow) {
    desk_.state.TransMode = TransferMode::HispeedLink;
    EXPECT_EQ(start({.startedForAutomation = true}), StartResult::Automation);
    EXPECT_EQ(desk_.state.TransMode, TransferMode::Bsc);
    EXPECT_TRUE(desk_.log.empty());
    EXPECT_FALSE(desk_.state.StartupDone);
    EXPECT_EQ(desk_.state.LanguageName, "English");
}

TEST_F(StartRoutineTest, ARecordedLanguageWithoutFontsGetsTheDefaultFont) {
    EXPECT_EQ(start(), StartResult::Running);
    EXPECT_EQ(desk_.state.FontName, "MS Sans Serif");
    EXPECT_EQ(desk_.state.FontSize, 8);
    EXPECT_TRUE(desk_.state.FontBold);
}

TEST_F(StartRoutineTest, ARecordedLanguageTakesItsFontsFromTheFile) {
    addSettings("[Font Info]\r\nFontName=Sans\r\nFontSize=12\r\n");
    EXPECT_EQ(start(), StartResult::Running);
    EXPECT_EQ(desk_.state.FontName, "Sans");
    EXPECT_EQ(desk_.state.FontSize, 12);
}

TEST_F(StartRoutineTest, TheFileTableAndTheLanguageAreFoundFromAnyFolder) {
    desk_.folder.write("FileTable.tbl", "*.JBI,1,1,1,1,1,1,1,1,1\r\n");
    EXPECT_EQ(start(), StartResult::Running);
    EXPECT_EQ(desk_.table.rows().size(), 1U);
    EXPECT_EQ(currentFolder(), desk_.folder.path());
}

TEST_F(StartRoutineTest, TheSessionGetsItsParametersAndTheFolder) {
    const std::string jobs = desk_.folder.makeFolder("jobs");
    addSettings("[Vantrel]\r\nPath=" + jobs + "\r\nPort=3\r\nBaudrate=19200\r\n");
    desk_.folder.write("robot.ini", "[Robot]\r\nName=R1\r\nIPaddr=10.0.0.5\r\n");
    EXPECT_EQ(start(), StartResult::Running);
    EXPECT_EQ(desk_.session.port, 3);
    EXPECT_EQ(desk_.session.Baudrate, 19200);
    EXPECT_EQ(desk_.session.IPaddress, "10.0.0.5");
    EXPECT_EQ(desk_.session.path, jobs);
    EXPECT_EQ(desk_.state.CurrentRobot.Path, desk_.folder.path());
}

TEST_F(StartRoutineTest, TheControllersFiltersFollowTheStoredModel) {
    addSettings("[Vantrel]\r\nControler=1\r\n");
    EXPECT_EQ(start(), StartResult::Running);
    EXPECT_EQ(desk_.window.controllerChoices, (std::vector<std::string>{"*.JBI", "*.DAT"}));
}

TEST_F(StartRoutineTest, YesReadsTheDirectory) {
    desk_.boxes.answers = {true};
    controller().put("A.JBI", "A");
    controller().put("B.JBI", "B");
    EXPECT_EQ(start(), StartResult::Running);
    const auto question = std::ranges::find(desk_.log, "askYesNo m1");
    EXPECT_EQ(tests::Log(question + 1, question + 5),
              (tests::Log{"load version", "BscOpen " + desk_.folder.path() + " 1", "show version",
                          "status Ctrl m152m16"}));
    EXPECT_EQ(desk_.window.controller.names, (std::vector<std::string>{"A.JBI", "B.JBI"}));
}

TEST_F(StartRoutineTest, NoLeavesThePaneEmpty) {
    controller().put("A.JBI", "A");
    EXPECT_EQ(start(), StartResult::Running);
    EXPECT_EQ(desk_.state.CtrlListing.Count, 0);
    EXPECT_TRUE(logged("status Ctrl m150m16"));
    EXPECT_EQ(desk_.boxes.shown[0].icon, BoxIcon::Question);
}

TEST_F(StartRoutineTest, AFailingReadIsToldAndTheStartGoesOn) {
    desk_.boxes.answers = {true};
    desk_.library.disturb({.function = "BscConnect", .code = 0});
    desk_.state.CtrlListing.append("OLD.JBI", 0, DateText());
    EXPECT_EQ(start(), StartResult::Running);
    ASSERT_EQ(desk_.boxes.texts(), (std::vector<std::string>{"m1", "m2\nCOM1\nBscConnect ( 0 )"}));
    EXPECT_EQ(desk_.boxes.shown[1].icon, BoxIcon::Exclamation);
    EXPECT_EQ(desk_.state.CtrlListing.Count, 0);
    EXPECT_TRUE(logged("show version"));
}

TEST_F(StartRoutineTest, ACancelledReadIsToldAndTheStartGoesOn) {
    desk_.boxes.answers = {true};
    controller().put("A.JBI", "A");
    controller().put("B.JBI", "B");
    desk_.library.onCall = [this](const std::string& function) {
        if (function == "BscFindNext")
            desk_.progress.pressCancel();
    };
    EXPECT_EQ(start(), StartResult::Running);
    EXPECT_EQ(desk_.boxes.texts(), (std::vector<std::string>{"m1", "m2\nCOM1\n ( m503 (3) )"}));
    EXPECT_EQ(desk_.state.CtrlListing.Count, 0);
    EXPECT_TRUE(logged("show version"));
}

TEST_F(StartRoutineTest, AnAddressThatIsNotSetIsToldOnce) {
    addSettings("[Vantrel]\r\nTransMode=16\r\n");
    desk_.folder.write("robot.ini", "[Robot]\r\nName=R1\r\nIPaddr=0.0.0.0\r\n");
    desk_.boxes.answers = {true};
    EXPECT_EQ(start(), StartResult::Running);
    EXPECT_EQ(desk_.boxes.texts(), (std::vector<std::string>{"m1", "m34"}));
}

struct ModeCase {
    const char* name;
    const char* settings;
    int linkType; ///< with which the directory is read
};

class StartModeTest : public StartRoutineTest, public testing::WithParamInterface<ModeCase> {};

TEST_P(StartModeTest, TheDirectoryIsReadTheRightWay) {
    addSettings("[Vantrel]\r\n" + std::string(GetParam().settings));
    desk_.folder.write("robot.ini", "[Robot]\r\nName=R1\r\nIPaddr=10.0.0.5\r\n");
    desk_.boxes.answers = {true};
    desk_.library.at("COM1");
    desk_.library.at("10.0.0.5");
    EXPECT_EQ(start(), StartResult::Running);
    EXPECT_TRUE(
        logged("BscOpen " + desk_.folder.path() + " " + std::to_string(GetParam().linkType)));
    EXPECT_EQ(static_cast<int>(desk_.state.TransMode), GetParam().linkType);
}

INSTANTIATE_TEST_SUITE_P(
    , StartModeTest,
    testing::Values(ModeCase{"Default", "", 1}, ModeCase{"Bsc", "TransMode=1\r\n", 1},
                    ModeCase{"HighSpeed", "TransMode=16\r\n", 16},
                    ModeCase{"HighSpeedWithoutTheLink", "TransMode=16\r\nControler=1\r\n", 1},
                    ModeCase{"Unknown", "TransMode=5\r\n", 1}),
    [](const auto& test) { return test.param.name; });

TEST_F(StartRoutineTest, ARenamedExecutableHasItsOwnSettings) {
    desk_.folder.write("tool.ini", "[Language Info]\r\nLanguage=English\r\nLangSelect=0\r\n"
                                   "[Vantrel]\r\nPort=9\r\n");
    EXPECT_EQ(startAs("C:\\Vantrel\\tool.exe", desk_.folder.path(), settingsFileName("tool.exe")),
              StartResult::Running);
    EXPECT_EQ(desk_.state.IniFileName, "tool.ini");
    EXPECT_EQ(desk_.state.Port, 9);
}

TEST_F(StartRoutineTest, AnUnexpectedErrorIsToldAndNothingIsSaved) {
    windows_.whenBuilt = [] { throw std::runtime_error("no more windows"); };
    EXPECT_EQ(start(), StartResult::Trapped);
    EXPECT_EQ(desk_.boxes.texts(), (std::vector<std::string>{"m43no more windows"}));
    EXPECT_EQ(desk_.boxes.shown[0].icon, BoxIcon::Exclamation);
    EXPECT_TRUE(desk_.state.NoSave);
    EXPECT_FALSE(desk_.state.StartupDone);
}

TEST_F(StartRoutineTest, AnErrorInTheMainWindowsStartIsToldAndWhatWasDoneIsKept) {
    windows_.whenStarted = [this] {
        desk_.state.PCPath = "/as far as it came";
        throw std::runtime_error("no more lists");
    };
    EXPECT_EQ(start(), StartResult::Running);
    EXPECT_EQ(desk_.boxes.texts(), (std::vector<std::string>{"m1", "m43no more lists"}));
    EXPECT_EQ(desk_.state.PCPath, "/as far as it came");
    EXPECT_EQ(desk_.log.back(), "main started") << "what comes behind the start comes all the same";
    EXPECT_TRUE(desk_.state.StartupDone);
    EXPECT_FALSE(desk_.state.NoSave) << "the robots of the run are kept";
}

TEST_F(StartRoutineTest, AnEmptyStoredFolderIsTheProgramsFolder) {
    addSettings("[Vantrel]\r\nPath=\r\n");
    EXPECT_EQ(start(), StartResult::Running);
    EXPECT_EQ(desk_.state.PCPath, desk_.folder.path());
    EXPECT_EQ(desk_.session.path, desk_.folder.path());
}

TEST_F(StartRoutineTest, AFolderThatCannotBeEnteredIsTold) {
    const std::string gone = desk_.folder.path("gone");
    EXPECT_EQ(startAs(gone + "/Vantrel", gone, "Vantrel.ini"), StartResult::Trapped);
    EXPECT_TRUE(desk_.boxes.texts()[0].starts_with("m43" + gone + ": "));
    EXPECT_TRUE(desk_.state.NoSave);
}

} // namespace
} // namespace vantrel
