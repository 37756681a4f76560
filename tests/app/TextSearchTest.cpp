#include "app/viewer/TextSearch.h"

#include "app/viewer/TextSlices.h"
#include "support/NamedRow.h"

#include <ostream>

#include <gtest/gtest.h>

namespace vantrel {

void PrintTo(const FoundText& found, std::ostream* out) {
    *out << found.range.begin << " to " << found.range.end << (found.wentRound ? ", round" : "");
}

} // namespace vantrel

namespace vantrel::tests {
namespace {

constexpr auto next = SearchDirection::Next, previous = SearchDirection::Previous;
using Found = std::optional<FoundText>;

struct SearchRow : NamedRow {
    std::string text, wanted;
    ShownRange from;
    SearchDirection direction;
    Found found;
};

class TextSearchTest : public testing::TestWithParam<SearchRow> {};

const std::string longLine(TextSlices::longestLine, 'x');
constexpr std::size_t longest = TextSlices::longestLine;

INSTANTIATE_TEST_SUITE_P(
    Rows, TextSearchTest,
    testing::Values(
        SearchRow{{"NothingWanted"}, "NOP\r\n", "", {}, next, {}},
        SearchRow{{"NoText"}, "", "A", {}, next, {}},
        SearchRow{{"Nowhere"}, "NOP\r\nEND\r\n", "MOVL", {}, next, {}},
        SearchRow{{"AtTheStart"}, "NOP\r\n", "NO", {}, next, FoundText{{0, 2}}},
        SearchRow{{"ALineEndIsOnePlace"}, "NOP\r\nEND\r\n", "END", {}, next, FoundText{{4, 7}}},
        SearchRow{{"LineFeedAlone"}, "NOP\nEND", "end", {}, next, FoundText{{4, 7}}},
        SearchRow{{"WithoutRegardToCase"}, "movl Äé", "L äÉ", {}, next, FoundText{{3, 7}}},
        SearchRow{{"BehindTheSelection"}, "A A A", "A", {0, 1}, next, FoundText{{2, 3}}},
        SearchRow{{"AtTheCaret"}, "A A A", "A", {2, 2}, next, FoundText{{2, 3}}},
        SearchRow{{"RoundAtTheEnd"}, "B A A", "A", {4, 5}, next, FoundText{{2, 3}, true}},
        SearchRow{{"RoundToItself"}, "B A", "A", {2, 3}, next, FoundText{{2, 3}, true}},
        SearchRow{{"BeforeTheSelection"}, "A A A", "A", {4, 5}, previous, FoundText{{2, 3}}},
        SearchRow{{"RoundAtTheStart"}, "A A A B", "A", {0, 1}, previous, FoundText{{4, 5}, true}},
        SearchRow{
            {"NotBeforeIfItReachesIn"}, "AA", "AA", {1, 1}, previous, FoundText{{0, 2}, true}},
        SearchRow{{"AfterAFalseStart"}, "ABABABC", "ABABC", {}, next, FoundText{{2, 7}}},
        SearchRow{{"OverlappingTheLast"}, "AAAA", "AA", {1, 1}, next, FoundText{{1, 3}}},
        SearchRow{{"NotAcrossLines"}, "AB\r\nCD", "BC", {}, next, {}},
        SearchRow{{"BehindALineThatIsCut"},
                  longLine + "y\r\nEND",
                  "END",
                  {},
                  next,
                  FoundText{{longest + 3, longest + 6}}},
        SearchRow{{"AcrossACut"},
                  longLine + "yz\r\n",
                  "xyz",
                  {},
                  next,
                  FoundText{{longest - 1, longest + 3}}},
        SearchRow{{"Japanese"}, "NOP '開始\r\n", "開始", {}, next, FoundText{{5, 7}}},
        SearchRow{{"StrayBytes"},
                  "\xFF\xFE"
                  "A",
                  "a",
                  {},
                  next,
                  FoundText{{2, 3}}}),
    rowName);

TEST_P(TextSearchTest, FindsThePlace) {
    const auto& row = GetParam();
    EXPECT_EQ(findText(row.text, row.wanted, row.from, row.direction), row.found);
}

TEST(TextSearchPlaces, ACharacterBeyond16BitsTakesAsManyAsInTheControl) {
    const std::string text = "\U0001F600A\U0001F600";
    EXPECT_EQ(findText(text, "A", {}, next, 1), Found(FoundText{{1, 2}}));
    EXPECT_EQ(findText(text, "A", {}, next, 2), Found(FoundText{{2, 3}}));
    EXPECT_EQ(findText(text, "a\U0001F600", {}, next, 2), Found(FoundText{{2, 5}}));
}

TEST(TextSearchPlaces, AreThoseOfTheSlices) {
    std::string text;
    for (int line = 0; line < 50; ++line)
        text += std::string(std::size_t(line) * 333, 'x') + "-" + std::to_string(line) + "-\r\n";
    std::string shown;
    for (TextSlices slices(text); !slices.isDone();)
        shown += slices.next(1000);
    for (int line = 0; line < 50; ++line) {
        const auto wanted = "-" + std::to_string(line) + "-";
        const auto found = findText(text, wanted, {}, next);
        ASSERT_TRUE(found);
        auto place = shown.substr(found->range.begin, found->range.end - found->range.begin);
        std::erase(place, '\n');
        EXPECT_EQ(place, wanted);
    }
}

/// Each step of a search that went back to its start would make this take hours.
TEST(TextSearchPlaces, ATextOfFalseStartsIsSearchedInOnePass) {
    const std::string text(4u << 20u, 'a');
    const std::string wanted = std::string(200000, 'A') + 'B';
    EXPECT_EQ(findText(text, wanted, {}, next), Found());
}

} // namespace
} // namespace vantrel::tests
