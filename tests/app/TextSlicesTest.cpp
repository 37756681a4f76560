#include "app/viewer/TextSlices.h"

#include "base/Text.h"
#include "support/NamedRow.h"

#include <gmock/gmock.h>

namespace vantrel::tests {
namespace {

std::vector<std::string> slicesOf(std::string_view text, std::size_t size) {
    std::vector<std::string> all;
    for (TextSlices slices(text); !slices.isDone();)
        all.push_back(slices.next(size));
    return all;
}

struct SliceRow : NamedRow {
    std::string text;
    std::size_t size;
    std::vector<std::string> slices;
};

class TextSlicesTest : public testing::TestWithParam<SliceRow> {};

const std::string longLine(TextSlices::longestLine, 'x');

INSTANTIATE_TEST_SUITE_P(
    Rows, TextSlicesTest,
    testing::Values(SliceRow{{"NoText"}, "", 10, {}},
                    SliceRow{{"OneSlice"}, "A\r\nB\r\n", 10, {"A\nB\n"}},
                    SliceRow{{"EndsWithALine"}, "ABC\r\nDEF\r\nG\r\n", 5, {"ABC\nDEF\n", "G\n"}},
                    SliceRow{{"EmptyLines"}, "\r\n\r\nA", 10, {"\n\nA\n"}},
                    SliceRow{{"LongestLine"}, longLine + "\r\nA", 9000, {longLine + "\nA\n"}},
                    SliceRow{
                        {"OneMoreIsTwoLines"}, longLine + "y\r\nA", 9000, {longLine + "\ny\nA\n"}},
                    SliceRow{{"NoCutWithinACharacter"},
                             longLine.substr(1) + "é",
                             9000,
                             {longLine.substr(1) + "\né\n"}}),
    rowName);

TEST_P(TextSlicesTest, AreTheText) {
    EXPECT_EQ(slicesOf(GetParam().text, GetParam().size), GetParam().slices);
}

TEST(TextSlicesGarbage, ALineOfTenMegabytesOfStrayBytesIsCutUpAndWhole) {
    const std::string text(10u << 20u, '\x80');
    std::size_t bytes = 0;
    for (const auto& slice : slicesOf(text, 65536))
        for (const auto line : lines(slice)) {
            EXPECT_LE(line.size(), TextSlices::longestLine);
            bytes += line.size();
        }
    EXPECT_EQ(bytes, text.size());
}

} // namespace
} // namespace vantrel::tests
