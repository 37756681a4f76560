#include "console/Desk.h"

#include "app/robots/Machine.h"
#include "app/start/Engine.h"
#include "console/ConsoleMessages.h"
#include "files/ControllerPlace.h"
#include "files/FolderScan.h"
#include "files/TransferReports.h"
#include "lang/SystemReasons.h"
#include "link/SessionErrorRecord.h"
#include "link/ShownText.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace vantrel {

int causeOf(const Snappy& session) {
    constexpr std::array<std::string_view, 4> connecting{"BscOpen", "BscSetCom", "BscSetEther",
                                                         "BscConnect"};
    if (session.ErrorCode() == session_code::libraryUnusable)
        return exit_code::noLibrary;
    if (session.operatorIsTold())
        return exit_code::noConnection;
    if (session.ErrorCode() == session_code::machineInUse)
        return exit_code::inUse;
    const bool isLink = std::ranges::find(connecting, session.ErrorFunction()) != connecting.end();
    return isLink ? exit_code::noConnection : exit_code::nothingDone;
}

MachineDesk::MachineDesk(Desk& desk, const Target& target)
    : desk_(desk), command_(&desk.engine.use),
      panes(desk.engine.state, desk.engine.session, desk.engine.table, desk.engine.messages,
            window_),
      services{desk.engine.state,
               desk.engine.session,
               panes,
               window_,
               desk.engine.table,
               desk.engine.messages,
               desk.engine.progress,
               desk.engine.talk,
               results} {
    putInForce(desk.targets, target, desk.engine.state);
    passSessionParameters(desk.engine.state, desk.engine.session);
    desk.engine.session.path = target.folder;
    panes.emptyController();
}

std::string MachineDesk::name() const {
    return controllerName(desk_.engine.state);
}

bool MachineDesk::readController() {
    Engine& engine = desk_.engine;
    const bool isRead = panes.readController();
    if (!isRead && !operatorKnows(engine.session))
        engine.talk.tell(engine.messages.getMessage(message::controllerNotRead) +
                             directoryFailure(engine.state, engine.session),
                         BoxIcon::Exclamation);
    return isRead && panes.fill(ActiveSide::Controller);
}

bool MachineDesk::readFolder(bool settles) {
    ApplicationState& state = desk_.engine.state;
    Result<FolderListing> listing = scanFolder(state.PCPath);
    if (!listing) {
        const MessageTable& messages = desk_.engine.messages;
        desk_.report.message(messages.getMessage(message::folderNotOpened) + "\n" +
                             bracketed(state.PCPath) + " " +
                             reasonInLanguage(messages, listing.reason()));
        return false;
    }
    if (settles)
        return panes.scanPC(state.PCPath) && panes.fill(ActiveSide::PC);
    state.PCListing = std::move(*listing);
    return panes.fill(ActiveSide::PC);
}

std::string MachineDesk::reason() const {
    const Snappy& session = desk_.engine.session;
    if (session.operatorIsTold() && session.ErrorCode() != session_code::libraryUnusable)
        return desk_.engine.messages.getMessage(message::addressUnset);
    return functionAndReason(session);
}

} // namespace vantrel
