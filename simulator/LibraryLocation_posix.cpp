#include "base/PathRules.h"
#include "platform/Files.h"
#include "simulator/LibraryLocation.h"

#include <dlfcn.h>

namespace vantrel::simulator {

std::string libraryFolder() {
    Dl_info information{};
    if (dladdr(reinterpret_cast<void*>(&libraryFolder), &information) == 0)
        return {};
    const PathRules rules;
    const std::string file = information.dli_fname;
    return rules.parent(rules.isAbsolute(file) ? file : rules.join(currentFolder(), file));
}

} // namespace vantrel::simulator
