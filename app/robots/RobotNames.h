#pragma once

#include "platform/TextEncoding.h"

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

class MessageBoxes;

/// The names of a registry file, to be compared with each other and never shown.
struct RobotNames {
    std::string boot;
    std::vector<std::string> robots; ///< in the file's order
};

/// The name under [Boot], by the rules of any profile; the only key that is read so.
std::string bootName(const std::string& text);

/// The names byte by byte: of a file whose bytes do not all mean something in its encoding, two
/// names can be the same text and yet those of two machines.
RobotNames namesByBytes(std::string_view content, TextEncoding encoding, MessageBoxes& boxes);

} // namespace vantrel
