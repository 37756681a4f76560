#include "link/VariableBatch.h"

#include "base/Text.h"
#include "link/EntryList.h"
#include "link/LinkConnection.h"
#include "link/SessionErrorRecord.h"
#include "link/SessionProgress.h"

namespace vantrel {

bool VariableBatch::run(EntryList& entries, const Transfer& transfer) {
    progress_.open(progress_.transferring(), true, true);
    for (std::int32_t index = 0; index < entries.count(); ++index) {
        const std::string entry = entries.at(index);
        progress_.step(progress_.transferring(entry), index, entries.count());
        if (trimmed(entry).empty())
            continue;
        if (!transferOne(entries, index, transfer))
            return false;
        if (progress_.isCancelledAfterYield()) {
            error_.set(session_code::cancelled, "", index);
            return false;
        }
    }
    return true;
}

bool VariableBatch::transferOne(EntryList& entries, std::int32_t index, const Transfer& transfer) {
    std::string entry = entries.at(index);
    if (!transfer(entry)) {
        // An address that is not set leaves the whole record alone.
        if (!link_.endedByUnsetAddress())
            error_.ErrorIndex = index;
        return false;
    }
    entries.replace(index, std::move(entry));
    return true;
}

} // namespace vantrel
