#pragma once

#include "base/Result.h"

#include <string>

namespace vantrel {

/// Starts a program found on the PATH with one argument, in a session of its own, so that it
/// outlives this program and leaves no dead child behind. No shell has a part in it, so the
/// argument arrives as it is. Returns when the program runs or cannot be started.
Outcome startDetached(const std::string& program, const std::string& argument);

} // namespace vantrel
