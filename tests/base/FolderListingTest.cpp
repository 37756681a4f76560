#include "base/FolderListing.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

FolderListing listingOfTwo() {
    FolderListing listing;
    listing.Path = "/jobs";
    listing.SortType = 2;
    listing.SortDir = 1;
    listing.append("A.JBI", 12, DateText("2026/11/20 08:05:09"));
    listing.append("old", FolderListing::folderSize, DateText());
    return listing;
}

TEST(FolderListing, KeepsItsColumnsInStep) {
    const FolderListing listing = listingOfTwo();
    EXPECT_EQ(listing.Count, 2);
    EXPECT_EQ(listing.Names, (std::vector<std::string>{"A.JBI", "old"}));
    EXPECT_EQ(listing.Sizes, (std::vector<std::int32_t>{12, -1}));
    EXPECT_EQ(listing.Dates.size(), 2u);
}

TEST(FolderListing, ClearsTheEntriesButNotPathAndSorting) {
    FolderListing listing = listingOfTwo();
    listing.clear();
    EXPECT_EQ(listing.Count, 0);
    EXPECT_TRUE(listing.Names.empty() && listing.Sizes.empty() && listing.Dates.empty());
    EXPECT_EQ(listing.Path, "/jobs");
    EXPECT_EQ(listing.SortType, 2);
    EXPECT_EQ(listing.SortDir, 1);
}

} // namespace
} // namespace vantrel
