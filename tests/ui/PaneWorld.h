#pragma once

#include "base/FolderListing.h"
#include "files/PaneRows.h"

#include <string>
#include <vector>

namespace vantrel::tests {

/// A pane's rows, as filled from a listing of these names; "name/" is a folder.
class PaneWorld {
  public:
    explicit PaneWorld(const std::vector<std::string>& names) { fill(names); }

    void fill(const std::vector<std::string>& names) {
        listing.clear();
        for (auto name : names) {
            const bool folder = name.back() == '/';
            if (folder)
                name.pop_back();
            listing.append(name, folder ? FolderListing::folderSize : 1234,
                           DateText("2026/11/20 08:05:09"));
        }
        rows.fill([](std::string_view) { return true; });
        rows.sort();
    }

    FolderListing listing;
    PaneRows rows{listing};
};

} // namespace vantrel::tests
