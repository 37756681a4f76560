#pragma once

#include <string>
#include <string_view>
#include <utility>
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

} // namespace vantrel::simulator
