#pragma once

#include "base/DateText.h"

#include <cstdint>
#include <string>
#include <vector>

namespace vantrel {

/// What a pane is sorted by, which is the column's place in the list as well.
namespace sort_column {
inline constexpr std::int16_t name = 0, size = 1, date = 2;
inline constexpr int count = 3;
} // namespace sort_column

/// What one pane shows: the entries of a PC folder or of a controller's directory, in the order in
/// which they were found. `Names`, `Sizes` and `Dates` run in parallel.
struct FolderListing {
    std::string Path; ///< the folder listed; empty for a controller
    std::int32_t Count = 0;
    std::vector<std::string> Names; ///< UTF-8, as found
    std::vector<std::int32_t>
        Sizes;                   ///< bytes (at most 2^31 - 1 is shown), `folderSize` for a folder
    std::vector<DateText> Dates; ///< local time of the last change; empty when unknown
    bool isRead = false;         ///< false when nobody has looked yet what there is
    std::int16_t SortType = 0;   ///< one of `sort_column`; any other value sorts by name
    std::int16_t SortDir = 0;    ///< 1 descending, anything else ascending

    static constexpr std::int32_t folderSize = -1;

    void clear() {
        isRead = false;
        Count = 0;
        Names.clear();
        Sizes.clear();
        Dates.clear();
    }

    void append(std::string name, std::int32_t size, DateText date) {
        Names.push_back(std::move(name));
        Sizes.push_back(size);
        Dates.push_back(date);
        ++Count;
    }
};

} // namespace vantrel
