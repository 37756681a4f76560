#pragma once

#include <string>

namespace vantrel::simulator {

/// The folder of the file that this code was loaded from, absolute, as it was loaded: a symbolic
/// link to the library counts by its own place. An empty text when the system does not tell.
std::string libraryFolder();

} // namespace vantrel::simulator
