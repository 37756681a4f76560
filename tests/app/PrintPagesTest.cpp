#include "app/viewer/PrintPages.h"

#include "support/NamedRow.h"

#include <gmock/gmock.h>

namespace vantrel::tests {
namespace {

using Page = std::vector<std::string>;

struct PagesRow : NamedRow {
    std::string text;
    PageSize size;
    std::vector<Page> pages;
};

class PrintPagesTest : public testing::TestWithParam<PagesRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, PrintPagesTest,
    testing::Values(
        PagesRow{{"NoText"}, "", {10, 3}, {{}}}, PagesRow{{"OneLine"}, "A\r\n", {10, 3}, {{"A"}}},
        PagesRow{{"LastLineWithoutEnd"}, "A\nB", {10, 3}, {{"A", "B"}}},
        PagesRow{{"EmptyLinesTakeRows"}, "A\r\n\r\nB\r\n", {10, 3}, {{"A", "", "B"}}},
        PagesRow{{"FullPageIsOnePage"}, "A\r\nB\r\nC\r\n", {10, 3}, {{"A", "B", "C"}}},
        PagesRow{{"OneMoreLineIsTwo"}, "A\r\nB\r\nC\r\nD\r\n", {10, 3}, {{"A", "B", "C"}, {"D"}}},
        PagesRow{{"LineAsWideAsThePage"}, "12345\r\n", {5, 3}, {{"12345"}}},
        PagesRow{
            {"LongLineGoesOn"}, "1234567890AB\r\nC", {5, 3}, {{"12345", "67890", "AB"}, {"C"}}},
        PagesRow{{"TabToTheNextStop"}, "\tA\tB", {30, 3}, {{"        A       B"}}},
        PagesRow{{"TabAtAStop"}, "12345678\tA", {30, 3}, {{"12345678        A"}}},
        PagesRow{{"TabAtTheEdgeStaysOnItsRow"}, "1234\tA", {6, 3}, {{"1234  ", "A"}}},
        PagesRow{{"TabAfterTheEdgeOpensARow"}, "123456\tA", {6, 3}, {{"123456", "      ", "A"}}},
        PagesRow{{"TabAfterWideCharacters"}, "あい\tA", {30, 3}, {{"あい    A"}}},
        PagesRow{{"WideCharactersTakeTwo"}, "あいうえ", {5, 3}, {{"あい", "うえ"}}},
        PagesRow{{"HalfWidthKatakanaTakeOne"}, "ｱｲｳｴ", {3, 3}, {{"ｱｲｳ", "ｴ"}}},
        PagesRow{{"MarksStayWithTheirLetter"}, "ABe\u0301C", {3, 3}, {{"ABe\u0301", "C"}}},
        PagesRow{{"WideCharacterOnANarrowPage"}, "あい", {1, 3}, {{"あ", "い"}}},
        PagesRow{{"SizesBelowOneCountAsOne"}, "AB", {0, -1}, {{"A"}, {"B"}}},
        PagesRow{{"BytesThatAreNoText"}, "\x80\xFF", {10, 3}, {{"\x80\xFF"}}}),
    rowName);

TEST_P(PrintPagesTest, HaveTheseRows) {
    const auto& row = GetParam();
    const PrintPages pages(row.text, row.size);
    ASSERT_EQ(pages.count(), row.pages.size());
    for (std::size_t page = 0; page < row.pages.size(); ++page)
        EXPECT_EQ(pages.rows(page), row.pages[page]) << page;
    EXPECT_TRUE(pages.rows(pages.count()).empty());
}

TEST(PrintPagesOfALongText, HoldEveryCharacterOnce) {
    const std::string text(3u << 20u, 'x');
    const PrintPages pages(text, {100, 50});
    std::size_t characters = 0;
    for (std::size_t page = 0; page < pages.count(); ++page)
        for (const auto& row : pages.rows(page))
            characters += row.size();
    EXPECT_EQ(characters, text.size());
    EXPECT_EQ(pages.count(), 630u);
}

TEST(PrintedRunsTest, KeepAsciiTogetherAndEveryOtherCharacterAlone) {
    const std::vector<PrintedRun> expected{
        {0, "MOVJ '"}, {6, "開"}, {8, "く"}, {10, "ｱ"}, {11, "12"}};
    EXPECT_EQ(printedRuns("MOVJ '開くｱ12"), expected);
    EXPECT_TRUE(printedRuns("").empty());
}

TEST(PrintedRunsTest, AMarkBelongsToItsCharacter) {
    const std::vector<PrintedRun> expected{{0, "e\u0301"}, {1, "x"}, {2, "か\u3099"}, {4, "き"}};
    EXPECT_EQ(printedRuns("e\u0301xか\u3099き"), expected);
}

struct FitRow : NamedRow {
    const char* text;
    int columns;
    const char* fitting;
};

class FittingColumnsTest : public testing::TestWithParam<FitRow> {};

INSTANTIATE_TEST_SUITE_P(Rows, FittingColumnsTest,
                         testing::Values(FitRow{{"Fits"}, "ABCDE", 5, "ABCDE"},
                                         FitRow{{"TooLong"}, "ABCDEF", 5, "ABCD…"},
                                         FitRow{{"Wide"}, "あいう", 5, "あい…"},
                                         FitRow{{"WideAtTheEdge"}, "あいう", 4, "あ…"},
                                         FitRow{{"NoRoom"}, "A", 0, ""}),
                         rowName);

TEST_P(FittingColumnsTest, ShortensWithAnEllipsis) {
    EXPECT_EQ(fittingColumns(GetParam().text, GetParam().columns), GetParam().fitting);
}

} // namespace
} // namespace vantrel::tests
