#include "platform/TextEncoding.h"

#include "base/Text.h"
#include "support/NamedRow.h"

#include <random>

namespace vantrel {
namespace {

using tests::NamedRow;
using tests::rowName;

struct DecodeRow : NamedRow {
    std::string bytes;
    std::string text;
    TextEncoding encoding;
};

const DecodeRow decodeRows[] = {
    {"Empty", "", "", TextEncoding::Utf8},
    {"Ascii", "A\\~", "A\\~", TextEncoding::Utf8},
    {"Utf8", "\u8868", "\u8868", TextEncoding::Utf8},
    {"Utf8WithMark", "\xEF\xBB\xBF\u8868", "\u8868", TextEncoding::Utf8WithMark},
    {"Utf8WithMarkAndGarbage",
     "\xEF\xBB\xBF"
     "a\xFF",
     "a\uFFFD", TextEncoding::Utf8WithMark},
    {"MarkAlone", "\xEF\xBB\xBF", "", TextEncoding::Utf8WithMark},
    {"CodePage", "\x95\x5C\\~", "\u8868\\~", TextEncoding::CodePage},
    {"HalfWidthKana", "\xB1\xB2", "\uFF71\uFF72", TextEncoding::CodePage},
    {"CodePageWithGarbage", "\x95\x5C\x81 b\x81", "\u8868\uFFFD b\uFFFD", TextEncoding::CodePage},
    {"InvalidLeadKeepsTheNextLine", "\x95\x5C\x81\r\nb", "\u8868\uFFFD\r\nb",
     TextEncoding::CodePage},
    {"Nul", std::string("a\0b", 3), std::string("a\0b", 3), TextEncoding::Utf8},
    {"NulInTheCodePage", std::string("\x95\x5C\0b", 4), std::string("\u8868\0b", 5),
     TextEncoding::CodePage},
    {"Utf16",
     std::string("\xFF\xFE\x68\x88"
                 "a\0",
                 6),
     "\u8868a", TextEncoding::Utf16LittleEndian},
    {"Utf16Pair", "\xFF\xFE\x3E\xD8\x16\xDD", "\U0001F916", TextEncoding::Utf16LittleEndian},
    {"Utf16HalfAPair",
     std::string("\xFF\xFE\x3E\xD8"
                 "a\0\x16\xDD",
                 8),
     "\uFFFDa\uFFFD", TextEncoding::Utf16LittleEndian},
    {"Utf16OddByte",
     std::string("\xFF\xFE"
                 "a\0b",
                 5),
     "a\uFFFD", TextEncoding::Utf16LittleEndian},
    {"Utf16MarkAlone", "\xFF\xFE", "", TextEncoding::Utf16LittleEndian},
    {"Utf16BigEndian", std::string("\xFE\xFF\x88\x68\0a", 6), "\u8868a",
     TextEncoding::Utf16LittleEndian},
};

class Decode : public testing::TestWithParam<DecodeRow> {};

TEST_P(Decode, FindsTheEncoding) {
    const DecodedText decoded = decodeText(GetParam().bytes);
    EXPECT_EQ(decoded.text, GetParam().text);
    EXPECT_EQ(decoded.encoding, GetParam().encoding);
}

INSTANTIATE_TEST_SUITE_P(Rows, Decode, testing::ValuesIn(decodeRows), rowName);

struct EncodeRow : NamedRow {
    std::string text;
    TextEncoding encoding;
    std::optional<std::string> bytes;
};

const EncodeRow encodeRows[] = {
    {"Utf8", "\u8868", TextEncoding::Utf8, "\u8868"},
    {"Utf8WithMark", "a", TextEncoding::Utf8WithMark,
     "\xEF\xBB\xBF"
     "a"},
    {"Utf16", "\u8868a", TextEncoding::Utf16LittleEndian,
     std::string("\xFF\xFE\x68\x88"
                 "a\0",
                 6)},
    {"Utf16Pair", "\U0001F916", TextEncoding::Utf16LittleEndian, "\xFF\xFE\x3E\xD8\x16\xDD"},
    {"CodePage", "\u8868\\~\uFF71", TextEncoding::CodePage, "\x95\x5C\\~\xB1"},
    {"NulInTheCodePage", std::string("a\0b", 3), TextEncoding::CodePage, std::string("a\0b", 3)},
    {"LackingInTheCodePage", "\u20AC", TextEncoding::CodePage, std::nullopt},
    {"InvalidUtf8", "\xFF", TextEncoding::Utf8, std::nullopt},
    {"InvalidUtf8InTheCodePage", "a\xE3", TextEncoding::CodePage, std::nullopt},
    {"InvalidUtf8InUtf16", "\x80", TextEncoding::Utf16LittleEndian, std::nullopt},
};

class Encode : public testing::TestWithParam<EncodeRow> {};

TEST_P(Encode, GivesTheBytesOrNothing) {
    EXPECT_EQ(encodeText(GetParam().text, GetParam().encoding), GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(Rows, Encode, testing::ValuesIn(encodeRows), rowName);

struct CodePageRow : NamedRow {
    std::string text;
    std::optional<std::string> bytes;
};

const CodePageRow codePageRows[] = {
    {"Empty", "", ""},
    {"Ascii", "MAIN-1.JBI", "MAIN-1.JBI"},
    {"BackslashIsItself", "\\", "\\"},
    {"TildeIsItself", "~", "~"},
    {"SecondByteIsABackslash", "\u8868", "\x95\x5C"},
    {"SecondByteIsABar", "\u30DD", "\x83\x7C"},
    {"FullWidthTilde", "\uFF5E", "\x81\x60"},
    {"CircledDigit", "\u2460", "\x87\x40"},
    {"SmallGreek", "\u03B1", "\x83\xBF"},
    {"YenSignIsNoBackslash", "\u00A5", std::nullopt},
    {"OverlineIsNoTilde", "\u203E", std::nullopt},
    {"AccentedLetter", "\u00E9", std::nullopt},
    {"Robot", "\U0001F916", std::nullopt},
    {"Replacement", "\uFFFD", std::nullopt},
    {"OneLackingSpoilsAll", "MAIN\u20AC.JBI", std::nullopt},
    {"Nul", std::string("a\0b", 3), std::nullopt},
    {"InvalidUtf8", "a\xFF", std::nullopt},
};

class CodePage : public testing::TestWithParam<CodePageRow> {};

TEST_P(CodePage, TakesWhatItHoldsAndNothingElse) {
    EXPECT_EQ(toCodePage(GetParam().text), GetParam().bytes);
    EXPECT_EQ(fromCodePage(GetParam().bytes.value_or("")), GetParam().bytes ? GetParam().text : "");
}

INSTANTIATE_TEST_SUITE_P(Rows, CodePage, testing::ValuesIn(codePageRows), rowName);

TEST(CodePageText, KeepsAsciiByteForByte) {
    for (char byte = 0; byte >= 0 && byte < 127; ++byte)
        EXPECT_EQ(fromCodePage({&byte, 1}), std::string(1, byte));
}

TEST(CodePageText, ComesBackTheSameFromEveryPairOfBytes) {
    for (int pair = 0; pair <= 0xFFFF; ++pair) {
        const char bytes[] = {static_cast<char>(pair >> 8), static_cast<char>(pair & 0xFF)};
        const std::string text = fromCodePage({bytes, 2});
        ASSERT_TRUE(isValidUtf8(text)) << pair;
        const auto back = encodeText(text, TextEncoding::CodePage);
        // Several bytes may mean the same character, but a text never changes its meaning.
        ASSERT_EQ(back ? fromCodePage(*back) : text, text) << pair;
    }
}

TEST(CodePageText, ReplacesBytesWithoutMeaningAndGoesOn) {
    EXPECT_EQ(fromCodePage("a\x81\x20"
                           "b"),
              "a\uFFFD b");
    EXPECT_EQ(fromCodePage("\xEF\xEF\\"), "\uFFFD\uFFFD\\");
    EXPECT_EQ(fromCodePage("\x95"), "\uFFFD");
}

TEST(TextFromGarbage, TakesAnyBytesInEveryEncoding) {
    std::mt19937 random(1);
    std::string garbage(1'000'001, '\0');
    for (char& byte : garbage)
        byte = static_cast<char>(random());
    for (const std::string_view mark : {"", "\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF"})
        EXPECT_TRUE(isValidUtf8(decodeText(std::string(mark) + garbage).text));
    EXPECT_FALSE(toCodePage(garbage));
}

// Wherever a long text is cut inside the conversion, no character may be.
TEST(CodePageText, IsWholeWhateverItsLength) {
    for (const std::string& start : {std::string(), std::string("a")}) {
        std::string bytes = start, text = start;
        for (int i = 0; i < 10'000; ++i) {
            bytes += "\x95\x5C";
            text += "\u8868";
        }
        EXPECT_TRUE(fromCodePage(bytes) == text);
        EXPECT_TRUE(toCodePage(text) == bytes);
    }
}

// In code page 932 the bytes D3 B0, two half-width katakana, are a letter of UTF-8 too.
TEST(ReadableEncoding, NeverWritesWhatWouldBeReadOtherwise) {
    const std::string looksLikeUtf8 = "\uFF93\uFF70";
    EXPECT_EQ(encodeReadably(looksLikeUtf8, TextEncoding::CodePage), looksLikeUtf8);
    EXPECT_EQ(encodeReadably("\u30DC" + looksLikeUtf8, TextEncoding::CodePage), "\x83\x7B\xD3\xB0");
    EXPECT_EQ(encodeReadably("plain", TextEncoding::CodePage), "plain");
    EXPECT_EQ(encodeReadably("\U0001F916", TextEncoding::CodePage), std::nullopt);
    for (const auto encoding :
         {TextEncoding::Utf8, TextEncoding::Utf8WithMark, TextEncoding::Utf16LittleEndian})
        EXPECT_EQ(encodeReadably(looksLikeUtf8, encoding), encodeText(looksLikeUtf8, encoding));
}

TEST(TextFromGarbage, TakesTenMegabytesOfLeadBytes) {
    EXPECT_EQ(fromCodePage(std::string(10'000'000, '\x81')).size() % 3, 0u);
}

TEST(NameFromCodePageTest, ACharacterInItsOtherCodingIsNone) {
    EXPECT_EQ(nameFromCodePage("\xFA\x5C\x41.JBI"), "\xE7\xBA\x8A\x41.JBI");
    EXPECT_EQ(nameFromCodePage("\xED\x40\x41.JBI"), "\uFFFD\x41.JBI");
    EXPECT_EQ(nameFromCodePage("\xED\x40\xFA\x5C\x83\x5C"), "\uFFFD\xE7\xBA\x8A\u30BD");
    EXPECT_EQ(nameFromCodePage("PLAIN.JBI"), "PLAIN.JBI");
}

TEST(NameFromCodePageTest, BytesThatMeanNothingAreNoneEither) {
    EXPECT_FALSE(toCodePage(nameFromCodePage("\x83\x5C\xFF"
                                             "A")));
    EXPECT_FALSE(toCodePage(nameFromCodePage("A\x81")));
}

} // namespace
} // namespace vantrel
