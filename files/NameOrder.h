#pragma once

#include <string>
#include <vector>

namespace vantrel {

/// Names in the order in which folders and files are listed beside each other: without regard to
/// letter case, equal ones by their bytes.
std::vector<std::string> inNameOrder(std::vector<std::string> names);

} // namespace vantrel
