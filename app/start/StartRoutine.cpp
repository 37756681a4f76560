#include "app/start/StartRoutine.h"

#include "app/commands/ModeCommands.h"
#include "app/robots/Machine.h"
#include "app/robots/RobotRegistry.h"
#include "app/settings/SettingsFile.h"
#include "app/start/DeliveredFiles.h"
#include "base/ApplicationState.h"
#include "base/PathRules.h"
#include "files/PaneWindow.h"
#include "files/Panes.h"
#include "files/TransferReports.h"
#include "files/TransferTable.h"
#include "lang/LanguageChoice.h"
#include "lang/MessageBoxes.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "lang/SystemReasons.h"
#include "link/Snappy.h"
#include "platform/Files.h"

#include <exception>
#include <utility>

namespace vantrel {

StartRoutine::StartRoutine(StartServices services) : with_(std::move(services)) {}

StartResult StartRoutine::Main() {
    try {
        return run();
    } catch (const std::exception& error) {
        return trap(error.what());
    } catch (...) {
        return trap("?");
    }
}

StartResult StartRoutine::run() {
    if (with_.commandLine.endsAtOnce)
        return StartResult::ExitSwitch;
    with_.state.IniFileName = settingsFileName(with_.executable);
    with_.state.TransMode = TransferMode::Bsc;
    const auto undelivered = DeliveredFiles(with_.programFolder).takePlaces();
    // A missing or broken table leaves its rows so far; transfers then explain what they refuse.
    (void)with_.table.load(with_.programFolder);
    if (!with_.language.loadDefaultLanguage()) {
        tellUndelivered(undelivered);
        return StartResult::NoLanguage;
    }
    with_.state.StartupDone = false;
    if (with_.commandLine.startedForAutomation)
        return StartResult::Automation;
    tellUndelivered(undelivered);
    if (const Outcome entered = enterProgramFolder(); !entered)
        return trap(with_.programFolder + ": " +
                    reasonInLanguage(with_.messages, entered.reason()));
    setHelpFile();
    if (!chooseLanguage())
        return StartResult::LanguageCancelled;
    setHelpFile();
    loadSettings();
    offerControllerDirectory();
    openMainWindow();
    return StartResult::Running;
}

// Where nothing can be placed there are no texts, or those of an older version, without this one.
void StartRoutine::tellUndelivered(const std::vector<UndeliveredFile>& files) {
    if (files.empty())
        return;
    std::string text = with_.messages.getMessage(message::filesNotPlaced);
    if (text.empty())
        text = "New files of this version could not be put into the program folder. Vantrel tries "
               "again at each start. Check that this folder and the folder .installed in it can be "
               "written to, and that no file in them is write-protected:";
    for (const auto& file : files)
        text += "\n" + file.path + ": " + reasonInLanguage(with_.messages, file.reason);
    with_.boxes.tell(text, BoxIcon::Exclamation);
}

Outcome StartRoutine::enterProgramFolder() {
    Outcome entered = changeCurrentFolder(with_.programFolder);
    if (entered)
        with_.state.PCPath = currentFolder();
    return entered;
}

// One file for every language.
void StartRoutine::setHelpFile() {
    with_.state.HelpFile = PathRules().join(with_.programFolder, "Vantrel.hlp");
}

bool StartRoutine::chooseLanguage() {
    const std::string& settingsPath = with_.settings.path();
    if (with_.language.loadLanguagePreference(settingsPath)) {
        // The locale's font first: a settings file without fonts must not leave one of size 0.
        with_.language.setDefaultFonts(settingsPath);
        return true;
    }
    with_.state.LangCancelled = false;
    with_.windows.showLanguageDialog();
    return !with_.state.LangCancelled;
}

void StartRoutine::loadSettings() {
    with_.windows.showStartMessage();
    // The registry fills the robot box, so the window has to be there, still hidden.
    main_.emplace(with_.windows.buildMainWindow());
    main_->panes.fillFilterChoices();
    with_.settings.read(with_.state);
    makeFolderAbsolute(with_.state, with_.programFolder);
    with_.registry.read(main_->robots);
    passSessionParameters(with_.state, with_.session);
    with_.session.path = with_.state.PCPath;
    with_.windows.unloadStartMessage();
    // Before the directory is read, so that the question is about the machine that is meant. The
    // controller's filters follow the model, which is known only now.
    normaliseMode(with_.state);
    main_->panes.fillFilterChoices();
}

void StartRoutine::offerControllerDirectory() {
    Panes& panes = main_->panes;
    const MessageTable& messages = with_.messages;
    if (with_.boxes.askYesNo(messages.getMessage(message::askReadController), BoxIcon::Question)) {
        with_.windows.loadVersionWindow();
        if (!panes.readController()) {
            if (!with_.session.operatorIsTold())
                with_.boxes.tell(messages.getMessage(message::controllerNotRead) +
                                     directoryFailure(with_.state, with_.session),
                                 BoxIcon::Exclamation);
            panes.emptyController();
        }
        with_.windows.showVersionWindow();
    } else {
        panes.emptyController();
    }
    panes.fill(ActiveSide::Controller);
}

void StartRoutine::openMainWindow() {
    with_.windows.showMainWindow();
    main_->window.list(ActiveSide::PC).focus();
    with_.state.Busy = false;
    startOpenedWindow();
    with_.windows.mainWindowStarted();
    with_.state.StartupDone = true;
}

// An error there leaves a window that may lack its last touches; the operator can work with it, and
// settings and robots have been read.
void StartRoutine::startOpenedWindow() {
    try {
        main_->start();
    } catch (const std::exception& error) {
        tellStartFailed(error.what());
    } catch (...) {
        tellStartFailed("?");
    }
}

StartResult StartRoutine::trap(const std::string& reason) {
    with_.state.NoSave = true;
    tellStartFailed(reason);
    return StartResult::Trapped;
}

// Before a language is read there is no text for it but this one.
void StartRoutine::tellStartFailed(const std::string& reason) {
    const std::string head = with_.messages.getMessage(message::startFailed);
    with_.boxes.tell(head.empty() ? "Start Error.(" + reason + ")" : head + reason,
                     BoxIcon::Exclamation);
}

} // namespace vantrel
