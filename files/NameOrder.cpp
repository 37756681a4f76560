#include "files/NameOrder.h"

#include "base/TextCase.h"

#include <algorithm>
#include <utility>

namespace vantrel {

std::vector<std::string> inNameOrder(std::vector<std::string> names) {
    std::vector<std::pair<std::string, std::string>> keyed; // upper case, name
    keyed.reserve(names.size());
    for (auto& name : names) {
        std::string key = upperCase(name);
        keyed.emplace_back(std::move(key), std::move(name));
    }
    std::ranges::sort(keyed);
    std::ranges::transform(keyed, names.begin(), [](auto& row) { return std::move(row.second); });
    return names;
}

} // namespace vantrel
