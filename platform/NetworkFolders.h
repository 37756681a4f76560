#pragma once

#include <string>
#include <string_view>

namespace vantrel {

/// Whether a folder lies on another machine, told without touching it: reading there may hang when
/// that machine is off.
bool isOnNetwork(const std::string& folder);

/// The same by the text of /proc/self/mountinfo. Of nested mounts the innermost counts, of several
/// on one place the last. Lines that are none are passed over.
bool isOnNetwork(std::string_view folder, std::string_view mountInfo);

} // namespace vantrel
