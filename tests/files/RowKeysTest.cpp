#include "files/RowKeys.h"

#include <functional>
#include <numeric>
#include <string>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

constexpr std::uint32_t manyRows = 100'000;

/// A folder of many entries, every tenth a folder, with what the column under test holds made by a
/// rule.
FolderListing listingOf(const std::function<std::string(std::uint32_t)>& nameOf) {
    FolderListing listing;
    for (std::uint32_t entry = 0; entry < manyRows; ++entry)
        listing.append(nameOf(entry), entry % 10 == 0 ? -1 : static_cast<std::int32_t>(entry),
                       DateText("2026/11/20 08:05:09"));
    return listing;
}

std::vector<std::uint32_t> allEntries() {
    std::vector<std::uint32_t> entries(manyRows);
    std::iota(entries.begin(), entries.end(), 0u);
    return entries;
}

std::size_t comparisonsToSort(const FolderListing& listing) {
    RowKeys rows(listing, allEntries());
    std::size_t comparisons = 0;
    sortKeys(rows.keys(), [&](const RowKeys::Key& left, const RowKeys::Key& right) {
        ++comparisons;
        return rows.before(left, right);
    });
    const auto& keys = rows.keys();
    EXPECT_TRUE(
        std::is_sorted(keys.begin(), keys.end(), [&rows](const auto& left, const auto& right) {
            return rows.before(left, right);
        }));
    return comparisons;
}

struct ManyRowsCase {
    const char* title;
    std::int16_t sortType;
    std::int16_t sortDir;
    std::function<std::string(std::uint32_t)> nameOf;
};

class ManyRows : public testing::TestWithParam<ManyRowsCase> {};

TEST_P(ManyRows, NeedNoMoreThanNLogNComparisons) {
    FolderListing listing = listingOf(GetParam().nameOf);
    listing.SortType = GetParam().sortType;
    listing.SortDir = GetParam().sortDir;
    constexpr std::size_t log2OfManyRows = 17;
    EXPECT_LT(comparisonsToSort(listing), 3 * manyRows * log2OfManyRows);
}

std::string numbered(std::uint32_t number) {
    const std::string digits = std::to_string(number);
    return "LONG_COMMON_START_" + std::string(6 - digits.size(), '0') + digits + ".JBI";
}

INSTANTIATE_TEST_SUITE_P(
    Orders, ManyRows,
    testing::Values(
        ManyRowsCase{"NamesInOrder", 0, 0, numbered},
        ManyRowsCase{"NamesTurnedRound", 0, 1, numbered},
        ManyRowsCase{"NamesShuffled", 0, 0,
                     [](std::uint32_t entry) { return numbered(entry * 7919u % manyRows); }},
        ManyRowsCase{"NamesAllEqual", 0, 0, [](std::uint32_t) { return "SAME.JBI"; }},
        ManyRowsCase{"NamesUpAndDown", 0, 0,
                     [](std::uint32_t entry) {
                         return numbered(entry < manyRows / 2 ? entry : manyRows - entry);
                     }},
        ManyRowsCase{"SizesAsText", 1, 0, numbered}, ManyRowsCase{"DatesAllEqual", 2, 1, numbered}),
    [](const auto& row) { return std::string(row.param.title); });

TEST(RowKeys, NoRowsGiveNoKeys) {
    EXPECT_TRUE(RowKeys(FolderListing(), {}).keys().empty());
}

} // namespace
} // namespace vantrel
