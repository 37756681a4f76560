#include "files/ListTransfer.h"

#include "files/ControllerPlace.h"
#include "files/TransferReports.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/Snappy.h"

namespace vantrel {

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
    with_.session.JobListClear();
    for (const std::string& name : names)
        with_.session.AddJobList(name);
    return !names.empty() && !isCancelled();
}

bool ListTransfer::run() {
    return direction_ == Direction::Send ? with_.session.JobListDownLoad()
                                         : with_.session.JobListUpLoad();
}

/// After an unset address another attempt to read the controller would only bring the same message
/// again, and a reading that was cancelled would begin anew.
CommandOutcome ListTransfer::outcome(bool succeeded) const {
    if (direction_ == Direction::Receive)
        return {.succeeded = succeeded, .pcTouched = true};
    return {.succeeded = succeeded,
            .controllerTouched =
                !with_.session.operatorIsTold() && !wasCancelledReading(with_.session),
            .goneFromController = with_.session.unreplacedJobs()};
}

} // namespace vantrel
