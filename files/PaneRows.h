#pragma once

#include "base/FolderListing.h"
#include "files/FileKinds.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

/// The rows that a pane shows of its listing: filtered and in order. Holds positions only; the
/// listing is borrowed and must not change between `fill` and the next use of a row.
class PaneRows {
  public:
    explicit PaneRows(const FolderListing& listing) : listing_(listing) {}

    /// Folders always, files when `accepts` says yes to the upper-cased name; in listing order.
    void fill(const std::function<bool(std::string_view upperName)>& accepts);
    /// By the listing's `SortType` and `SortDir`: by size as text; else by name or date and then
    /// folders and files apart.
    void sort();
    void clear() { order_.clear(); }

    std::size_t size() const { return order_.size(); }
    const std::string& name(std::size_t row) const;
    FileKind kind(std::size_t row) const;
    std::string sizeText(std::size_t row) const; ///< plain digits, empty for a folder
    std::string_view dateText(std::size_t row) const;

  private:
    const FolderListing& listing_;
    std::vector<std::uint32_t> order_;
};

} // namespace vantrel
