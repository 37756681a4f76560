#include "ui/CommandDialogs.h"

#include "app/lists/ListFileDraft.h"
#include "app/robots/ConnectionTest.h"
#include "app/settings/LanguageDraft.h"
#include "app/settings/SettingDraft.h"
#include "app/start/Engine.h"
#include "app/start/MainProgram.h"
#include "files/FolderScan.h"
#include "files/RobotMark.h"
#include "lang/MessageNumbers.h"
#include "platform/Drives.h"
#include "platform/Environment.h"
#include "ui/VersionWindow.h"
#include "ui/dialogs/frmConnectionTest.h"
#include "ui/dialogs/frmLanguage.h"
#include "ui/dialogs/frmListFile.h"
#include "ui/dialogs/frmResult.h"
#include "ui/dialogs/frmRobotMark.h"
#include "ui/dialogs/frmSetting.h"
#include "ui/frmZuroVant.h"
#include "ui/look/Captions.h"
#include "ui/look/WxText.h"

#include <utility>

#include <wx/filedlg.h>

namespace vantrel {

bool ListFileDialogs::readList(std::string_view mode) {
    ListFileDraft draft(state_, session_, boxes_, messages_, mode);
    frmListFile dialog(&parent_, draft, state_);
    dialog.ShowModal();
    return draft.result() == list_file_result::listRead;
}

/// Whether an existing file may be replaced is asked by the caller: what is typed without an ending
/// is another file than the one that this dialog would ask about.
std::optional<std::string> ListFileDialogs::askNewList(const std::string& folder,
                                                       const std::string& name) {
    const std::string title = withoutMnemonic(messages_.getMessage(message::menuSaveSelection));
    wxFileDialog dialog(&parent_, toWx(title), toWx(folder), toWx(name), "*.lst|*.lst", wxFD_SAVE);
    if (dialog.ShowModal() != wxID_OK)
        return std::nullopt;
    return fromWx(dialog.GetPath());
}

void openLanguageDialog(wxWindow* parent, Engine& engine) {
    LanguageDraft draft({engine.state, engine.messages, engine.languages, engine.language,
                         engine.boxes, engine.programFolder, engine.settings.path(),
                         localeLanguageName(), editTextFile});
    frmLanguage(parent, draft, engine.messages, engine.state).ShowModal();
}

void CommandDialogs::openSettings() {
    SettingDraft draft(engine_.state, engine_.messages, engine_.programFolder);
    const auto testSelected = [&](wxWindow& parent) {
        const auto selected = draft.robots().selected();
        if (selected)
            test(parent, controllerOf(draft.robots().entries().at(*selected), draft.serial().line(),
                                      engine_.state.TransMode));
    };
    const auto onNetwork = [](const std::string& folder) { return isOnNetwork(folder); };
    {
        frmSetting dialog(&window_, draft,
                          {.messages = engine_.messages,
                           .state = engine_.state,
                           .boxes = engine_.boxes,
                           .folders = {listDrives, subfolders, folderFiles, onNetwork},
                           .apply = [&] { program_.settings.apply(draft); },
                           .testConnection = testSelected});
        dialog.ShowModal();
    }
    program_.settings.showSettings();
}

void CommandDialogs::changeLanguage() {
    openLanguageDialog(&window_, engine_);
    program_.settings.recaption();
    window_.applyFont();
    if (progress_)
        progress_->applyCaptions();
    showSimulationNotice();
}

void CommandDialogs::openVersionWindow() {
    version_.open(window_);
}

void CommandDialogs::openResult() {
    // A second click may have waited behind the first one.
    if (std::exchange(resultOpen_, true))
        return;
    bool again = false;
    {
        frmResult dialog(&window_, program_.results, engine_.messages, engine_.state);
        again = dialog.ShowModal() == wxID_RETRY;
    }
    resultOpen_ = false;
    if (again)
        program_.results.tryAgain();
}

void CommandDialogs::testConnection() {
    test(window_, controllerInForce(engine_.state));
}

void CommandDialogs::editRobotMark() {
    RobotMarkDraft mark(engine_.state.CurrentRobot);
    if (std::exchange(markOpen_, true))
        return;
    if (frmRobotMark(&window_, mark, engine_.messages, engine_.state).ShowModal() == wxID_OK)
        program_.settings.takeMark(mark.robot());
    markOpen_ = false;
}

void CommandDialogs::test(wxWindow& parent, const TestedController& controller) {
    // The settings dialog stays open while what it applied is read from the controller.
    if (engine_.state.Busy || std::exchange(testOpen_, true))
        return;
    ConnectionTest test({.state = engine_.state,
                         .messages = engine_.messages,
                         .session = engine_.session,
                         .window = window_,
                         .libraryProblem = [this] { return engine_.libraryProblem(); }},
                        controller);
    frmConnectionTest(&parent, test, engine_.messages, engine_.state).ShowModal();
    testOpen_ = false;
}

void CommandDialogs::showSimulationNotice() {
    if (engine_.isSimulation())
        window_.showNotice(engine_.messages.getMessage(message::simulationNotice));
}

} // namespace vantrel
