#include "files/ViewerText.h"

#include "base/Text.h"
#include "support/NamedRow.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel::tests {
namespace {

using namespace std::string_literals;

struct TextRow : NamedRow {
    std::string text;
    std::string withoutHeader;
    std::string withHeader;
};

class ViewerTextTest : public testing::TestWithParam<TextRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, ViewerTextTest,
    testing::Values(
        TextRow{{"NoText"}, "", "", ""}, TextRow{{"OneLine"}, "NOP", "NOP\r\n", "NOP\r\n"},
        TextRow{{"HeaderLinesOnly"}, "/JOB\r\n//NAME A\r\n", "", "/JOB\r\n//NAME A\r\n"},
        TextRow{{"HeaderAmongOthers"},
                "/JOB\r\nNOP\r\n///X\r\nEND\r\n",
                "NOP\r\nEND\r\n",
                "/JOB\r\nNOP\r\n///X\r\nEND\r\n"},
        TextRow{{"OnlyTheFirstCharacterCounts"}, " /A\r\nB/\r\n", " /A\r\nB/\r\n", " /A\r\nB/\r\n"},
        TextRow{{"EveryLineEnd"}, "A\nB\rC\r\nD", "A\r\nB\r\nC\r\nD\r\n", "A\r\nB\r\nC\r\nD\r\n"},
        TextRow{{"HeaderAfterEveryLineEnd"},
                "A\n/B\r/C\r\n/D\rE",
                "A\r\nE\r\n",
                "A\r\n/B\r\n/C\r\n/D\r\nE\r\n"},
        TextRow{{"EmptyLinesStay"}, "\n\r\r\n", "\r\n\r\n\r\n", "\r\n\r\n\r\n"},
        TextRow{{"NulAndControlCharacters"},
                "A\0B\x1B[2J\x7F\x1A"s,
                "A\uFFFDB\uFFFD[2J\uFFFD\uFFFD\r\n",
                "A\uFFFDB\uFFFD[2J\uFFFD\uFFFD\r\n"},
        TextRow{{"NulBeforeASlash"}, "\0/A"s, "\uFFFD/A\r\n", "\uFFFD/A\r\n"},
        TextRow{{"TabsStay"}, "\tMOVJ\tC1", "\tMOVJ\tC1\r\n", "\tMOVJ\tC1\r\n"},
        TextRow{{"SecondSetOfControlCharacters"},
                "a\u0085b\u009Fc\u00A0d",
                "a\uFFFDb\uFFFDc\u00A0d\r\n",
                "a\uFFFDb\uFFFDc\u00A0d\r\n"},
        TextRow{{"LineSeparatorsAndDirectionMarks"},
                "a\u2028b\u202Ec\u2066d\u200Fe\u200E",
                "a\uFFFDb\uFFFDc\uFFFDd\uFFFDe\uFFFD\r\n",
                "a\uFFFDb\uFFFDc\uFFFDd\uFFFDe\uFFFD\r\n"},
        TextRow{{"NeighboursOfThoseStay"},
                "\u2027\u202F\u2065\u206A\u20AC\u00BF",
                "\u2027\u202F\u2065\u206A\u20AC\u00BF\r\n",
                "\u2027\u202F\u2065\u206A\u20AC\u00BF\r\n"},
        TextRow{{"JapaneseStays"}, "'ハンド開\n", "'ハンド開\r\n", "'ハンド開\r\n"}),
    rowName);

TEST_P(ViewerTextTest, KeepsTheLinesThatTheSettingAsksFor) {
    EXPECT_EQ(viewerText(GetParam().text, false), GetParam().withoutHeader);
    EXPECT_EQ(viewerText(GetParam().text, true), GetParam().withHeader);
}

TEST(ViewerTextGarbage, HalfACharacterAtTheEndIsNoHarm) {
    EXPECT_EQ(viewerText("A\xE2\x80", true).substr(0, 1), "A");
    EXPECT_EQ(viewerText("A\xC2", true).substr(0, 1), "A");
}

struct FileRow : NamedRow {
    std::string bytes;
    std::string shown;
};

class ViewerFileTest : public testing::TestWithParam<FileRow> {
  protected:
    TemporaryFolder folder;
};

INSTANTIATE_TEST_SUITE_P(
    Rows, ViewerFileTest,
    testing::Values(FileRow{{"Utf8"}, "'é\n", "'é\r\n"},
                    FileRow{{"Mark"}, "\xEF\xBB\xBF/A\nB", "B\r\n"},
                    FileRow{{"Utf16"}, "\xFF\xFE/\0A\0\n\0B\0"s, "B\r\n"},
                    FileRow{{"BigEndianUtf16"}, "\xFE\xFF\0/\0A\0\n\0B"s, "B\r\n"},
                    FileRow{{"CodePage"}, "'\x83\x6E\x83\x93\x83\x68\n", "'ハンド\r\n"},
                    FileRow{{"Empty"}, "", ""}),
    rowName);

TEST_P(ViewerFileTest, IsReadInItsEncoding) {
    folder.write("A.JBI", GetParam().bytes);
    const auto text = readViewerText(folder.path("A.JBI"), false);
    ASSERT_TRUE(bool(text));
    EXPECT_EQ(*text, GetParam().shown);
}

TEST_F(ViewerFileTest, AFileThatIsGoneIsAFailureWithAReason) {
    const auto text = readViewerText(folder.path("A.JBI"), false);
    ASSERT_FALSE(bool(text));
    EXPECT_FALSE(text.reason().empty());
}

TEST_F(ViewerFileTest, AFolderIsAFailure) {
    EXPECT_FALSE(bool(readViewerText(folder.makeFolder("A.JBI"), false)));
}

TEST_F(ViewerFileTest, ARandomLineOfTenMegabytesIsOneLineOfValidText) {
    std::string bytes;
    for (unsigned value = 1; bytes.size() < 10u << 20u; value = value * 1664525u + 1013904223u)
        if (const char byte = static_cast<char>(value >> 24u); byte != '\n' && byte != '\r')
            bytes += byte;
    folder.write("A.JBI", bytes);
    const auto text = readViewerText(folder.path("A.JBI"), true);
    ASSERT_TRUE(bool(text));
    EXPECT_EQ(lines(*text).size(), 1u);
    EXPECT_TRUE(isValidUtf8(*text));
}

TEST(NumberedText, HasTheNumbersInAColumn) {
    EXPECT_EQ(numberedText(""), "");
    EXPECT_EQ(numberedText("NOP\r\n\r\n"), "1  NOP\r\n2  \r\n");
    std::string ten, expected;
    for (int line = 1; line <= 10; ++line) {
        ten += "X\r\n";
        expected += (line < 10 ? " " : "") + std::to_string(line) + "  X\r\n";
    }
    EXPECT_EQ(numberedText(ten), expected);
}

} // namespace
} // namespace vantrel::tests
