#include "ui/CommandDialogs.h"

#include "app/Engine.h"
#include "app/LanguageDraft.h"
#include "app/MainProgram.h"
#include "app/SettingDraft.h"
#include "files/FolderFiles.h"
#include "files/Subfolders.h"
#include "lang/MessageNumbers.h"
#include "platform/Drives.h"
#include "platform/Environment.h"
#include "platform/NetworkFolders.h"
#include "ui/VersionWindow.h"
#include "ui/dialogs/frmLanguage.h"
#include "ui/dialogs/frmSetting.h"
#include "ui/frmZuroVant.h"

namespace vantrel {

void openLanguageDialog(wxWindow* parent, Engine& engine) {
    LanguageDraft draft({engine.state, engine.messages, engine.languages, engine.language,
                         engine.boxes, engine.programFolder, engine.settings.path(),
                         localeLanguageName(), editTextFile});
    frmLanguage(parent, draft, engine.messages, engine.state).ShowModal();
}

void CommandDialogs::openSettings() {
    SettingDraft draft(engine_.state, engine_.messages, engine_.programFolder);
    const auto onNetwork = [](const std::string& folder) { return isOnNetwork(folder); };
    {
        frmSetting dialog(&window_, draft,
                          {.messages = engine_.messages,
                           .state = engine_.state,
                           .boxes = engine_.boxes,
                           .folders = {listDrives, subfolders, folderFiles, onNetwork},
                           .apply = [&] { program_.settings.apply(draft); }});
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

void CommandDialogs::showSimulationNotice() {
    if (engine_.isSimulation())
        window_.showNotice(engine_.messages.getMessage(message::simulationNotice));
}

} // namespace vantrel
