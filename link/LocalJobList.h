#pragma once

#include "base/Wildcard.h"

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace vantrel {

/// The jobs of the file "LocalJob.lst", which belong to the PC alone and are passed over by list
/// transfers. An entry may be a wildcard pattern; one without "." stands for a ".JBI" file.
class LocalJobList {
  public:
    /// Reads the list of a folder. The list stays as it was when there is no readable file.
    void read(const std::string& folder);

    bool contains(std::string_view entry) const;

    const std::vector<std::string>& entries() const { return entries_; }

  private:
    void add(std::string_view entry);

    std::vector<std::string> entries_;      ///< trimmed, in file order
    std::unordered_set<std::string> names_; ///< the entries without a wildcard, normalised
    std::vector<WildcardPattern> patterns_; ///< the others, normalised
};

} // namespace vantrel
