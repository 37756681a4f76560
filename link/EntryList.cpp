#include "link/EntryList.h"

#include <utility>

namespace vantrel {

std::string EntryList::at(std::int32_t index) const {
    return has(index) ? entries_[static_cast<std::size_t>(index)] : std::string();
}

void EntryList::remove(std::int32_t index) {
    if (has(index))
        entries_.erase(entries_.begin() + index);
}

void EntryList::replace(std::int32_t index, std::string entry) {
    if (has(index))
        entries_[static_cast<std::size_t>(index)] = std::move(entry);
}

} // namespace vantrel
