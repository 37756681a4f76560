#pragma once

#include "base/FolderListing.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

/// What decides a row's place, worked out once per row so that each comparison is cheap: folder or
/// file, the sort column's text (upper case for names), and last the place in the listing, which
/// keeps equal rows in the order in which they were found.
class RowKeys {
  public:
    struct Key {
        std::uint64_t head =
            0; ///< the first bytes in which the texts differ, as a big-endian number
        std::size_t start = 0; ///< of the text in `texts_`
        std::uint32_t length = 0;
        std::uint32_t entry = 0; ///< position in the listing
        bool isFile = false;     ///< false for every row when the order mixes folders and files
    };

    /// Keys for these entries by the listing's `SortType` and `SortDir`.
    RowKeys(const FolderListing& listing, const std::vector<std::uint32_t>& entries);

    std::vector<Key>& keys() { return keys_; }
    bool before(const Key& left, const Key& right) const;

  private:
    void add(std::string_view text, std::uint32_t entry, bool isFile);
    std::string_view text(const Key& key) const;
    void fillHeads();
    std::size_t sharedStart() const;

    std::string texts_; ///< all texts in one piece: no allocation per row
    std::vector<Key> keys_;
    bool descending_;
};

/// Sorts with a number of comparisons in the order of n log n, whatever the rows are.
template <typename Before>
void sortKeys(std::vector<RowKeys::Key>& keys, Before before) {
    std::sort(keys.begin(), keys.end(), before);
}

/// Plain decimal digits without grouping; empty for a folder.
std::string sizeText(std::int32_t size);

} // namespace vantrel
