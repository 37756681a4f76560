#pragma once

#include <string>

// Where this checkout and this build keep what tests read. Compiled once and apart, so that the
// place of a checkout, which the compiler's cache cannot know, stands in one object only.

namespace vantrel::tests {

std::string sourceFolder();
std::string dataFolder();    ///< language files, file table, samples
std::string simulatorFile(); ///< the library that was built with the tests

} // namespace vantrel::tests
