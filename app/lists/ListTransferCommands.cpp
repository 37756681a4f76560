#include "app/lists/ListTransferCommands.h"

#include "app/lists/SelectionList.h"
#include "app/lists/SessionLists.h"
#include "base/ApplicationState.h"
#include "files/CommandScopes.h"
#include "files/ControllerPlace.h"
#include "files/FolderOwner.h"
#include "files/PaneRefresh.h"
#include "files/PaneWindow.h"
#include "files/TransferReports.h"
#include "files/TransferServices.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "lang/SystemReasons.h"
#include "link/OperatorTalk.h"
#include "link/ShownText.h"
#include "link/Snappy.h"

#include <vector>

namespace vantrel {

namespace {

std::vector<SelectedItem> jobsOf(const Snappy& session) {
    std::vector<SelectedItem> items;
    for (std::string& name : jobNames(session))
        items.push_back({std::move(name), false});
    return items;
}

std::string inParentheses(std::int32_t number) {
    return " ( " + std::to_string(number) + " )";
}

} // namespace

void ListTransferCommands::saveJobs() {
    run(list_file_mode::saveJobs, message::saveJobsTitle, CommandKind::SaveJobs,
        &ListTransferCommands::transferJobs);
}

void ListTransferCommands::loadJobs() {
    run(list_file_mode::loadJobs, message::loadJobsTitle, CommandKind::LoadJobs,
        &ListTransferCommands::transferJobs);
}

void ListTransferCommands::saveVariables() {
    run(list_file_mode::saveVariables, message::saveVariablesTitle, CommandKind::SaveVariables,
        &ListTransferCommands::receiveVariables);
}

void ListTransferCommands::loadVariables() {
    run(list_file_mode::loadVariables, message::loadVariablesTitle, CommandKind::LoadVariables,
        &ListTransferCommands::sendVariables);
}

void ListTransferCommands::saveSelection() const {
    SelectionList(with_, dialog_).save();
}

/// A list in a locked window cannot take the focus, so that comes after the lock.
void ListTransferCommands::run(std::string_view mode, std::int32_t title, CommandKind kind,
                               Transfer transfer) {
    if (!dialog_.readList(mode) || !holdsSomething(mode))
        return;
    if (sourceOf(kind) == ActiveSide::PC && !mayLeaveFolder(with_))
        return;
    {
        const PaneRefresh refresh(with_);
        const WindowLock lock(with_.window);
        const bool isForJobs = kind == CommandKind::SaveJobs || kind == CommandKind::LoadJobs;
        with_.results.begin(kind, placeOf(kind, with_.state), with_.state.PCPath,
                            isForJobs ? jobNames(with_.session) : variablesOf(with_.session));
        const CommandOutcome outcome = perform(title, kind, transfer);
        refresh.refreshTouched(outcome);
        showResult(outcome.cancelled);
    }
    with_.window.list(with_.state.Active).focus();
}

void ListTransferCommands::showResult(bool cancelled) const {
    with_.results.end(cancelled);
    with_.window.setResult(resultLine(with_.messages, *with_.results.last()));
}

CommandOutcome ListTransferCommands::perform(std::int32_t title, CommandKind kind,
                                             Transfer transfer) {
    const bool comes = sourceOf(kind) == ActiveSide::Controller;
    ListTransfer list(with_, with_.messages.getMessage(title),
                      comes ? Direction::Receive : Direction::Send);
    return (this->*transfer)(list);
}

bool ListTransferCommands::holdsSomething(std::string_view mode) const {
    const bool isForJobs = mode == list_file_mode::saveJobs || mode == list_file_mode::loadJobs;
    if (isForJobs ? with_.session.JobListCount() > 0 : !variablesOf(with_.session).empty())
        return true;
    const auto& file = isForJobs ? with_.state.JobListFile : with_.state.VarListFile;
    with_.talk.tell(with_.messages.getMessage(message::listFileEmpty) + bracketed(file),
                    BoxIcon::Exclamation);
    return false;
}

/// The session is left alone when nothing is to be transferred.
CommandOutcome ListTransferCommands::transferJobs(ListTransfer& list) {
    if (!list.take(jobsOf(with_.session)))
        return {.succeeded = !list.isCancelled(), .cancelled = list.isCancelled()};
    const bool succeeded = list.run();
    if (!succeeded)
        reportEntry(with_.session.JobList(with_.session.ErrorIndex()));
    else
        TransferReports(with_).unreplacedJobs();
    return list.outcome(succeeded);
}

/// Unless all have come and are in the file, none has.
CommandOutcome ListTransferCommands::receiveVariables(ListTransfer&) {
    const std::string& file = with_.state.VarListFile;
    const auto before = variablesOf(with_.session);
    if (!with_.session.VarListUpLoad()) {
        reportEntry(with_.session.VarList(with_.session.ErrorIndex()));
        return {.pcTouched = true, .cancelled = with_.session.wasCancelled()};
    }
    if (losesValues(before, variablesOf(with_.session)) && !mayReplaceValues()) {
        noteAll(before, ItemEnd::Skipped, with_.messages.getMessage(message::resultKept));
        return {};
    }
    if (with_.session.WriteVarListFile(file)) {
        noteAll(before, ItemEnd::Done);
        return {.pcTouched = true};
    }
    const std::string reason = with_.messages.getMessage(message::listFileNotWritten) +
                               bracketed(file) + " " +
                               reasonInLanguage(with_.messages, with_.session.systemReason());
    noteAll(before, ItemEnd::Failed, reason);
    reportFailure({}, "\n" + reason);
    return {.pcTouched = true};
}

void ListTransferCommands::noteAll(const std::vector<std::string>& entries, ItemEnd end,
                                   const std::string& reason) const {
    for (const std::string& entry : entries)
        with_.results.note(entry, end, reason);
}

/// The values in a list file may be the only copy of those that a robot had before.
bool ListTransferCommands::mayReplaceValues() const {
    return with_.talk.askYesNo(with_.messages.getMessage(message::askReplaceValues) +
                                   bracketed(with_.state.VarListFile) + "\n" +
                                   fromController(with_.state),
                               BoxIcon::Question);
}

CommandOutcome ListTransferCommands::sendVariables(ListTransfer&) {
    const bool succeeded = with_.session.VarListDownLoad();
    noteSent(succeeded);
    if (!succeeded)
        reportEntry(with_.session.VarList(with_.session.ErrorIndex()));
    return {.cancelled = !succeeded && with_.session.wasCancelled()};
}

/// A list ends at its first failure, or after the variable during which Cancel was pressed.
void ListTransferCommands::noteSent(bool succeeded) const {
    const Snappy& session = with_.session;
    std::int32_t sent = session.VarListCount();
    if (!succeeded)
        sent =
            session.operatorIsTold() ? 0 : session.failedIndex() + (session.wasCancelled() ? 1 : 0);
    for (std::int32_t index = 0; index < sent; ++index)
        with_.results.note(session.VarList(index), ItemEnd::Done);
}

void ListTransferCommands::reportEntry(const std::string& entry) const {
    const bool namesIt = !entry.empty() && with_.session.triedAnEntry();
    reportFailure(entry, namesIt ? "\n" + bracketed(entry) : std::string());
}

/// An operator who pressed Cancel knows; an address that is not set has been told by the session.
void ListTransferCommands::reportFailure(const std::string& entry,
                                         const std::string& details) const {
    const auto& session = with_.session;
    if (operatorKnows(session))
        return TransferReports(with_).unreplacedJobs();
    if (session.triedAnEntry())
        with_.results.note(entry, ItemEnd::Failed, functionAndReason(session));
    else
        with_.results.noteUntried(functionAndReason(session));
    const std::string place =
        with_.messages.getMessage(message::listIndex) + inParentheses(session.failedIndex());
    with_.talk.tell(with_.messages.getMessage(message::transferFailed) + session.ErrorFunction() +
                        inParentheses(session.ErrorCode()) + session.errorText() + place + details +
                        TransferReports(with_).furtherLines(),
                    BoxIcon::Exclamation);
}

} // namespace vantrel
