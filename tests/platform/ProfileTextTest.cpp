#include "platform/ProfileText.h"

#include "platform/ProfileCases.h"

#include <random>

namespace vantrel {
namespace {

using namespace tests;

struct RefusedRow : NamedRow {
    std::string section, key, value;
};

const RefusedRow refusedRows[] = {
    {"LineEndInTheValue", "S", "k", "a\nb"},
    {"CarriageReturnInTheValue", "S", "k", "a\rb"},
    {"NulInTheValue", "S", "k", std::string("a\0b", 3)},
    {"LineEndInTheKey", "S", "k\n[T]", "v"},
    {"LineEndInTheSection", "S\n", "k", "v"},
    {"EmptySection", " ", "k", "v"},
    {"EmptyKey", "S", "", "v"},
    {"EqualsInTheKey", "S", "k=l", "v"},
    {"KeyLikeAHeader", "S", "[k", "v"},
    {"KeyLikeAComment", "S", ";k", "v"},
    {"BracketInTheSection", "S]T", "k", "v"},
    {"InvalidUtf8", "S", "k", "\xFF"},
    {"LookAlikeOfTheBackslash", "S", "k", "\u00A5"},
};

class RefusedSetting : public testing::TestWithParam<RefusedRow> {};

TEST_P(RefusedSetting, LeavesTheTextAsItIs) {
    const std::string before = "[S]\r\nk=1\r\n";
    ProfileText text(before);
    const auto& row = GetParam();
    const auto outcome = text.set(row.section, row.key, row.value);
    ASSERT_FALSE(outcome);
    EXPECT_FALSE(outcome.reason().empty());
    EXPECT_EQ(text.bytes(), before);
}

INSTANTIATE_TEST_SUITE_P(Rows, RefusedSetting, testing::ValuesIn(refusedRows), rowName);

TEST(ProfileText, ReadsBackWhatWasSet) {
    ProfileText text("");
    ASSERT_TRUE(text.set("S", "k", "1"));
    ASSERT_TRUE(text.set("S", "l", "C:\\\u8868"));
    ASSERT_TRUE(text.set("T", "k", "3"));
    EXPECT_EQ(text.value("S", "k"), "1");
    EXPECT_EQ(text.value("S", "l"), "C:\\\u8868");
    EXPECT_EQ(text.value("T", "k"), "3");
}

TEST(ProfileText, DropsHalfACharacterAtTheEndOfAWideText) {
    ProfileText text(wide("[S]\r\nk=1\r\n") + "x");
    ASSERT_TRUE(text.set("S", "l", "2"));
    ASSERT_TRUE(text.set("T", "k", "3"));
    EXPECT_EQ(text.bytes(), wide("[S]\r\nk=1\r\nl=2\r\n[T]\r\nk=3\r\n"));
}

TEST(ProfileText, TakesAWideLineEndByteInsideACharacterAsNone) {
    // U+0D0A and U+3D3D consist of the bytes of line ends and of "=".
    const std::string before = wide("[S]\r\nk") + "\x0A\x0D\x3D\x3D" + wide("=1").substr(2);
    ProfileText text(before);
    ASSERT_TRUE(text.set("S", "k\u0D0A\u3D3D", "2"));
    EXPECT_EQ(text.bytes(), wide("[S]\r\nk") + "\x0A\x0D\x3D\x3D" + wide("=2").substr(2));
}

TEST(CutToBuffer, TakesAnyBufferSize) {
    EXPECT_EQ(cutToBuffer("abc", 0), "");
    EXPECT_EQ(cutToBuffer("abc", 1), "");
    EXPECT_EQ(cutToBuffer("abc", std::numeric_limits<std::size_t>::max()), "abc");
}

TEST(CutToBuffer, CountsACharacterOutsideTheCodePageAsOne) {
    EXPECT_EQ(cutToBuffer("\u20AC\u20AC\u20AC", 3), "\u20AC\u20AC");
}

struct LongRow : NamedRow {
    char character;
};

const LongRow longRows[] = {
    {"Nul", '\0'},        {"Opening", '['},        {"Closing", ']'}, {"Equals", '='},
    {"Semicolon", ';'},   {"Blank", ' '},          {"Return", '\r'}, {"LineFeed", '\n'},
    {"LeadByte", '\x81'}, {"InvalidByte", '\xFF'}, {"Letter", 'a'},
};

class TenMegabytes : public testing::TestWithParam<LongRow> {};

TEST_P(TenMegabytes, AreTakenInOnePass) {
    ProfileText text("[S]\r\n" + std::string(10'000'000, GetParam().character));
    EXPECT_TRUE(text.set("S", "k", "v"));
    EXPECT_TRUE(text.value("S", "k") == "v");
}

INSTANTIATE_TEST_SUITE_P(Rows, TenMegabytes, testing::ValuesIn(longRows), rowName);

TEST(ProfileTextFromGarbage, TakesAVeryLongValue) {
    const std::string digits(10'000'000, '1');
    const ProfileText text("[S]\r\nk=" + digits);
    EXPECT_TRUE(text.value("S", "k") == digits);
    EXPECT_EQ(cutToBuffer(digits, 128).size(), 127u);
    static_cast<void>(profileInteger(digits));
}

/// Whatever the file holds: a value that was set is read back, and the next one too.
TEST(ProfileTextFromGarbage, ReadsBackWhatWasSet) {
    std::mt19937 random(932);
    const std::string_view alphabet("[]=;Sk \t\r\n\0\x81\x5C\xFF\xFE\"'1", 18);
    std::uniform_int_distribution<std::size_t> any(0, alphabet.size() - 1);
    for (int i = 0; i < 4000; ++i) {
        std::string content = i % 4 == 0 ? "\xFF\xFE" : "";
        for (int length = i % 40; length > 0; --length)
            content += alphabet[any(random)];
        ProfileText text(content);
        ASSERT_TRUE(text.set("S", "k", "v"));
        ASSERT_TRUE(text.set("T", "k", "w"));
        EXPECT_EQ(text.value("S", "k"), "v") << testing::PrintToString(content);
        EXPECT_EQ(text.value("T", "k"), "w") << testing::PrintToString(content);
    }
}

} // namespace
} // namespace vantrel
