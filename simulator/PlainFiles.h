#pragma once

#include "base/Result.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace vantrel::simulator {

/// File access that never follows a symbolic link at the end of the path, so that no link in a
/// folder leads out of it. Paths are absolute and UTF-8.

/// A regular file itself, not a link to one.
bool isPlainFile(const std::string& path);

/// Whether a file may be written at the path: nothing is there, or a plain file.
bool isFreeOrPlainFile(const std::string& path);

/// Replaces a plain file whole or creates it; refused where anything else has the name.
Outcome writePlainFile(const std::string& path, std::string_view content);

} // namespace vantrel::simulator
