#include "files/Subfolders.h"

#include "base/PathRules.h"
#include "files/NameOrder.h"
#include "platform/Files.h"

#include <string_view>

namespace vantrel {

std::vector<std::string> subfolders(const std::string& folder) {
    std::vector<std::string> found;
    // Names that were read before a failure are as good as any.
    (void)visitSubfolders(PathRules().withSeparator(folder),
                          [&found](std::string_view name) { found.emplace_back(name); });
    return inNameOrder(std::move(found));
}

} // namespace vantrel
