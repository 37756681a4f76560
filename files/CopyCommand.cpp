#include "files/CopyCommand.h"

#include "base/ApplicationState.h"
#include "base/PathRules.h"
#include "files/CommandScopes.h"
#include "files/TransferReports.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/Snappy.h"

namespace vantrel {

namespace {

constexpr std::string_view jobEnd = ".JBI";
constexpr std::string_view relatedJobEnd = ".JBR";

void askForRelatedJob(std::string& name) {
    if (const std::size_t place = name.find(jobEnd); place != std::string::npos)
        name.replace(place, jobEnd.size(), relatedJobEnd);
}

} // namespace

/// After an unset address another attempt would only bring the same message again, and a reading
/// that was cancelled would begin anew.
CommandOutcome CopyCommand::send(const std::vector<SelectedItem>& items) {
    CommandOutcome outcome;
    bool called = false;
    outcome.succeeded = transfer(items, Direction::Send, called);
    if (called)
        outcome.goneFromController = with_.session.unreplacedJobs();
    outcome.controllerTouched =
        called && !with_.session.operatorIsTold() && !wasCancelledReading(with_.session);
    return outcome;
}

CommandOutcome CopyCommand::receive(std::vector<SelectedItem> items) {
    if (with_.state.JBR)
        for (SelectedItem& item : items)
            askForRelatedJob(item.name);
    CommandOutcome outcome;
    outcome.succeeded = transfer(items, Direction::Receive, outcome.pcTouched);
    return outcome;
}

bool CopyCommand::transfer(const std::vector<SelectedItem>& items, Direction direction,
                           bool& called) {
    const std::string title = with_.messages.getMessage(message::transferTitle);
    with_.session.path = PathRules().withSeparator(with_.state.PCPath);
    with_.session.DisplayMonitor = true;
    with_.session.MonitorTitle = title;
    const CommandProgress progress(with_, title,
                                   with_.messages.resourceMessage(message::resource::transferring));

    const auto names = TransferPermission(with_, direction).permitted(items);
    if (progress.isCancelled())
        return false;
    // The session is left alone when there is nothing to do: each of its operations opens a link.
    if (names.empty())
        return true;

    called = true;
    with_.session.JobListClear();
    for (const std::string& name : names)
        with_.session.AddJobList(name);
    const bool succeeded = direction == Direction::Send ? with_.session.JobListDownLoad()
                                                        : with_.session.JobListUpLoad();
    if (succeeded || !TransferReports(with_).listTransferFailed())
        TransferReports(with_).unreplacedJobs();
    return succeeded;
}

} // namespace vantrel
