#include "files/PaneRows.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int16_t byName = 0;
constexpr std::int16_t bySize = 1;
constexpr std::int16_t byDate = 2;
constexpr std::int16_t ascending = 0;
constexpr std::int16_t descending = 1;

bool all(std::string_view) {
    return true;
}

class PaneRowsTest : public testing::Test {
  protected:
    void file(const std::string& name, std::int32_t size = 0, std::string_view date = {}) {
        listing.append(name, size, DateText(date));
    }
    void folder(const std::string& name, std::string_view date = {}) {
        listing.append(name, FolderListing::folderSize, DateText(date));
    }
    std::vector<std::string> names() const {
        std::vector<std::string> found;
        for (std::size_t row = 0; row < rows.size(); ++row)
            found.push_back(rows.name(row));
        return found;
    }
    std::vector<std::string> sorted(std::int16_t type, std::int16_t direction) {
        listing.SortType = type;
        listing.SortDir = direction;
        EXPECT_TRUE(rows.fill(all));
        rows.sort();
        return names();
    }

    FolderListing listing;
    PaneRows rows{listing};
};

TEST_F(PaneRowsTest, TellWhatTheyAreSortedBy) {
    for (const std::int16_t type : {byName, bySize, byDate}) {
        sorted(type, descending);
        EXPECT_EQ(rows.sortColumn(), type);
        EXPECT_TRUE(rows.isDescending());
    }
    sorted(7, ascending);
    EXPECT_EQ(rows.sortColumn(), byName) << "any other value";
    EXPECT_FALSE(rows.isDescending());
}

TEST_F(PaneRowsTest, AFileReadsWithItsOwnSpellingSizeAndDate) {
    file("a.jbi", 1234567, "2026/11/20 08:05:09");
    rows.fill(all);
    EXPECT_EQ(rows.name(0), "a.jbi");
    EXPECT_EQ(rows.kind(0), FileKind::JobFile);
    EXPECT_EQ(rows.sizeText(0), "1234567");
    EXPECT_EQ(rows.dateText(0), "2026/11/20 08:05:09");
}

TEST_F(PaneRowsTest, AFolderHasNoSize) {
    folder("JOBS", "2026/11/20 08:05:09");
    rows.fill(all);
    EXPECT_EQ(rows.kind(0), FileKind::Folder);
    EXPECT_EQ(rows.sizeText(0), "");
    EXPECT_EQ(rows.dateText(0), "2026/11/20 08:05:09");
}

TEST_F(PaneRowsTest, AnEmptyFileHasTheSizeZero) {
    file("A.JBI", 0);
    rows.fill(all);
    EXPECT_EQ(rows.sizeText(0), "0");
}

TEST_F(PaneRowsTest, FilesAreAskedForInUpperCaseAndStayInListingOrder) {
    file("b.jbi");
    file("readme.txt");
    file("A.JBI");
    std::vector<std::string> asked;
    rows.fill([&asked](std::string_view upperName) {
        asked.emplace_back(upperName);
        return upperName.ends_with(".JBI");
    });
    EXPECT_THAT(asked, ElementsAre("B.JBI", "README.TXT", "A.JBI"));
    EXPECT_THAT(names(), ElementsAre("b.jbi", "A.JBI"));
}

TEST_F(PaneRowsTest, FoldersAreNeverFiltered) {
    folder("ONE");
    folder("TWO.TXT");
    rows.fill([](std::string_view) { return false; });
    EXPECT_THAT(names(), ElementsAre("ONE", "TWO.TXT"));
}

TEST_F(PaneRowsTest, EachFileIsAskedForOnce) {
    constexpr int manyFiles = 100'000;
    for (int number = 0; number < manyFiles; ++number)
        file("JOB" + std::to_string(number) + ".JBI");
    int asked = 0;
    rows.fill([&asked](std::string_view) { return ++asked % 2 == 0; });
    EXPECT_EQ(asked, manyFiles);
    EXPECT_EQ(rows.size(), manyFiles / 2u);
}

