#pragma once

#include "files/TransferServices.h"

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace vantrel {

/// The names of the controller's listing that differ from another one there in letter case only. A
/// job is selected for deletion by its normalised name, so that deleting one of them could cost the
/// controller the other.
class AmbiguousNames {
  public:
    /// `fixedNames` are those that the listing has beside the directory's: one that the directory
    /// spells otherwise is the same file.
    explicit AmbiguousNames(const std::vector<std::string>& listing,
                            const std::vector<std::string>& fixedNames = {});

    bool contains(std::string_view name) const;

  private:
    std::unordered_set<std::string> forms_; ///< normalised
};

/// The items without those that have an ambiguous name, each of which is named in a message box.
std::vector<SelectedItem> withoutAmbiguousNames(const TransferServices& services,
                                                std::vector<SelectedItem> items);

} // namespace vantrel
