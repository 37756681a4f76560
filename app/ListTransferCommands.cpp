#include "app/ListTransferCommands.h"

#include "app/ListFileWindow.h"
#include "base/ApplicationState.h"
#include "base/Text.h"
#include "files/CommandOutcome.h"
#include "files/CommandScopes.h"
#include "files/PaneRefresh.h"
#include "files/PaneWindow.h"
#include "files/TransferReports.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "lang/SystemReasons.h"
#include "link/OperatorTalk.h"
#include "link/ShownText.h"
#include "link/Snappy.h"

#include <vector>

namespace vantrel {

namespace {

/// Blank lines of a variable list are entries as well.
bool holdsVariables(const Snappy& session) {
    for (std::int32_t index = 0; index < session.VarListCount(); ++index)
        if (!trimmed(session.VarList(index)).empty())
            return true;
    return false;
}

std::string inParentheses(std::int32_t number) {
    return " ( " + std::to_string(number) + " )";
}

} // namespace

void ListTransferCommands::saveJobs() {
    run(list_file_mode::saveJobs, message::saveJobsTitle, &ListTransferCommands::receiveJobs);
}

void ListTransferCommands::loadJobs() {
    run(list_file_mode::loadJobs, message::loadJobsTitle, &ListTransferCommands::sendJobs);
}

void ListTransferCommands::saveVariables() {
    run(list_file_mode::saveVariables, message::saveVariablesTitle,
        &ListTransferCommands::receiveVariables);
}

void ListTransferCommands::loadVariables() {
    run(list_file_mode::loadVariables, message::loadVariablesTitle,
        &ListTransferCommands::sendVariables);
}

/// A list in a locked window cannot take the focus, so that comes after the lock.
void ListTransferCommands::run(std::string_view mode, std::int32_t title, Transfer transfer) {
    if (!dialog_.readList(mode) || !holdsSomething(mode))
        return;
    {
        const PaneRefresh refresh(with_);
        const WindowLock lock(with_.window);
        refresh.refreshTouched(showProgress(title, transfer));
    }
    with_.window.list(with_.state.Active).focus();
}

bool ListTransferCommands::holdsSomething(std::string_view mode) const {
    const bool isForJobs = mode == list_file_mode::saveJobs || mode == list_file_mode::loadJobs;
    if (isForJobs ? with_.session.JobListCount() > 0 : holdsVariables(with_.session))
        return true;
    const auto& file = isForJobs ? with_.state.JobListFile : with_.state.VarListFile;
    with_.talk.tell(with_.messages.getMessage(message::listFileEmpty) + bracketed(file),
                    BoxIcon::Exclamation);
    return false;
}

CommandOutcome ListTransferCommands::showProgress(std::int32_t title, Transfer transfer) {
    with_.session.DisplayMonitor = true;
    with_.session.MonitorTitle = with_.messages.getMessage(title);
    const CommandProgress progress(with_, with_.session.MonitorTitle,
                                   with_.messages.resourceMessage(message::resource::transferring));
    return (this->*transfer)(progress);
}

CommandOutcome ListTransferCommands::receiveJobs(const CommandProgress& progress) {
    return {.pcTouched = transferJobs(Direction::Receive, progress)};
}

/// After an unset address another attempt would only bring the same message again, and a reading
/// that was cancelled would begin anew.
CommandOutcome ListTransferCommands::sendJobs(const CommandProgress& progress) {
    const bool called = transferJobs(Direction::Send, progress);
    if (!called)
        return {};
    return {.controllerTouched =
                !with_.session.operatorIsTold() && !wasCancelledReading(with_.session),
            .goneFromController = with_.session.unreplacedJobs()};
}

bool ListTransferCommands::transferJobs(Direction direction, const CommandProgress& progress) {
    keepPermitted(direction);
    if (with_.session.JobListCount() == 0 || progress.isCancelled())
        return false;
    const bool succeeded = direction == Direction::Send ? with_.session.JobListDownLoad()
                                                        : with_.session.JobListUpLoad();
    if (!succeeded)
        reportEntry(with_.session.JobList(with_.session.ErrorIndex()));
    else
        TransferReports(with_).unreplacedJobs();
    return true;
}

/// Each entry that is left out is named in a box of its own.
void ListTransferCommands::keepPermitted(Direction direction) {
    std::vector<SelectedItem> items;
    items.reserve(std::size_t(with_.session.JobListCount()));
    for (std::int32_t index = 0; index < with_.session.JobListCount(); ++index)
        items.push_back({with_.session.JobList(index), false});
    const auto names = TransferPermission(with_, direction).permitted(items);
    with_.session.JobListClear();
    for (const auto& name : names)
        with_.session.AddJobList(name);
}

CommandOutcome ListTransferCommands::receiveVariables(const CommandProgress&) {
    const std::string& file = with_.state.VarListFile;
    if (!with_.session.VarListUpLoad())
        reportEntry(with_.session.VarList(with_.session.ErrorIndex()));
    else if (!with_.session.WriteVarListFile(file))
        reportFailure("\n" + with_.messages.getMessage(message::listFileNotWritten) +
                      bracketed(file) + " " +
                      reasonInLanguage(with_.messages, with_.session.systemReason()));
    return {.pcTouched = true};
}

CommandOutcome ListTransferCommands::sendVariables(const CommandProgress&) {
    if (!with_.session.VarListDownLoad())
        reportEntry(with_.session.VarList(with_.session.ErrorIndex()));
    return {};
}

void ListTransferCommands::reportEntry(const std::string& entry) const {
    const bool namesIt = !entry.empty() && with_.session.triedAnEntry();
    reportFailure(namesIt ? "\n" + bracketed(entry) : std::string());
}

/// An operator who pressed Cancel knows; an address that is not set has been told by the session.
void ListTransferCommands::reportFailure(const std::string& details) const {
    const auto& session = with_.session;
    if (operatorKnows(session))
        return TransferReports(with_).unreplacedJobs();
    const std::string place =
        with_.messages.getMessage(message::listIndex) + inParentheses(session.failedIndex());
    with_.talk.tell(with_.messages.getMessage(message::transferFailed) + session.ErrorFunction() +
                        inParentheses(session.ErrorCode()) + session.errorText() + place + details +
                        TransferReports(with_).furtherLines(),
                    BoxIcon::Exclamation);
}

} // namespace vantrel
