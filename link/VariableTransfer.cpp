#include "link/VariableTransfer.h"

#include "link/LinkConnection.h"
#include "link/SessionErrorRecord.h"
#include "link/VariableEntry.h"
#include "link/Zurolink.h"

namespace vantrel {

bool VariableTransfer::write(const std::string& entry) {
    const auto variable = VariableEntry::parse(entry);
    if (!variable) {
        reject();
        return false;
    }
    const std::int16_t handle = link_.connect();
    if (handle < 0)
        return false;
    const std::int16_t put = link_.library().BscPutVarData(handle, variable->kind, variable->number,
                                                           variable->values.data());
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
    variable->values.fill(0);
    const std::int16_t got = link_.library().BscGetVarData(handle, variable->kind, variable->number,
                                                           variable->values.data());
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
