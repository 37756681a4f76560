#include "files/RowKeys.h"

#include "base/Text.h"
#include "base/TextCase.h"

namespace vantrel {

namespace {

constexpr std::int16_t descendingOrder = 1;
constexpr std::size_t headLength = sizeof(std::uint64_t);

/// Most names are ASCII, where the locale-independent mapping needs no table.
std::string upperName(std::string_view name) {
    return isAscii(name) ? asciiUpper(name) : upperCase(name);
}

std::uint64_t bigEndian(std::string_view bytes) {
    std::uint64_t number = 0;
    for (std::size_t i = 0; i < headLength; ++i)
        number = number << 8 | (i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0u);
    return number;
}

std::size_t commonStart(std::string_view left, std::string_view right, std::size_t limit) {
    const std::size_t end = std::min({left.size(), right.size(), limit});
    std::size_t length = 0;
    while (length < end && left[length] == right[length])
        ++length;
    return length;
}

} // namespace

RowKeys::RowKeys(const FolderListing& listing, const std::vector<std::uint32_t>& entries)
    : descending_(listing.SortDir == descendingOrder) {
    keys_.reserve(entries.size());
    for (const std::uint32_t entry : entries) {
        const bool isFile = listing.Sizes[entry] >= 0;
        if (listing.SortType == sort_column::size)
            add(sizeText(listing.Sizes[entry]), entry, false);
        else if (listing.SortType == sort_column::date)
            add(listing.Dates[entry].view(), entry, isFile);
        else
            add(upperName(listing.Names[entry]), entry, isFile);
    }
    fillHeads();
}

void RowKeys::add(std::string_view text, std::uint32_t entry, bool isFile) {
    keys_.push_back({0, texts_.size(), static_cast<std::uint32_t>(text.size()), entry, isFile});
    texts_.append(text);
}

std::string_view RowKeys::text(const Key& key) const {
    return std::string_view(texts_).substr(key.start, key.length);
}

void RowKeys::fillHeads() {
    const std::size_t shared = sharedStart();
    for (Key& key : keys_)
        key.head = bigEndian(text(key).substr(shared));
}

/// How many bytes all texts have in common at their start: the heads begin after them, since dates
/// and numbered jobs are mostly alike in their first bytes.
std::size_t RowKeys::sharedStart() const {
    if (keys_.empty())
        return 0;
    const std::string_view first = text(keys_.front());
    std::size_t shared = first.size();
    for (const Key& key : keys_)
        shared = commonStart(first, text(key), shared);
    return shared;
}

bool RowKeys::before(const Key& left, const Key& right) const {
    if (left.isFile != right.isFile)
        return left.isFile == descending_;
    if (left.head != right.head)
        return (left.head < right.head) != descending_;
    if (const int order = text(left).compare(text(right)); order != 0)
        return (order < 0) != descending_;
    return left.entry < right.entry;
}

std::string sizeText(std::int32_t size) {
    return size < 0 ? std::string() : std::to_string(size);
}

} // namespace vantrel
