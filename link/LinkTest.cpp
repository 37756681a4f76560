#include "link/LinkTest.h"

#include "lang/MessageTable.h"
#include "lang/SystemReasons.h"
#include "link/DirectoryReader.h"
#include "link/LinkConnection.h"
#include "link/ShownText.h"

namespace vantrel {
namespace {

using Kind = LinkTestStep::Kind;

SessionServices inMode(const SessionServices& services, TransferMode& mode) {
    return {.library = services.library,
            .TransMode = mode,
            .messages = services.messages,
            .languages = services.languages,
            .progress = services.progress,
            .talk = services.talk,
            .programFolder = services.programFolder,
            .dummyWindow = services.dummyWindow,
            .use = services.use};
}

SessionProperties reaching(const LinkTarget& target, SessionProperties properties) {
    properties.port = target.serial.Port;
    properties.Baudrate = target.serial.Baudrate;
    properties.parity = target.serial.Parity;
    properties.DataLen = target.serial.DataLen;
    properties.StopBit = target.serial.StopBit;
    properties.IPaddress = target.address;
    return properties;
}

/// With what stands in the way of the machine.
std::string textWithMachine(const MessageTable& messages, const SessionErrorRecord& error) {
    constexpr std::int32_t resourceOffset = 500; // of the texts of our own codes
    const bool isInUse = error.ErrorCode == session_code::machineInUse;
    std::string text = messages.getMessageWithInsertion(
        error.ErrorCode + resourceOffset, shownText(error.machine),
        isInUse ? shownUser(messages, error.user) : reasonInLanguage(messages, error.systemReason));
    return text.empty() ? messages.errorText(error.ErrorCode) : text;
}

LinkFault faultOf(const MessageTable& messages, const SessionErrorRecord& error) {
    return {error.ErrorFunction, error.ErrorCode, recordedText(messages, error, error.isReturned)};
}

} // namespace

std::string recordedText(const MessageTable& messages, const SessionErrorRecord& error,
                         bool isReturned) {
    if (!isReturned && !error.machine.empty())
        return textWithMachine(messages, error);
    return isReturned ? messages.returnedCodeText(error.ErrorCode)
                      : messages.errorText(error.ErrorCode);
}

LinkTest::LinkTest(const SessionServices& services, const SessionProperties& as,
                   const LinkTarget& target, SessionProgress& progress)
    : mode_(target.mode), services_(inMode(services, mode_)), properties_(reaching(target, as)),
      progress_(progress) {}

LinkTestStep LinkTest::refused(const MessageTable& messages) {
    SessionErrorRecord error;
    error.set(session_code::operationRunning, "");
    return {Kind::Open, faultOf(messages, error)};
}

void LinkTest::run(const std::function<void(const LinkTestStep&)>& ended) {
    LinkConnection link(services_, properties_, error_);
    const MachineUse::Command command(services_.use);
    link.begin(LinkConnection::FolderUse::None);
    const std::int16_t handle = link.connect();
    ended(step(Kind::Open, handle >= 0));
    if (handle < 0)
        return;
    DirectoryReader reader(link, progress_, error_);
    ended(step(Kind::Answer, reader.answers(handle)));
    ended(step(Kind::Close, link.disconnect(handle)));
}

LinkTestStep LinkTest::step(LinkTestStep::Kind kind, bool isDone) const {
    if (isDone)
        return {kind, {}};
    return {kind, faultOf(services_.messages, error_)};
}

} // namespace vantrel
