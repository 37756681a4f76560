#include "support/ProjectFiles.h"

namespace vantrel::tests {

std::string sourceFolder() {
    return VANTREL_SOURCE_FOLDER;
}

std::string dataFolder() {
    return sourceFolder() + "/data";
}

std::string simulatorFile() {
    return VANTREL_SIMULATOR;
}

} // namespace vantrel::tests
