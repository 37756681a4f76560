#include "files/PaneRows.h"

#include "base/Text.h"
#include "files/RowKeys.h"

#include <algorithm>

namespace vantrel {

bool PaneRows::fill(const std::function<bool(std::string_view upperName)>& accepts,
                    std::string_view wanted) {
    order_.clear();
    isSearched_ = !wanted.empty();
    if (!isWhole())
        return false;
    const std::string part = asciiUpper(wanted);
    const auto count = static_cast<std::uint32_t>(listing_.Count);
    for (std::uint32_t entry = 0; entry < count; ++entry) {
        const std::string name = asciiUpper(listing_.Names[entry]);
        if (name.find(part) != std::string::npos && (listing_.Sizes[entry] < 0 || accepts(name)))
            order_.push_back(entry);
    }
    return true;
}

void PaneRows::sort() {
    std::erase_if(order_, [this](std::uint32_t entry) { return !holds(entry); });
    RowKeys rows(listing_, order_);
    sortKeys(rows.keys(), [&rows](const RowKeys::Key& left, const RowKeys::Key& right) {
        return rows.before(left, right);
    });
    std::transform(rows.keys().begin(), rows.keys().end(), order_.begin(),
                   [](const RowKeys::Key& key) { return key.entry; });
}

std::int16_t PaneRows::sortColumn() const {
    const bool isKnown =
        listing_.SortType == sort_column::size || listing_.SortType == sort_column::date;
    return isKnown ? listing_.SortType : sort_column::name;
}

std::optional<EmptyPane> PaneRows::emptiness() const {
    if (size() > 0)
        return std::nullopt;
    if (!listing_.isRead)
        return EmptyPane::NotRead;
    if (listing_.Count == 0)
        return EmptyPane::NoFiles;
    return isSearched_ ? EmptyPane::NothingFound : EmptyPane::AllFiltered;
}

const std::string& PaneRows::name(std::size_t row) const {
    static const std::string nothing;
    return isThere(row) ? listing_.Names[order_[row]] : nothing;
}

FileKind PaneRows::kind(std::size_t row) const {
    if (!isThere(row))
        return FileKind::PlainFile;
    const std::uint32_t entry = order_[row];
    return fileKind(listing_.Names[entry], listing_.Sizes[entry]);
}

std::string PaneRows::sizeText(std::size_t row) const {
    return isThere(row) ? vantrel::sizeText(listing_.Sizes[order_[row]]) : std::string();
}

std::uint64_t PaneRows::bytes(std::size_t row) const {
    if (!isThere(row))
        return 0;
    const std::int32_t size = listing_.Sizes[order_[row]];
    return size < 0 ? 0 : static_cast<std::uint64_t>(size);
}

std::string_view PaneRows::dateText(std::size_t row) const {
    return isThere(row) ? listing_.Dates[order_[row]].view() : std::string_view();
}

bool PaneRows::isWhole() const {
    if (listing_.Count <= 0)
        return listing_.Count == 0;
    return holds(static_cast<std::uint32_t>(listing_.Count - 1));
}

bool PaneRows::holds(std::uint32_t entry) const {
    return entry < listing_.Names.size() && entry < listing_.Sizes.size() &&
           entry < listing_.Dates.size();
}

bool PaneRows::isThere(std::size_t row) const {
    return row < order_.size() && holds(order_[row]);
}

} // namespace vantrel
