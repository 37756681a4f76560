#include "link/SentFile.h"

#include "link/JobNameSet.h"

namespace vantrel {

bool isShown(const SentFile& file, const DirectoryReading& reading) {
    JobNameSet names;
    names.assign(reading.names);
    const std::string entry = names.entry(file.arrivesAs);
    return !entry.empty() && (file.isInPlace || entry != file.shownBefore);
}

} // namespace vantrel
