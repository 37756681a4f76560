#include "link/VariableTransfer.h"

#include "link/LinkConnection.h"
#include "link/SessionErrorRecord.h"
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

} // namespace vantrel
