#include "files/TransferPermission.h"

#include "base/ApplicationState.h"
#include "base/PathRules.h"
#include "files/CommandResult.h"
#include "files/ControllerModels.h"
#include "files/TransferReports.h"
#include "files/TransferTable.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/SessionErrorRecord.h"
#include "link/ShownText.h"
#include "platform/TextEncoding.h"

namespace vantrel {

std::vector<std::string>
TransferPermission::permitted(const std::vector<SelectedItem>& items) const {
    std::vector<std::string> names;
    for (const SelectedItem& item : items)
        if (passes(item))
            names.push_back(item.name);
    return names;
}

bool TransferPermission::passes(const SelectedItem& item) const {
    if (item.isFolder) {
        TransferReports(with_).aboutFile(item.name, message::folderPassedOver);
        return false;
    }
    const std::int16_t modelBit = controllerModel(with_.state.Controler).bit;
    if (!with_.table.isTransferable(item.name, direction_ == Direction::Send, modelBit)) {
        TransferReports(with_).aboutFile(item.name, message::kindRefused);
        return false;
    }
    return hasUsableName(item.name);
}

/// A name with a path in it could reach a file outside the folder, and one that the library's code
/// page cannot express would reach another file: both end here, so that the other files still go.
bool TransferPermission::hasUsableName(const std::string& name) const {
    const TransferReports reports(with_);
    if (!PathRules::isPlainName(name)) {
        if (direction_ == Direction::Receive)
            reports.aboutFile(name, message::controllerNameRefused);
        else
            tellNameRefused(name);
        return false;
    }
    if (!toCodePage(name)) {
        reports.aboutFile(name, message::nameNotExpressible);
        return false;
    }
    return true;
}

void TransferPermission::tellNameRefused(const std::string& name) const {
    const std::string reason = with_.messages.errorText(session_code::nameRefused);
    with_.results.note(name, ItemEnd::Skipped, reason);
    TransferReports(with_).transferFailed(bracketed(name), reason);
}

} // namespace vantrel
