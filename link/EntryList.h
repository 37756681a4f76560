#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vantrel {

/// A list of entries read by an index that may lie outside.
class EntryList {
  public:
    std::int32_t count() const { return static_cast<std::int32_t>(entries_.size()); }
    /// The entry, or an empty text outside the list.
    std::string at(std::int32_t index) const;
    void add(std::string entry) { entries_.push_back(std::move(entry)); }
    /// Does nothing outside the list.
    void remove(std::int32_t index);
    void replace(std::int32_t index, std::string entry);
    void clear() { entries_.clear(); }
    const std::vector<std::string>& all() const { return entries_; }

  private:
    bool has(std::int32_t index) const { return index >= 0 && index < count(); }

    std::vector<std::string> entries_;
};

} // namespace vantrel
