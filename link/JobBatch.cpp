#include "link/JobBatch.h"

#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/JobLists.h"
#include "link/LinkConnection.h"
#include "link/OperatorTalk.h"
#include "link/SessionErrorRecord.h"
#include "link/SessionProgress.h"
#include "link/SessionServices.h"

namespace vantrel {
namespace {

EntryEnd endOf(TransferOutcome outcome) {
    switch (outcome) {
    case TransferOutcome::Done:
    case TransferOutcome::DoneAll:
        return EntryEnd::Done;
    case TransferOutcome::Refused:
        return EntryEnd::Refused;
    case TransferOutcome::Failed:
        return EntryEnd::Failed;
    case TransferOutcome::Cancelled:
    case TransferOutcome::Stopped:
        break;
    }
    return EntryEnd::NotTried;
}

} // namespace

bool JobBatch::run(const std::vector<std::string>& entries) {
    tools_.progress.open(tools_.progress.transferring(), true, true);
    const TransferOutcome outcome = conclude(runThrough(entries));
    tools_.progress.hide();
    // Before the caller's report of a failure, which so is the last thing that the operator reads.
    if (!tools_.link.endedByUnsetAddress())
        tellSkipped();
    return outcome == TransferOutcome::Done;
}

TransferOutcome JobBatch::runThrough(const std::vector<std::string>& entries) {
    const auto count = static_cast<std::int32_t>(entries.size());
    tools_.ends.assign(entries.size(), EntryEnd::NotTried);
    for (std::int32_t index = 0; index < count; ++index) {
        const std::string& entry = entries[static_cast<std::size_t>(index)];
        const TransferOutcome outcome = tools_.localJobs.contains(entry)
                                            ? passOver(entry, index, count)
                                            : handle(entry, index, count);
        record(outcome, index);
        if (outcome == TransferOutcome::Failed || outcome == TransferOutcome::Cancelled ||
            outcome == TransferOutcome::Stopped)
            return outcome;
    }
    return TransferOutcome::Done;
}

TransferOutcome JobBatch::conclude(TransferOutcome outcome) {
    if (!conclude_)
        return outcome;
    const auto lost = conclude_(outcome);
    for (const std::int32_t index : lost)
        tools_.ends[static_cast<std::size_t>(index)] = EntryEnd::Failed;
    return lost.empty() ? outcome : TransferOutcome::Failed;
}

TransferOutcome JobBatch::passOver(const std::string& entry, std::int32_t index,
                                   std::int32_t count) {
    ++skipped_;
    tools_.ends[static_cast<std::size_t>(index)] = EntryEnd::PassedOver;
    return tools_.progress.isCancelledPassingOver(entry, index, count) ? TransferOutcome::Cancelled
                                                                       : TransferOutcome::Done;
}

TransferOutcome JobBatch::handle(const std::string& entry, std::int32_t index, std::int32_t count) {
    tools_.progress.step(tools_.progress.transferring(entry), index, count);
    const TransferOutcome outcome = transfer_(entry, index, overwriteAll_);
    tools_.ends[static_cast<std::size_t>(index)] = endOf(outcome);
    overwriteAll_ = overwriteAll_ || outcome == TransferOutcome::DoneAll;
    if (outcome == TransferOutcome::Failed || outcome == TransferOutcome::Stopped)
        return outcome;
    return tools_.progress.isCancelledAfterYield() ? TransferOutcome::Cancelled : outcome;
}

void JobBatch::record(TransferOutcome outcome, std::int32_t index) {
    if (outcome == TransferOutcome::Cancelled)
        tools_.error.set(session_code::cancelled, "", index);
    // An address that is not set leaves the whole record alone.
    if (outcome == TransferOutcome::Failed && !tools_.link.endedByUnsetAddress())
        tools_.error.ErrorIndex = index;
}

void JobBatch::tellSkipped() const {
    if (skipped_ > 0 && tools_.properties.DisplayMonitor)
        tools_.talk.tell(tools_.messages.getMessageWithInsertion(message::localEntriesSkipped,
                                                                 std::to_string(skipped_)),
                         BoxIcon::None);
}

} // namespace vantrel
