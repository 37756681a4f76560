#include "files/TransferReports.h"

#include "base/ApplicationState.h"
#include "files/CommandResult.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "lang/SystemReasons.h"
#include "link/OperatorTalk.h"
#include "link/ShownText.h"
#include "link/Snappy.h"

#include <algorithm>

namespace vantrel {

namespace {

/// The step under which the session records a file that is not in the controller's directory, and
/// a directory that could not be read.
constexpr const char* directoryStep = "BscFind";

std::string lineOf(const std::string& name) {
    return name.empty() ? std::string() : "\n" + bracketed(name);
}

std::string inParentheses(const std::string& text) {
    return " ( " + text + " )";
}

// The serial line has one robot at its end, whichever is chosen for the other mode.
std::string robotText(const ApplicationState& state, const Snappy& session) {
    if (state.TransMode == TransferMode::Bsc)
        return "COM" + std::to_string(session.port);
    return bracketed(state.CurrentRobot.Name) + " " + shownText(session.IPaddress);
}

} // namespace

std::string functionAndReason(const Snappy& session) {
    return functionAndReason(session.ErrorFunction(), session.ErrorCode(), session.errorText());
}

std::string functionAndReason(const std::string& function, std::int16_t code,
                              const std::string& text) {
    const std::string number = std::to_string(code);
    return function + inParentheses(text == number ? text : text + " (" + number + ")");
}

std::string directoryFailure(const ApplicationState& state, const Snappy& session) {
    return "\n" + robotText(state, session) + "\n" + functionAndReason(session);
}

bool operatorKnows(const Snappy& session) {
    return session.wasCancelled() || session.operatorIsTold();
}

bool wasCancelledReading(const Snappy& session) {
    return session.wasCancelled() && !session.triedAnEntry();
}

void TransferReports::controllerNotRead() const {
    if (with_.session.operatorIsTold())
        return;
    tell(with_.messages.getMessage(message::controllerNotRead) +
         directoryFailure(with_.state, with_.session));
}

void TransferReports::aboutFile(const std::string& name, std::int32_t messageNumber) const {
    const std::string text = with_.messages.getMessage(messageNumber);
    with_.results.note(name, ItemEnd::Skipped, text);
    tell(bracketed(name) + text);
}

void TransferReports::aboutFile(const std::string& name, std::int32_t messageNumber,
                                const std::string& reason) const {
    const std::string text = with_.messages.getMessage(messageNumber) +
                             inParentheses(reasonInLanguage(with_.messages, reason));
    with_.results.note(name, ItemEnd::Failed, text);
    tell(bracketed(name) + text);
}

void TransferReports::aboutFiles(std::int32_t messageNumber,
                                 const std::vector<std::string>& names) const {
    if (!names.empty())
        tell(with_.messages.getMessage(messageNumber) + linesOf(names));
}

void TransferReports::unreplacedJobs() const {
    aboutFiles(message::notReplaced, with_.session.unreplacedJobs());
}

void TransferReports::transferFailed(const std::string& name) const {
    tellTransferFailure({}, name);
}

bool TransferReports::listTransferFailed() const {
    const Snappy& session = with_.session;
    if (operatorKnows(session))
        return false;
    const std::int32_t index = session.failedIndex();
    tellTransferFailure(" (" + std::to_string(index) + ")",
                        session.triedAnEntry() ? session.JobList(index) : std::string());
    return true;
}

void TransferReports::transferFailed(const std::string& function, const std::string& reason) const {
    tell(with_.messages.getMessage(message::transferFailed) + function + inParentheses(reason));
}

void TransferReports::deletionFailed(const std::string& name) const {
    with_.results.note(name, ItemEnd::Failed, functionAndReason(with_.session));
    tell(with_.messages.getMessage(message::deleteFailed) + functionAndReason(with_.session) +
         lineOf(name));
}

void TransferReports::originalNotDeleted(const std::string& name) const {
    const std::string text = with_.messages.getMessage(message::originalNotDeleted) + " " +
                             functionAndReason(with_.session);
    with_.results.note(name, ItemEnd::Failed, text);
    tell(bracketed(name) + text);
}

void TransferReports::tell(const std::string& text) const {
    with_.talk.tell(text, BoxIcon::Exclamation);
}

void TransferReports::tellTransferFailure(const std::string& end, const std::string& name) const {
    const MessageTable& messages = with_.messages;
    if (name.empty())
        with_.results.noteUntried(functionAndReason(with_.session));
    with_.results.note(name, ItemEnd::Failed, functionAndReason(with_.session));
    if (with_.session.ErrorFunction() == directoryStep)
        tell(messages.getMessage(message::noSuchFile) + lineOf(name) +
             directoryFailure(with_.state, with_.session));
    else
        tell(messages.getMessage(message::transferFailed) + functionAndReason(with_.session) + end +
             lineOf(name) + furtherLines());
}

std::string TransferReports::furtherLines() const {
    return markLine() + folderLine() + unreplacedLine();
}

/// What the operator has to remove before the file can be sent.
std::string TransferReports::markLine() const {
    return lineOf(with_.session.unusableMark());
}

/// Where it is the PC folder that stands in the way of every file, its name and the system's words.
std::string TransferReports::folderLine() const {
    const std::int16_t code = with_.session.ErrorCode();
    if (code != session_code::folderNotReadable && code != session_code::folderNotExpressible)
        return {};
    const std::string& reason = with_.session.systemReason();
    return lineOf(with_.session.path) + (reason.empty() ? reason : inParentheses(reason));
}

/// Below a failure that cost the robot a job.
std::string TransferReports::unreplacedLine() const {
    const auto& jobs = with_.session.unreplacedJobs();
    return jobs.empty() ? std::string()
                        : "\n" + with_.messages.getMessage(message::notReplaced) + linesOf(jobs);
}

std::string TransferReports::linesOf(const std::vector<std::string>& names) const {
    constexpr std::size_t mostNames = 15; ///< a box has to fit on the screen
    std::string text;
    for (std::size_t at = 0; at < std::min(names.size(), mostNames); ++at)
        text += lineOf(names[at]);
    if (names.size() > mostNames)
        text += "\n" + with_.messages.getMessageWithInsertion(
                           message::furtherNames, std::to_string(names.size() - mostNames));
    return text;
}

} // namespace vantrel
