#include "app/VersionText.h"

namespace vantrel {

ProgramVersion programVersion() {
    return {VANTREL_VERSION_MAJOR, VANTREL_VERSION_MINOR, VANTREL_VERSION_REVISION};
}

std::string versionText(const ProgramVersion& version) {
    return std::to_string(version.major) + '.' + std::to_string(version.minor) +
           std::to_string(version.revision);
}

} // namespace vantrel
