#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vantrel {

class JobNameSet;
class LinkConnection;
class MessageTable;
class OperatorTalk;
class OverwriteQuestion;
class SessionProgress;
struct SessionErrorRecord;
struct SessionProperties;

/// How the transfer of one file ended. 0 to 3 are the answers of the question dialog.
enum class TransferOutcome : std::int16_t {
    Failed = -1,   ///< the reason is in the error record
    Done = 0,      ///< transferred
    Refused = 1,   ///< the operator keeps what is there
    DoneAll = 2,   ///< transferred, and no further question is wanted
    Cancelled = 3, ///< the operator wants no more
    Stopped = 4,   ///< not tried: an entry before it has failed after all
};

/// Whether the transfer itself may go on, or has been made.
constexpr bool goesOn(TransferOutcome outcome) {
    return outcome == TransferOutcome::Done || outcome == TransferOutcome::DoneAll;
}

/// How a transfer of several files ended for one of them.
enum class EntryEnd {
    NotTried,
    Done,
    Refused,    ///< the operator keeps what is there
    PassedOver, ///< a job that belongs to the PC alone
    Failed,     ///< the reason is in the error record
};

/// What the transfer of single files works with; everything is borrowed.
struct TransferTools {
    const SessionProperties& properties;
    LinkConnection& link;
    SessionProgress& progress;
    SessionErrorRecord& error;
    const OverwriteQuestion& question;
    JobNameSet& directory;              ///< the names at the destination
    std::vector<std::string>& inTheWay; ///< what the transfer under way would replace
    const MessageTable& messages;
    OperatorTalk& talk;
};

} // namespace vantrel
