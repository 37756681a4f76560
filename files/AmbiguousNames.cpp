#include "files/AmbiguousNames.h"

#include "base/ApplicationState.h"
#include "base/TextCase.h"
#include "files/ControllerModels.h"
#include "files/TransferReports.h"
#include "files/TransferTable.h"
#include "lang/MessageNumbers.h"

#include <unordered_map>

namespace vantrel {

// A name that the listing holds twice is one name.
AmbiguousNames::AmbiguousNames(const std::vector<std::string>& listing,
                               const std::vector<std::string>& fixedNames) {
    std::unordered_map<std::string_view, int> notOfTheDirectory;
    for (const std::string& name : fixedNames)
        ++notOfTheDirectory[name];
    std::unordered_map<std::string, std::string_view> spellings;
    spellings.reserve(listing.size());
    for (const std::string& name : listing) {
        const auto fixed = notOfTheDirectory.find(name);
        if (fixed != notOfTheDirectory.end() && fixed->second-- > 0)
            continue;
        const auto [known, isNew] = spellings.try_emplace(normalisedJobName(name), name);
        if (!isNew && known->second != name)
            forms_.insert(known->first);
    }
}

bool AmbiguousNames::contains(std::string_view name) const {
    return !forms_.empty() && forms_.contains(normalisedJobName(name));
}

std::vector<SelectedItem> withoutAmbiguousNames(const TransferServices& services,
                                                std::vector<SelectedItem> items) {
    const AmbiguousNames ambiguous(
        services.state.CtrlListing.Names,
        services.table.fixedNames(controllerModel(services.state.Controler).bit));
    std::erase_if(items, [&](const SelectedItem& item) {
        if (!ambiguous.contains(item.name))
            return false;
        TransferReports(services).aboutFile(item.name, message::nameIsAmbiguous);
        return true;
    });
    return items;
}

} // namespace vantrel
