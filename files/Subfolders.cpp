#include "files/Subfolders.h"

#include "base/PathRules.h"
#include "platform/Files.h"
#include "platform/TextCase.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace vantrel {

std::vector<std::string> subfolders(const std::string& folder) {
    UpperCaseMapping upperCase;
    std::vector<std::pair<std::string, std::string>> found; // sort key, name
    const auto keep = [&](std::string_view name) { found.emplace_back(upperCase.of(name), name); };
    // Names that were read before a failure are as good as any.
    (void)visitSubfolders(PathRules().withSeparator(folder), keep);
    std::ranges::sort(found);
    std::vector<std::string> names;
    names.reserve(found.size());
    for (auto& [key, name] : found)
        names.push_back(std::move(name));
    return names;
}

} // namespace vantrel
