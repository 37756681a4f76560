#pragma once

#include <cstdint>

namespace vantrel {

/// How the transfer of one file ended. 0 to 3 are the answers of the question dialog.
enum class TransferOutcome : std::int16_t {
    Failed = -1,   ///< the reason is in the error record
    Done = 0,      ///< transferred
    Refused = 1,   ///< the operator keeps what is there
    DoneAll = 2,   ///< transferred, and no further question is wanted
    Cancelled = 3, ///< the operator wants no more
};

/// Whether the transfer itself may go on, or has been made.
constexpr bool goesOn(TransferOutcome outcome) {
    return outcome == TransferOutcome::Done || outcome == TransferOutcome::DoneAll;
}

} // namespace vantrel
