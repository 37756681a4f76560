#include "files/CopyCommand.h"

#include "base/ApplicationState.h"
#include "base/PathRules.h"
#include "files/CommandResult.h"
#include "files/TransferReports.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/Snappy.h"

namespace vantrel {

namespace {

constexpr std::string_view jobEnd = ".JBI";
constexpr std::string_view relatedJobEnd = ".JBR";

} // namespace

std::string nameOfRelatedJob(std::string name) {
    if (const std::size_t place = name.find(jobEnd); place != std::string::npos)
        name.replace(place, jobEnd.size(), relatedJobEnd);
    return name;
}

CommandOutcome CopyCommand::send(const std::vector<SelectedItem>& items) {
    return transfer(items, Direction::Send);
}

CommandOutcome CopyCommand::receive(std::vector<SelectedItem> items) {
    if (with_.state.JBR)
        for (std::size_t item = 0; item < items.size(); ++item) {
            items[item].name = nameOfRelatedJob(items[item].name);
            with_.results.rename(item, items[item].name);
        }
    return transfer(items, Direction::Receive);
}

/// The session is left alone when there is nothing to do: each of its operations opens a link.
CommandOutcome CopyCommand::transfer(const std::vector<SelectedItem>& items, Direction direction) {
    with_.session.path = PathRules().withSeparator(with_.state.PCPath);
    ListTransfer list(with_, with_.messages.getMessage(message::transferTitle), direction);
    if (!list.take(items))
        return {.succeeded = !list.isCancelled(), .cancelled = list.isCancelled()};
    const bool succeeded = list.run();
    if (succeeded || !TransferReports(with_).listTransferFailed())
        TransferReports(with_).unreplacedJobs();
    return list.outcome(succeeded);
}

} // namespace vantrel
