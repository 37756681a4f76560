#include "link/LinkConnection.h"

#include "base/PathRules.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/OperatorTalk.h"
#include "link/SessionErrorRecord.h"
#include "link/SessionServices.h"
#include "link/Zurolink.h"
#include "platform/Files.h"
#include "platform/TextEncoding.h"

#include <utility>

namespace vantrel {
namespace {

constexpr std::int16_t stepDone = 1; ///< success of set-up, connect and disconnect
constexpr std::int16_t callDone = 0; ///< success of close and of the transfer functions
constexpr const char* unsetAddress = "0.0.0.0";

} // namespace

void LinkConnection::begin(FolderUse use) {
    begunWith_ = ends();
    folderUse_ = use;
    endedByUnsetAddress_ = false;
}

LinkConnection::Ends LinkConnection::ends() const {
    return {services_.TransMode, properties_.port, properties_.IPaddress, properties_.path};
}

bool LinkConnection::isAsBegun() {
    if (!begunWith_ || *begunWith_ == ends())
        return true;
    error_.set(session_code::controllerChanged, "", 0);
    return false;
}

std::optional<std::string> LinkConnection::workingFolder() const {
    auto folder = toCodePage(properties_.path);
    if (folderUse_ == FolderUse::Files || (folder && isFolder(properties_.path)))
        return folder;
    return toCodePage(services_.programFolder);
}

std::int16_t LinkConnection::connect() {
    if (!isAsBegun() || !takeMachine())
        return noHandle;
    // The library keeps files of its own beside the program; without that folder it may still work.
    static_cast<void>(changeCurrentFolder(services_.programFolder));
    const auto folder = workingFolder();
    if (!folder) {
        error_.set(session_code::folderNotExpressible, "BscOpen", 0);
        return noHandle;
    }
    const std::int16_t handle =
        library().BscOpen(folder->c_str(), static_cast<std::int16_t>(services_.TransMode));
    if (handle < 0) {
        error_.setReturned(handle, "BscOpen", 0);
        return noHandle;
    }
    if (addressUnset())
        return refuseUnsetAddress(handle);
    if (configure(handle) && accept(library().BscConnect(handle), "BscConnect"))
        return handle;
    library().BscClose(handle);
    return noHandle;
}

bool LinkConnection::takeMachine() {
    if (!services_.use || addressUnset())
        return true;
    const ReachedMachine machine{services_.TransMode, properties_.port, properties_.IPaddress};
    MachineUse::Taking taking = services_.use->take(machine);
    if (taking.answer == MachineUse::Answer::InUse) {
        error_.set(session_code::machineInUse, "", 0);
        error_.machine = machine.name();
        error_.user = std::move(taking.holder);
        return false;
    }
    if (taking.answer == MachineUse::Answer::Taken || !services_.use->isStrict())
        return true;
    error_.set(session_code::machineNotHeld, "", 0);
    error_.machine = std::move(taking.file);
    error_.systemReason = std::move(taking.reason);
    return false;
}

bool LinkConnection::addressUnset() const {
    return services_.TransMode != TransferMode::Bsc && properties_.IPaddress == unsetAddress;
}

std::int16_t LinkConnection::refuseUnsetAddress(std::int16_t handle) {
    endedByUnsetAddress_ = true;
    library().BscClose(handle);
    services_.talk.tell(services_.messages.getMessage(message::addressUnset), BoxIcon::Exclamation);
    return noHandle;
}

bool LinkConnection::configure(std::int16_t handle) {
    return services_.TransMode == TransferMode::Bsc ? configureSerial(handle)
                                                    : configureEthernet(handle);
}

bool LinkConnection::configureSerial(std::int16_t handle) {
    const SessionProperties& with = properties_;
    return accept(library().BscSetCom(handle, with.port, with.Baudrate, with.parity, with.DataLen,
                                      with.StopBit),
                  "BscSetCom");
}

bool LinkConnection::configureEthernet(std::int16_t handle) {
    const auto address = libraryText(properties_.IPaddress, "BscSetEther", 0);
    if (!address)
        return false;
    void* const window = services_.dummyWindow ? services_.dummyWindow() : nullptr;
    return accept(library().BscSetEther(handle, address->c_str(), 0, window), "BscSetEther");
}

bool LinkConnection::accept(std::int16_t result, const char* function) {
    if (result != stepDone)
        error_.setReturned(result, function, 0);
    return result == stepDone;
}

bool LinkConnection::disconnect(std::int16_t handle) {
    const std::int16_t disconnected = library().BscDisConnect(handle);
    if (disconnected != stepDone) {
        // Deliberately no BscClose: a link that is still connected stays the library's.
        error_.setReturned(disconnected, "BscDisConnect");
        return false;
    }
    const std::int16_t closed = library().BscClose(handle);
    if (closed != callDone)
        error_.setReturned(closed, "BscClose");
    return closed == callDone;
}

bool LinkConnection::finish(std::int16_t handle, std::int16_t result, const char* function,
                            std::optional<std::int32_t> index) {
    const bool closed = disconnect(handle);
    if (result == callDone)
        return closed;
    error_.setReturned(result, function, index);
    return false;
}

std::optional<std::string> LinkConnection::libraryText(const std::string& text,
                                                       const char* function,
                                                       std::optional<std::int32_t> index) {
    auto converted = toCodePage(text);
    if (!converted)
        error_.set(session_code::nameNotExpressible, function, index);
    return converted;
}

std::optional<std::string> LinkConnection::libraryFileName(const std::string& name,
                                                           const char* function,
                                                           std::optional<std::int32_t> index) {
    if (PathRules::isPlainName(name))
        return libraryText(name, function, index);
    error_.set(session_code::nameRefused, "", index);
    return {};
}

Zurolink& LinkConnection::library() const {
    return services_.library;
}

} // namespace vantrel
