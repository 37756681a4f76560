#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace vantrel::simulator {

struct IniSection {
    std::string name;
    std::vector<std::pair<std::string, std::string>> keys; ///< key and value, in file order

    /// The first value of a key, letter case aside, or an empty text.
    std::string_view value(std::string_view key) const;
};

/// The sections of an INI file in file order, read in one pass. Not the profile functions' reader:
/// those can only answer for keys that are known beforehand, and a set-up with any number of
/// controllers has to be listed. Outer blanks do not count; a line that starts with ";" is a
/// comment; what is neither a header nor "key=value" is passed over.
std::vector<IniSection> parseIni(std::string_view text);

/// One controller of the set-up.
struct ControllerSettings {
    std::string folder;                  ///< absolute
    std::optional<std::int16_t> port;    ///< serial port number, 1 = COM1
    std::string address;                 ///< dotted form; empty when it has no high-speed link
    std::set<std::string> hidden;        ///< files that are received but not listed, normalised
    std::set<std::string> protectedJobs; ///< neither deleted nor replaced; normalised, no ".JBI"
    std::set<std::string> runningJobs;   ///< the same, since they are being executed
    std::uint64_t memory = unlimited;    ///< bytes that its files may take together

    static constexpr std::uint64_t unlimited = std::numeric_limits<std::uint64_t>::max();
};

/// How a link reaches its controller.
struct SerialLine {
    std::int16_t port = 0;
};
struct EthernetLine {
    std::string address;
};
using Line = std::variant<SerialLine, EthernetLine>;

/// What "simulator.ini" says: the controllers and the rows of the script.
struct SimulatorSettings {
    std::vector<ControllerSettings> controllers;
    std::vector<std::string> scriptRows;

    /// The first controller of the file that the line leads to, or null.
    const ControllerSettings* find(const Line& line) const;
};

/// Reads the file's bytes. Relative folders are below `libraryFolder`. What makes no sense is left
/// out, so that garbage gives a set-up without controllers.
SimulatorSettings parseSettings(std::string_view bytes, const std::string& libraryFolder);

} // namespace vantrel::simulator
