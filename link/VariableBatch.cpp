#include "link/VariableBatch.h"

#include "base/Text.h"
#include "link/EntryList.h"
#include "link/LinkConnection.h"
#include "link/SessionErrorRecord.h"
#include "link/SessionProgress.h"

namespace vantrel {

// A copy is worked through: the list is open to every caller, and events run.
bool VariableBatch::run(EntryList& entries, const Transfer& transfer) {
    progress_.open(progress_.transferring(), true, true);
    const std::vector<std::string> all = entries.all();
    const auto count = static_cast<std::int32_t>(all.size());
    for (std::int32_t index = 0; index < count; ++index) {
        const std::string& entry = all[static_cast<std::size_t>(index)];
        bool cancelled = false;
        if (trimmed(entry).empty()) {
            cancelled = progress_.isCancelledPassingOver(entry, index, count);
        } else {
            progress_.step(progress_.transferring(entry), index, count);
            if (!transferOne(entries, index, entry, transfer))
                return false;
            cancelled = progress_.isCancelledAfterYield();
        }
        if (cancelled) {
            error_.set(session_code::cancelled, "", index);
            return false;
        }
    }
    return true;
}

bool VariableBatch::transferOne(EntryList& entries, std::int32_t index, const std::string& before,
                                const Transfer& transfer) {
    std::string entry = before;
    if (!transfer(entry)) {
        // An address that is not set leaves the whole record alone.
        if (!link_.endedByUnsetAddress())
            error_.ErrorIndex = index;
        return false;
    }
    if (entries.at(index) == before)
        entries.replace(index, std::move(entry));
    return true;
}

} // namespace vantrel
