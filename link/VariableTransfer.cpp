#include "link/VariableTransfer.h"

#include "base/Text.h"
#include "link/JobLists.h"
#include "link/LinkConnection.h"
#include "link/SessionErrorRecord.h"
#include "link/SessionProgress.h"
#include "link/VariableEntry.h"
#include "link/Zurolink.h"

#include <algorithm>
#include <array>

namespace vantrel {
namespace {

/// The ten values as the library gets them: with room behind them, since one that miscounts must
/// not write over something else.
using LibraryValues = std::array<double, 64>;

} // namespace

bool VariableTransfer::write(const std::string& entry) {
    const auto variable = VariableEntry::parse(entry);
    if (!variable) {
        reject();
        return false;
    }
    const std::int16_t handle = link_.connect();
    if (handle < 0)
        return false;
    LibraryValues values{};
    std::ranges::copy(variable->values, values.begin());
    const std::int16_t put =
        link_.library().BscPutVarData(handle, variable->kind, variable->number, values.data());
    return link_.finish(handle, put, "BscPutVarData");
}

bool VariableTransfer::read(std::string& entry) {
    auto variable = VariableEntry::parse(entry);
    if (!variable) {
        reject();
        return false;
    }
    const std::int16_t handle = link_.connect();
    if (handle < 0)
        return false;
    // A library that fills fewer slots must not leave the values of the old entry in the others.
    LibraryValues values{};
    const std::int16_t got =
        link_.library().BscGetVarData(handle, variable->kind, variable->number, values.data());
    std::copy_n(values.begin(), variable->values.size(), variable->values.begin());
    if (!link_.finish(handle, got, "BscGetVarData"))
        return false;
    // No number could be written for it that a later reading would understand.
    if (!variable->isFinite()) {
        error_.set(session_code::valueNotFinite, "BscGetVarData");
        return false;
    }
    entry = variable->format();
    return true;
}

void VariableTransfer::reject() {
    error_.set(session_code::entryRejected, "");
}

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
