#include "ui/Composition.h"

#include "app/MainWindowStart.h"
#include "app/SettingDraft.h"
#include "base/PathRules.h"
#include "files/FolderFiles.h"
#include "files/Subfolders.h"
#include "lang/MessageNumbers.h"
#include "platform/Drives.h"
#include "platform/Environment.h"
#include "platform/NetworkFolders.h"
#include "ui/FolderTreeDropDown.h"
#include "ui/SystemLook.h"
#include "ui/dialogs/LanguageDraft.h"
#include "ui/dialogs/VersionText.h"
#include "ui/dialogs/frmLanguage.h"
#include "ui/dialogs/frmSetting.h"
#include "ui/frmZuroVant.h"

#include <wx/app.h>

namespace vantrel {

Composition::Composition(std::string executable, std::span<const std::string> arguments,
                         Zurolink* library)
    : executable_(std::move(executable)), programFolder_(PathRules().parent(executable_)),
      commandLine_(readCommandLine(arguments)), languages_(programFolder_), boxes_(messages_),
      printer_(messages_), questions_(messages_, state_), dialog_(progress_, questions_, boxes_),
      languageChoice_(state_, messages_, languages_, boxes_, localeLanguageName()),
      settings_(programFolder_, settingsFileName(executable_)),
      registry_(state_, messages_, boxes_, programFolder_),
      library_(programFolder_, [this](const LibraryProblem& problem) { reportLibrary(problem); }),
      gate_(library ? *library : library_, [this] { bringScreenUpToDate(); }) {
    // Until the start is over, what the operator does to the windows being built is refused.
    guard_.lock();
    guard_.onBegun = [this] {
        if (progressWindow_)
            progressWindow_->beginCommand();
    };
}

// A window that is still there shows rows and a text that the commands hold; at once, since a
// deferred end would come after theirs.
Composition::~Composition() {
    versionWindow_.unload();
    delete window_.get();
}

Composition::Commands::Commands(Composition& owner, frmZuroVant& window)
    : panes(owner.state_, *owner.session_, owner.table_, owner.messages_, window),
      transferServices{owner.state_, *owner.session_, panes,           window,
                       owner.table_, owner.messages_, owner.progress_, owner.dialog_},
      transfers(transferServices),
      folder(owner.state_, panes, owner.dialog_, window, *window.controls().trvFolderList),
      services{owner.state_,    *owner.session_, panes,  transfers,
               owner.messages_, owner.dialog_,   window, window,
               folder,          editTextFile,    window, owner.printer_},
      main(services),
      folderTree(services, main, *window.controls().trvFolderList, {listDrives, subfolders}),
      robots({owner.state_, *owner.session_, panes, owner.messages_, owner.boxes_, owner}),
      settings(
          {owner.state_, *owner.session_, panes, owner.registry_, window, robots, window, main}),
      listFiles(window, owner.state_, *owner.session_, owner.boxes_, owner.messages_),
      lists(transferServices, listFiles), help(owner.state_, owner.programFolder_, openDocument),
      shutdown({owner.state_, owner.settings_, owner.registry_, *owner.session_, owner.messages_,
                owner.boxes_, owner}),
      runner(commandTable(), {main, lists, help, owner}) {}

StartResult Composition::start() {
    const auto result = StartRoutine({state_, table_, languageChoice_, messages_, boxes_, settings_,
                                      registry_, *this, commandLine_, executable_, programFolder_})
                            .Main();
    guard_.unlock();
    return result;
}

void Composition::setHelpFile(const std::string& path) {
    helpFile_ = path;
}

Snappy& Composition::createSession() {
    progressWindow_.reset(new frmMsgStat(progress_, messages_, state_, [this] { yield(); }));
    session_ = std::make_unique<Snappy>(SessionServices{
        .library = gate_,
        .TransMode = state_.TransMode,
        .messages = messages_,
        .languages = languages_,
        .progress = progress_,
        .dialog = dialog_,
        .programFolder = programFolder_,
        .dummyWindow =
            [this] {
                if (!dummyWindow_)
                    dummyWindow_.reset(new frmDumy);
                return dummyWindow_->handle();
            },
        .unloadWindows = [this] { dummyWindow_.unload(); },
        .modeChanged =
            [this] {
                if (commands_)
                    commands_->main.modeWasChanged();
            },
    });
    return *session_;
}

void Composition::showLanguageDialog() {
    LanguageDraft draft({state_, messages_, languages_, languageChoice_, boxes_, programFolder_,
                         settings_.path(), localeLanguageName(), editTextFile});
    frmLanguage dialog(window_.get(), draft, messages_, state_);
    dialog.ShowModal();
}

void Composition::showStartMessage() {
    startMessage_.reset(new FrmMessage("", messages_, state_));
    startMessage_->showPainted([this] { yield(); });
}

void Composition::unloadStartMessage() {
    // The last window of all would stay on the screen until the program is idle.
    if (startMessage_)
        startMessage_->Hide();
    startMessage_.unload();
}

void Composition::loadVersionWindow() {
    versionWindow_.reset(new frmVers(nullptr, versionText(programVersion()), messages_, state_));
}

void Composition::showVersionWindow() {
    if (versionWindow_)
        versionWindow_->Show();
}

void Composition::buildMainWindow() {
    window_.reset(new frmZuroVant(state_, messages_, guard_));
    wxTheApp->SetTopWindow(window_.get());
    commands_ = std::make_unique<Commands>(*this, *window_);
    window_->connect(commands_->main, commands_->runner);
    window_->controls().trvFolderList->connect(commands_->folderTree);
    window_->onClose = [this] { return commands_->shutdown.close(); };
    window_->onForcedClose = [this] { return commands_->shutdown.closeUnasked(); };
    window_->onRobotChosen = [this](int index) { commands_->robots.choose(index); };
    commands_->panes.fillFilterChoices();
}

void Composition::showMainWindow() {
    // Placed before it is shown as well: a window manager that is told a size and then another one
    // may answer the first.
    window_->place(state_.WindowPos);
    window_->Show();
}

void Composition::focusPCList() {
    window_->list(ActiveSide::PC).focus();
}

void Composition::startMainWindow() {
    vantrel::startMainWindow(commands_->services, commands_->main);
    // The library is looked at when everything stands, not while the operator waits for the window.
    window_->CallAfter([this] {
        showSimulationNotice();
        bringVersionWindowForward();
    });
}

RobotBox& Composition::robotBox() {
    return *window_;
}

Panes& Composition::panes() {
    return commands_->panes;
}

bool Composition::isLocked() const {
    return guard_.isLocked();
}

void Composition::unloadOtherWindows() {
    startMessage_.unload();
    versionWindow_.unload();
}

WindowPlacement Composition::placement() const {
    return window_->placement();
}

void Composition::selectRobot(int index) {
    window_->select(index);
}

void Composition::showAddress(const std::string& address) {
    window_->showAddress(address);
}

bool Composition::enterFolder(const std::string& folder) {
    return commands_->folder.enter(folder, FolderTree::driveAndFolder(folder));
}

void Composition::refreshStates() {
    commands_->main.updateStates();
}

void Composition::refreshActivePane() {
    commands_->main.refreshActivePane();
}

void Composition::openSettings() {
    SettingDraft draft(state_, messages_, programFolder_);
    const auto onNetwork = [](const std::string& folder) { return isOnNetwork(folder); };
    {
        frmSetting dialog(window_.get(), draft,
                          {.messages = messages_,
                           .state = state_,
                           .boxes = boxes_,
                           .folders = {listDrives, subfolders, folderFiles, onNetwork},
                           .apply = [&] { commands_->settings.apply(draft); }});
        dialog.ShowModal();
    }
    commands_->settings.showSettings();
}

void Composition::openVersionWindow() {
    if (!versionWindow_)
        versionWindow_.reset(
            new frmVers(window_.get(), versionText(programVersion()), messages_, state_));
    versionWindow_->openModal();
}

/// The version window came before the main window, which may have taken the front since.
void Composition::bringVersionWindowForward() {
    if (versionWindow_ && versionWindow_->IsShown())
        setOwner(*versionWindow_, *window_);
}

/// A dialog behind the version window of the start could not be answered, nor could the version
/// window be closed then. One that is only loaded has still to come.
void Composition::closeVersionWindowFor(wxDialog& dialog) {
    if (versionWindow_ && versionWindow_.get() != &dialog && versionWindow_->IsShown() &&
        !versionWindow_->IsModal())
        versionWindow_.unload();
}

void Composition::changeLanguage() {
    showLanguageDialog();
    commands_->settings.recaption();
    window_->applyFont();
    if (progressWindow_)
        progressWindow_->applyCaptions();
    showSimulationNotice();
}

void Composition::showSimulationNotice() {
    if (library_.simulation())
        window_->showNotice(messages_.getMessage(message::simulationNotice));
}

void Composition::yield() {
    guard_.yield();
    bringScreenUpToDate();
}

void Composition::bringScreenUpToDate() {
    const OperationLock lock(guard_);
    screen_.bringUpToDate();
}

void Composition::reportLibrary(const LibraryProblem& problem) {
    std::string text = messages_.getMessage(message::libraryUnusable) + problem.path;
    if (!problem.reason.empty())
        text += "\n" + problem.reason;
    if (!problem.missing.empty())
        text += "\n" + messages_.getMessage(message::libraryFunctionsMissing);
    for (const auto& name : problem.missing)
        text += "\n" + name;
    dialog_.tell(text, BoxIcon::Exclamation);
    if (session_)
        session_->noteOperatorTold();
}

} // namespace vantrel
