#include "files/TransferReports.h"

#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/OperatorDialog.h"
#include "link/ShownText.h"
#include "link/Snappy.h"

namespace vantrel {

namespace {

/// The step under which the session records a file that is not in the controller's directory, and
/// a directory that could not be read.
constexpr const char* directoryStep = "BscFind";

std::string bracketed(const std::string& name) {
    return "[" + shownText(name) + "]";
}

std::string lineOf(const std::string& name) {
    return name.empty() ? std::string() : "\n" + bracketed(name);
}

std::string inParentheses(const std::string& text) {
    return " ( " + text + " )";
}

} // namespace

void TransferReports::aboutFile(const std::string& name, std::int32_t messageNumber) const {
    tell(bracketed(name) + with_.messages.getMessage(messageNumber));
}

void TransferReports::aboutFile(const std::string& name, std::int32_t messageNumber,
                                const std::string& reason) const {
    tell(bracketed(name) + with_.messages.getMessage(messageNumber) + inParentheses(reason));
}

void TransferReports::transferFailed(const std::string& name) const {
    tellTransferFailure({}, name);
}

void TransferReports::listTransferFailed() const {
    // The operator pressed Cancel and knows; a report of it would only have to be clicked away.
    if (with_.session.ErrorFunction().empty() &&
        with_.session.ErrorCode() == session_code::cancelled)
        return;
    const auto index = with_.session.ErrorIndex();
    tellTransferFailure(" (" + std::to_string(index) + ")", with_.session.JobList(index));
}

void TransferReports::transferFailed(const std::string& function, const std::string& reason) const {
    tell(with_.messages.getMessage(message::transferFailed) + function + inParentheses(reason));
}

void TransferReports::deletionFailed(const std::string& name) const {
    tell(with_.messages.getMessage(message::deleteFailed) + functionAndReason() + lineOf(name));
}

void TransferReports::originalNotDeleted(const std::string& name) const {
    tell(bracketed(name) + with_.messages.getMessage(message::originalNotDeleted) + " " +
         functionAndReason());
}

void TransferReports::tell(const std::string& text) const {
    with_.dialog.tell(text, BoxIcon::Exclamation);
}

std::string TransferReports::errorText() const {
    return with_.messages.errorText(with_.session.ErrorCode());
}

/// The index of a failed directory counts what was read, so it names no file of a list.
void TransferReports::tellTransferFailure(const std::string& end, const std::string& name) const {
    const bool ofDirectory = with_.session.ErrorFunction() == directoryStep;
    if (ofDirectory && end.empty())
        tell(with_.messages.getMessage(message::noSuchFile) + lineOf(name));
    else if (ofDirectory)
        tell(with_.messages.getMessage(message::noSuchFile));
    else
        tell(with_.messages.getMessage(message::transferFailed) + functionAndReason() + end +
             lineOf(name));
}

std::string TransferReports::functionAndReason() const {
    return with_.session.ErrorFunction() + inParentheses(errorText());
}

} // namespace vantrel
