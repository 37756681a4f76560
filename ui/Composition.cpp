#include "ui/Composition.h"

#include "files/FolderScan.h"
#include "platform/Drives.h"
#include "platform/Environment.h"
#include "ui/FolderTreeDropDown.h"
#include "ui/WasteBin.h"
#include "ui/frmZuroVant.h"

#include <utility>

#include <wx/app.h>

namespace vantrel {

Composition::Composition(std::string executable, std::span<const std::string> arguments,
                         Zurolink* library)
    : commandLine_(readCommandLine(arguments)), boxes_(messages_), printer_(messages_),
      questions_(messages_, state_), engine_(ground(std::move(executable), library)),
      versionWindow_(messages_, state_) {
    // What the operator does to the windows being built is refused.
    starting_.emplace(guard_);
    guard_.onEnded = [this] { engine_.use.end(); };
    guard_.onBegun = [this] {
        engine_.use.begin();
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

EngineGround Composition::ground(std::string executable, Zurolink* library) {
    return {
        .state = state_,
        .messages = messages_,
        .boxes = boxes_,
        .questions = questions_,
        .executable = std::move(executable),
        .beforeLibraryCall = [this] { bringScreenUpToDate(); },
        .dummyWindow =
            [this] {
                if (!dummyWindow_)
                    dummyWindow_.reset(new frmDumy);
                return dummyWindow_->handle();
            },
        .unloadWindows = [this] { dummyWindow_.unload(); },
        .modeChanged =
            [this] {
                if (opened_)
                    opened_->program.main.modeWasChanged();
            },
        .library = library,
    };
}

Composition::Opened::Opened(Composition& owner, frmZuroVant& window)
    : listFiles(window, owner.state_, owner.engine_.session, owner.boxes_, owner.messages_),
      prompts(window, owner.messages_, owner.state_),
      program(owner.engine_, {.panes = window,
                              .view = window,
                              .robots = window,
                              .viewer = window,
                              .tree = *window.controls().trvFolderList,
                              .printer = owner.printer_,
                              .listFiles = listFiles,
                              .shutdown = owner,
                              .folders = {listDrives, subfolders},
                              .editTextFile = editTextFile,
                              .openDocument = openDocument,
                              .moveToWasteBin = moveToWasteBin,
                              .prompts = prompts}),
      dialogs(owner.engine_, program, window, owner.progressWindow_, owner.versionWindow_),
      runner(commandTable(), {program.main, program.files, program.lists, program.help, dialogs}) {}

StartResult Composition::start() {
    const auto result = StartRoutine({.state = state_,
                                      .table = engine_.table,
                                      .language = engine_.language,
                                      .messages = messages_,
                                      .boxes = boxes_,
                                      .settings = engine_.settings,
                                      .registry = engine_.registry,
                                      .session = engine_.session,
                                      .windows = *this,
                                      .commandLine = commandLine_,
                                      .executable = engine_.executable,
                                      .programFolder = engine_.programFolder})
                            .Main();
    starting_.reset();
    return result;
}

void Composition::showLanguageDialog() {
    openLanguageDialog(nullptr, engine_);
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
    versionWindow_.load();
}

void Composition::showVersionWindow() {
    versionWindow_.show();
}

StartedWindow Composition::buildMainWindow() {
    progressWindow_.reset(new frmMsgStat(engine_.progress, messages_, state_, [this] { yield(); }));
    window_.reset(new frmZuroVant(state_, messages_, guard_));
    wxTheApp->SetTopWindow(window_.get());
    opened_ = std::make_unique<Opened>(*this, *window_);
    connectMainWindow();
    return {.panes = opened_->program.panes,
            .robots = *window_,
            .window = *window_,
            .start = [this] { opened_->program.start(); }};
}

void Composition::connectMainWindow() {
    MainProgram& program = opened_->program;
    window_->connect(program.main, program.files, opened_->runner);
    window_->controls().trvFolderList->connect(program.folderTree);
    window_->onClose = [&program] { return program.shutdown.close(); };
    window_->onForcedClose = [&program] { return program.shutdown.closeUnasked(); };
    window_->onRobotChosen = [&program](int index) { program.robots.choose(index); };
}

void Composition::showMainWindow() {
    // Placed before it is shown as well: a window manager that is told a size and then another one
    // may answer the first.
    window_->place(state_.WindowPos);
    window_->Show();
}

void Composition::mainWindowStarted() {
    // The library is looked at when everything stands, not while the operator waits for the window.
    window_->CallAfter([this] {
        opened_->dialogs.showSimulationNotice();
        versionWindow_.bringBefore(*window_);
        window_->watchPCFolder();
    });
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

void Composition::yield() {
    guard_.yield();
    bringScreenUpToDate();
}

void Composition::bringScreenUpToDate() {
    const ActionsRefused refused(guard_);
    screen_.bringUpToDate();
}

} // namespace vantrel