TEST_F(PaneRowsTest, TheCountDecidesHowManyEntriesThereAre) {
    file("A.JBI");
    file("B.JBI");
    listing.Count = 0;
    EXPECT_TRUE(rows.fill(all));
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(PaneRowsTest, AListingThatCountsMoreThanItHoldsIsRefused) {
    file("A.JBI");
    listing.Count = 2;
    EXPECT_FALSE(rows.fill(all));
    EXPECT_THAT(names(), IsEmpty());
    listing.Count = -1;
    EXPECT_FALSE(rows.fill(all));
}

TEST_F(PaneRowsTest, ARowThatIsGoneReadsAsAnEmptyOne) {
    file("A.JBI", 5, "2026/11/20 08:05:09");
    rows.fill(all);
    listing.clear();
    EXPECT_EQ(rows.name(0), "");
    EXPECT_EQ(rows.kind(0), FileKind::PlainFile);
    EXPECT_EQ(rows.sizeText(0), "");
    EXPECT_EQ(rows.dateText(0), "");
    EXPECT_EQ(rows.name(7), "");
    rows.sort();
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(PaneRowsTest, NameOrderIgnoresLetterCase) {
    for (const char* name : {"b.jbi", "C.JBI", "A.JBI", "a1.jbi"})
        file(name);
    EXPECT_THAT(sorted(byName, ascending), ElementsAre("A.JBI", "a1.jbi", "b.jbi", "C.JBI"));
    EXPECT_THAT(sorted(byName, descending), ElementsAre("C.JBI", "b.jbi", "a1.jbi", "A.JBI"));
}

TEST_F(PaneRowsTest, NameOrderIgnoresTheCaseOfOtherScriptsToo) {
    for (const char* name : {"ｂ.JBI", "Ａ.JBI", "ä2.JBI", "Ä1.JBI"})
        file(name);
    EXPECT_THAT(sorted(byName, ascending), ElementsAre("Ä1.JBI", "ä2.JBI", "Ａ.JBI", "ｂ.JBI"));
}

TEST_F(PaneRowsTest, NamesThatDifferInCaseOnlyKeepTheListingsOrderBothWays) {
    for (const char* name : {"same.jbi", "SAME.JBI", "Same.Jbi"})
        file(name);
    EXPECT_THAT(sorted(byName, ascending), ElementsAre("same.jbi", "SAME.JBI", "Same.Jbi"));
    EXPECT_THAT(sorted(byName, descending), ElementsAre("same.jbi", "SAME.JBI", "Same.Jbi"));
}

TEST_F(PaneRowsTest, AShorterNameComesBeforeItsContinuation) {
    for (const char* name : {"LONG_COMMON_START_10", "LONG_COMMON_START_1", "LONG_COMMON_START_"})
        file(name);
    EXPECT_THAT(sorted(byName, ascending),
                ElementsAre("LONG_COMMON_START_", "LONG_COMMON_START_1", "LONG_COMMON_START_10"));
}

TEST_F(PaneRowsTest, NamesAreComparedBeyondTheirFirstBytes) {
    for (const char* name : {"X", "A23456789-Z", "A23456789-B", "A23456789-M"})
        file(name);
    EXPECT_THAT(sorted(byName, ascending),
                ElementsAre("A23456789-B", "A23456789-M", "A23456789-Z", "X"));
}

TEST_F(PaneRowsTest, NamesStandInGroupsOfFoldersAndFiles) {
    file("B.JBI");
    folder("Z");
    file("A.JBI");
    folder("C");
    EXPECT_THAT(sorted(byName, ascending), ElementsAre("C", "Z", "A.JBI", "B.JBI"));
    EXPECT_THAT(sorted(byName, descending), ElementsAre("B.JBI", "A.JBI", "Z", "C"));
}

TEST_F(PaneRowsTest, SizesSortAsText) {
    file("A", 999);
    file("B", 1000);
    file("C", 9);
    file("D", 10);
    EXPECT_THAT(sorted(bySize, ascending), ElementsAre("D", "B", "C", "A"));
    EXPECT_THAT(sorted(bySize, descending), ElementsAre("A", "C", "B", "D"));
}

TEST_F(PaneRowsTest, EqualSizesKeepTheListingsOrderBothWays) {
    file("B", 5);
    file("A", 5);
    file("C", 5);
    EXPECT_THAT(sorted(bySize, ascending), ElementsAre("B", "A", "C"));
    EXPECT_THAT(sorted(bySize, descending), ElementsAre("B", "A", "C"));
}

TEST_F(PaneRowsTest, AFoldersEmptySizeIsTheSmallestText) {
    file("A", 0);
    folder("F");
    file("B", 5);
    EXPECT_THAT(sorted(bySize, ascending), ElementsAre("F", "A", "B"));
    EXPECT_THAT(sorted(bySize, descending), ElementsAre("B", "A", "F"));
}

TEST_F(PaneRowsTest, DatesSortByTimeWithinTheirGroup) {
    file("A", 1, "2026/11/20 08:05:09");
    folder("F", "2026/12/01 00:00:00");
    file("B", 1, "2025/01/01 23:59:59");
    file("C", 1, "2026/11/20 08:05:08");
    folder("G", "2020/12/01 00:00:00");
    EXPECT_THAT(sorted(byDate, ascending), ElementsAre("G", "F", "B", "C", "A"));
    EXPECT_THAT(sorted(byDate, descending), ElementsAre("A", "C", "B", "F", "G"));
}

TEST_F(PaneRowsTest, AnUnknownColumnSortsByName) {
    file("B", 1, "2020/12/01 00:00:00");
    file("A", 2, "2026/12/01 00:00:00");
    for (const int column : {3, 7, -1, 32767})
        EXPECT_THAT(sorted(static_cast<std::int16_t>(column), ascending), ElementsAre("A", "B"))
            << column;
}

TEST_F(PaneRowsTest, OnlyTheDirectionOneDescends) {
    file("A");
    file("B");
    for (const int direction : {0, 2, -1})
        EXPECT_THAT(sorted(byName, static_cast<std::int16_t>(direction)), ElementsAre("A", "B"));
    EXPECT_THAT(sorted(byName, 1), ElementsAre("B", "A"));
}

TEST_F(PaneRowsTest, TheOrderDependsOnTheListingAloneNotOnTheOrderBefore) {
    file("B", 1, "2026/12/01 00:00:00");
    file("A", 1, "2026/12/01 00:00:00");
    sorted(byName, ascending);
    listing.SortType = byDate;
    rows.sort();
    EXPECT_THAT(names(), ElementsAre("B", "A"));
}

} // namespace
} // namespace vantrel
