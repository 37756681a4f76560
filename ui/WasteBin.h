#pragma once

#include "base/Result.h"

#include <string>

namespace vantrel {

/// Moves a file, by its absolute path, to the system's waste bin, from where the operator can get
/// it back. Where there is none it is a failure, and the file stays.
Outcome moveToWasteBin(const std::string& path);

} // namespace vantrel
