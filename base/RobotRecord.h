#pragma once

#include <string>
#include <string_view>

namespace vantrel {

/// A registered robot controller. All fields are text (UTF-8), as written in the registry.
struct RobotRecord {
    std::string Name;
    std::string IP1, IP2, IP3, IP4; ///< the four parts of the address
    std::string IPaddr;             ///< the whole address, for example "192.168.0.1"
    std::string Path;               ///< the robot's folder on the PC, absolute once loaded
    std::string Colour = {};        ///< of its mark, as the registry has it; often none
    std::string Label = {};         ///< the same of its label

    bool operator==(const RobotRecord&) const = default;
};

/// `Name` of the extra record that ends every robot list.
inline constexpr std::string_view endOfRobots = "@END@";

} // namespace vantrel
