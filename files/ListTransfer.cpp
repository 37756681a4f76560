#include "files/ListTransfer.h"

#include "files/CommandResult.h"
#include "files/ControllerPlace.h"
#include "files/TransferReports.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/SessionErrorRecord.h"
#include "link/Snappy.h"

namespace vantrel {
namespace {

ItemEnd itemEnd(EntryEnd end) {
    switch (end) {
    case EntryEnd::Done:
        return ItemEnd::Done;
    case EntryEnd::Refused:
    case EntryEnd::PassedOver:
        return ItemEnd::Skipped;
    case EntryEnd::Failed:
        return ItemEnd::Failed;
    case EntryEnd::NotTried:
        break;
    }
    return ItemEnd::NotTried;
}

} // namespace

ListTransfer::ListTransfer(const TransferServices& services, const std::string& title,
                           Direction direction)
    : with_(services), direction_(direction),
      progress_(services, title, services.messages.resourceMessage(message::resource::transferring),
                direction == Direction::Send ? towardController(services.state)
                                             : fromController(services.state)) {
    with_.session.DisplayMonitor = true;
    with_.session.MonitorTitle = title;
}

bool ListTransfer::take(const std::vector<SelectedItem>& items) {
    const auto names = TransferPermission(with_, direction_).permitted(items);
    progress_.measure(names, direction_ == Direction::Send, [this](std::size_t item) {
        const auto& ends = with_.session.entryEnds();
        return item < ends.size() && ends[item] == EntryEnd::Done;
    });
    with_.session.JobListClear();
    for (const std::string& name : names)
        with_.session.AddJobList(name);
    return !names.empty() && !isCancelled();
}

bool ListTransfer::run() {
    const bool succeeded = direction_ == Direction::Send ? with_.session.JobListDownLoad()
                                                         : with_.session.JobListUpLoad();
    noteEnds();
    return succeeded;
}

void ListTransfer::noteEnds() const {
    const auto& ends = with_.session.entryEnds();
    for (std::size_t index = 0; index < ends.size(); ++index) {
        // An address that is not set is no failure of one file.
        const bool isTried = ends[index] != EntryEnd::Failed || !with_.session.operatorIsTold();
        const EntryEnd end = isTried ? ends[index] : EntryEnd::NotTried;
        with_.results.note(with_.session.JobList(static_cast<std::int32_t>(index)), itemEnd(end),
                           reasonOf(end, static_cast<std::int32_t>(index)));
    }
}

/// Why the recorded one failed is noted where it is told. Others have arrived and not reached the
/// disk, and the session has told of them.
std::string ListTransfer::reasonOf(EntryEnd end, std::int32_t index) const {
    switch (end) {
    case EntryEnd::Refused:
        return with_.messages.getMessage(message::resultKept);
    case EntryEnd::PassedOver:
        return with_.messages.getMessage(message::localJobPassedOver);
    case EntryEnd::Failed:
        if (index != with_.session.failedIndex())
            return functionAndReason("BscUpLoad", session_code::fileNotFlushed,
                                     with_.messages.resourceMessage(session_code::fileNotFlushed));
        break;
    case EntryEnd::NotTried:
    case EntryEnd::Done:
        break;
    }
    return {};
}

/// After an unset address another attempt to read the controller would only bring the same message
/// again, and a reading that was cancelled would begin anew.
CommandOutcome ListTransfer::outcome(bool succeeded) const {
    const bool cancelled = isCancelled() || (!succeeded && with_.session.wasCancelled());
    if (direction_ == Direction::Receive)
        return {.succeeded = succeeded, .pcTouched = true, .cancelled = cancelled};
    return {.succeeded = succeeded,
            .controllerTouched =
                !with_.session.operatorIsTold() && !wasCancelledReading(with_.session),
            .cancelled = cancelled,
            .goneFromController = with_.session.unreplacedJobs()};
}

} // namespace vantrel
