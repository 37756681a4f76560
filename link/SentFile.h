#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vantrel {

/// What a reading of the controller's directory showed.
struct DirectoryReading {
    std::uint64_t number = 0; ///< counts the session's readings that succeeded; 0 before the first
    std::vector<std::string> names;
    std::string robot; ///< where it is: the port or the address
};

/// A file that the library says it has sent, as it was read before.
struct SentFile {
    std::string path; ///< on the PC
    std::string content;
    std::string arrivesAs;   ///< the name that the controller's directory is to show
    std::string shownBefore; ///< its entry for that name when the sending began, or empty
    bool isInPlace = false;  ///< the controller puts it over what it has under the name
    std::vector<std::string> deleted{}; ///< the controller's jobs whose place it was to take
};

/// Whether a reading made after the send shows the file. Where the name was free, as it is for
/// every ".JBI", whose old job is deleted first, a name that is shown is one that has arrived. A
/// file that goes over an old one is shown whether or not it has arrived: there the library's word
/// is all there is.
bool isShown(const SentFile& file, const DirectoryReading& reading);

} // namespace vantrel
