#pragma once

#include <string>
#include <vector>

namespace vantrel {

class Snappy;

/// The session's job list.
std::vector<std::string> jobNames(const Snappy& session);

/// The entries of the session's variable list but for blank lines.
std::vector<std::string> variablesOf(const Snappy& session);

/// Whether values of a list are others after it was refreshed. An entry that only names its
/// variable, "B001=", has none to lose.
bool losesValues(const std::vector<std::string>& before, const std::vector<std::string>& after);

} // namespace vantrel
