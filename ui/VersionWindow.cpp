#include "ui/VersionWindow.h"

#include "app/commands/HelpCommands.h"
#include "platform/Environment.h"
#include "ui/look/SystemLook.h"

namespace vantrel {

VersionWindow::VersionWindow(const MessageTable& messages, const ApplicationState& state)
    : messages_(messages), state_(state), watch_([this](wxDialog& dialog) { closeFor(dialog); }) {}

void VersionWindow::load() {
    window_.reset(new frmVers(nullptr, versionText(programVersion()), messages_, state_));
}

void VersionWindow::show() {
    if (window_)
        window_->Show();
}

void VersionWindow::open(wxWindow& parent) {
    if (!window_)
        window_.reset(new frmVers(&parent, versionText(programVersion()), messages_, state_));
    window_->openModal();
}

void VersionWindow::bringBefore(wxWindow& main) {
    if (window_ && window_->IsShown())
        setOwner(*window_, main);
}

void VersionWindow::unload() {
    window_.unload();
}

// A dialog behind the version window of the start could not be answered, nor could the version
// window be closed then. One that is only loaded has still to come.
void VersionWindow::closeFor(const wxDialog& dialog) {
    if (window_ && window_.get() != &dialog && window_->IsShown() && !window_->IsModal())
        window_.unload();
}

} // namespace vantrel
