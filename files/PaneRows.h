#pragma once

#include "base/FolderListing.h"
#include "files/FileKinds.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

/// Why a pane shows no rows.
enum class EmptyPane { NotRead, NoFiles, AllFiltered, NothingFound };

/// The rows that a pane shows of its listing: filtered and in order. Holds positions only; the
/// listing is borrowed. A list control may paint at any yield, with rows that it was shown before
/// the last `fill`: a row that is not there any more reads as an empty one.
class PaneRows {
  public:
    explicit PaneRows(const FolderListing& listing) : listing_(listing) {}

    /// Folders always, files when `accepts` says yes to the upper-cased name; of both those whose
    /// name holds `wanted`, whatever its letters' case; in listing order. Only ASCII letters are
    /// upper-cased: all that a filter looks at. False, without rows, when the listing is not whole:
    /// it counts more entries than it holds.
    bool fill(const std::function<bool(std::string_view upperName)>& accepts,
              std::string_view wanted = {});
    /// By the listing's `SortType` and `SortDir`: by size as text; else by name or date and then
    /// folders and files apart.
    void sort();
    void clear() { order_.clear(); }
    /// What they are sorted by, one of `sort_column`.
    std::int16_t sortColumn() const;
    bool isDescending() const { return listing_.SortDir == 1; }

    std::size_t size() const { return order_.size(); }
    /// Nothing when there are rows.
    std::optional<EmptyPane> emptiness() const;
    const std::string& name(std::size_t row) const;
    FileKind kind(std::size_t row) const;
    std::string sizeText(std::size_t row) const; ///< plain digits, empty for a folder
    std::uint64_t bytes(std::size_t row) const;  ///< 0 for a folder
    std::string_view dateText(std::size_t row) const;

  private:
    bool isWhole() const;
    bool holds(std::uint32_t entry) const;
    bool isThere(std::size_t row) const;

    const FolderListing& listing_;
    std::vector<std::uint32_t> order_;
    bool isSearched_ = false; ///< shows only names that hold a text
};

} // namespace vantrel
