#include "app/start/Shutdown.h"

#include "app/robots/RobotRegistry.h"
#include "base/ApplicationState.h"
#include "lang/MessageBoxes.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "lang/SystemReasons.h"
#include "link/Snappy.h"

namespace vantrel {

bool Shutdown::close() {
    if (closed_)
        return true;
    // Before anything is unloaded: a running operation still needs its windows.
    if (isRefused())
        return false;
    with_.windows.unloadOtherWindows();
    if (!with_.boxes.askOkCancel(with_.messages.getMessage(message::askExit), BoxIcon::Question))
        return false;
    return saveAndQuit();
}

bool Shutdown::closeUnasked() {
    if (closed_)
        return true;
    if (isRefused())
        return false;
    with_.windows.unloadOtherWindows();
    return saveAndQuit();
}

bool Shutdown::saveAndQuit() {
    if (!with_.state.NoSave && !save())
        return false;
    with_.session.Quit();
    closed_ = true;
    return true;
}

bool Shutdown::isRefused() const {
    return with_.windows.isLocked() || !with_.state.StartupDone;
}

bool Shutdown::save() const {
    // Settings that cannot be kept cost the operator a few clicks and are not worth a word; lost
    // robots are.
    (void)with_.settings.write(with_.state, with_.windows.placement());
    const Outcome registry = with_.registry.write();
    return registry || acceptsLoss(reasonInLanguage(with_.messages, registry.reason()));
}

// Without edits only the choice of a robot is lost, which holds no close up.
bool Shutdown::acceptsLoss(const std::string& reason) const {
    const std::string text = with_.messages.getMessage(message::registryNotWritten) + reason;
    if (with_.registry.hasUnwrittenEdit())
        return with_.boxes.askOkCancel(
            text + "\n" + with_.messages.getMessage(message::askLoseRobots), BoxIcon::Exclamation);
    with_.boxes.tell(text, BoxIcon::Exclamation);
    return true;
}

} // namespace vantrel
