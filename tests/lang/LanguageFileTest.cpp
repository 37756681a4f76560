#include "lang/LanguageFiles.h"

#include <random>
#include <string>
#include <tuple>

#include <gtest/gtest.h>

namespace vantrel {

// As text, so that a failure shows what was read.
static std::string shown(const std::vector<MessageEntry>& entries) {
    std::string all;
    for (const auto& entry : entries)
        all += std::to_string(entry.MsgNo) + "<" + entry.Text1 + "|" + entry.Text2 + ">";
    return all;
}

namespace {

using namespace std::string_literals;

struct File {
    const char* name;
    std::string bytes;
    std::string entries;
};

class LanguageFileText : public testing::TestWithParam<File> {};

TEST_P(LanguageFileText, IsRead) {
    EXPECT_EQ(shown(parseLanguageFile(GetParam().bytes)), GetParam().entries);
}

const std::string start = "Start:\n";

INSTANTIATE_TEST_SUITE_P(
    Files, LanguageFileText,
    testing::Values(
        File{"Entry", start + R"(12 "a" "b")", "12<a|b>"},
        File{"BeforeStart",
             R"(12 "a" "b")"
             "\n" +
                 start + R"(13 "c" "d")",
             "13<c|d>"},
        File{"NoStart", R"(12 "a" "b")", ""}, File{"Empty", "", ""},
        File{"OnlyStart", "Start:", ""},
        File{"StartWithBlanks",
             " Start:\nStart: \nstart:\nStart\n"
             R"(12 "a" "b")",
             ""},
        File{"StartTwice", start + start + R"(12 "a" "b")", "12<a|b>"},
        File{"Comment",
             start + R"(;12 "a" "b")"
                     "\n"
                     R"(13 "c" "d")",
             "13<c|d>"},
        File{"IndentedSemicolonIsNoComment", start + R"( ;12 "a" "b")", "0<a|b>"},
        File{"TwoQuotes",
             start + R"(12 "a")"
                     "\n"
                     R"(13 "c" "d")",
             "13<c|d>"},
        File{"ThreeQuotes", start + R"(12 "a" "b)", ""},
        File{"MoreQuotes", start + R"(12 "a" "b" "c" x)", "12<a|b>"},
        File{"EmptyTexts", start + R"(12 "" "")", "12<|>"},
        File{"BlanksInTextsStay", start + R"(12 " a " "  ")", "12< a |  >"},
        File{"TextsSideBySide", start + R"(12"a""b")", "12<a|b>"},
        File{"AnythingBetween", start + R"(12 x "a" = "b" ; c)", "12<a|b>"},
        File{"NoNumberIsZero", start + R"("a" "b")", "0<a|b>"},
        File{"LeadingBlanks", start + "  \t12 \"a\" \"b\"", "12<a|b>"},
        File{"Negative", start + R"(-5 "a" "b")", "-5<a|b>"},
        File{"LargestNumber", start + R"(32767 "a" "b")", "32767<a|b>"},
        File{"SmallestNumber", start + R"(-32768 "a" "b")", "-32768<a|b>"},
        File{"NumberTooLarge",
             start + R"(32768 "a" "b")"
                     "\n"
                     R"(7 "c" "d")",
             "7<c|d>"},
        File{"NumberTooSmall", start + R"(-32769 "a" "b")", ""},
        File{"NumberHuge", start + R"(1e300 "a" "b")", ""},
        File{"FileOrderIsKept", start + "9 \"a\" \"b\"\n3 \"c\" \"d\"\n9 \"e\" \"f\"",
             "9<a|b>3<c|d>9<e|f>"},
        File{"CarriageReturns", "Start:\r\n12 \"a\" \"b\"\r\n13 \"c\" \"d\"\r\n", "12<a|b>13<c|d>"},
        File{"BlankLines", start + "\n\n12 \"a\" \"b\"\n\n", "12<a|b>"},
        File{"Mnemonics", start + R"re(101 "&File" "ファイル(&F)")re", "101<&File|ファイル(&F)>"},
        File{"Utf8Mark", "\xEF\xBB\xBF" + start + R"(12 "a" "あ")", "12<a|あ>"},
        File{"CodePage932", start + "12 \"a\" \"\x83\x5c\"", "12<a|ソ>"},
        // The second byte of a double-byte character is never looked at alone.
        File{"CodePage932Half", start + "12 \"a\" \"\xb7\xac\xdd\xbe\xd9\"", "12<a|ｷｬﾝｾﾙ>"},
        File{"Utf16", "\xff\xfe"s + "S\0t\0a\0r\0t\0:\0\n\0"s + "7\0\"\0a\0\"\0\"\0b\0\"\0"s,
             "7<a|b>"},
        File{"NulInText", start + "12 \"a\0c\" \"b\""s, "12<a\0c|b>"s}),
    [](const auto& row) { return row.param.name; });

TEST(LanguageFile, OneEndlessLineIsNoEntry) {
    EXPECT_TRUE(parseLanguageFile(start + std::string(10'000'000, 'x')).empty());
    EXPECT_TRUE(parseLanguageFile(start + std::string(10'000'000, '1')).empty());
    EXPECT_TRUE(parseLanguageFile(std::string(10'000'000, '"')).empty());
}

TEST(LanguageFile, LongTextsAreKeptWhole) {
    const std::string text(5'000'000, 'x');
    const auto entries = parseLanguageFile(start + "12 \"" + text + "\" \"" + text + "\"");
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries[0].Text2.size(), text.size());
}

TEST(LanguageFile, ManyLinesAreAllRead) {
    std::string bytes = start;
    for (int line = 0; line < 100'000; ++line)
        bytes += "7 \"a\" \"b\"\n";
    EXPECT_EQ(parseLanguageFile(bytes).size(), 100'000U);
}

TEST(LanguageFile, GarbageNeverYieldsQuotesOrLineEnds) {
    constexpr std::string_view pieces[] = {"\"", "\n",   "\r",   "12",   "Start:\n", ";",
                                           " ",  "\xff", "\x81", "\xe3", "x",        "%"};
    std::mt19937 random(20240607);
    for (int round = 0; round < 500; ++round) {
        std::string bytes = random() % 2 ? start : "";
        for (auto length = random() % 200; length > 0; --length)
            bytes += random() % 8 ? std::string(pieces[random() % std::size(pieces)])
                                  : std::string(1, static_cast<char>(random()));
        for (const auto& entry : parseLanguageFile(bytes))
            for (const auto& text : {entry.Text1, entry.Text2})
                EXPECT_EQ(text.find_first_of("\"\r\n"), std::string::npos);
    }
}

} // namespace
} // namespace vantrel
