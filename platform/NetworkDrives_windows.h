#pragma once

#include <string>

namespace vantrel {

/// The share behind a drive letter ("Z:"), such as "\\server\share", by the system's own table: the
/// server is not asked, and may be off. Empty for a drive of this machine.
std::wstring connectedShare(const std::wstring& letter);

} // namespace vantrel
