#include "platform/ProfileText.h"

#include "platform/ProfileCases.h"

#include <optional>
#include <random>
#include <string>
#include <vector>

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
    {"TabBehindTheKey", "S", "k\t", "v"},
    {"TabBeforeTheKey", "S", "\tk", "v"},
    {"TabInsideTheBrackets", "S\t", "k", "v"},
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

TEST(ProfileText, LooksForTheSectionWithoutTheHalfCharacter) {
    ProfileText text(wide("[S") + "]");
    ASSERT_TRUE(text.set("S", "k", "1"));
    EXPECT_EQ(text.value("S", "k"), "1");
    EXPECT_EQ(text.bytes(), wide("[S\r\nk=1\r\n"));
}

TEST(ProfileText, TakesAWideLineEndByteInsideACharacterAsNone) {
    // U+0D0A and U+3D3D consist of the bytes of line ends and of "=".
    const std::string before = wide("[S]\r\nk") + "\x0A\x0D\x3D\x3D" + wide("=1").substr(2);
    ProfileText text(before);
    ASSERT_TRUE(text.set("S", "k\u0D0A\u3D3D", "2"));
    EXPECT_EQ(text.bytes(), wide("[S]\r\nk") + "\x0A\x0D\x3D\x3D" + wide("=2").substr(2));
}

struct LookAlikeRow : NamedRow {
    std::string inTheFile, sought;
};

const LookAlikeRow lookAlikeRows[] = {
    {"LongS", wide("[S]\r\n") + "\x7F\x01" + wide("ize=1").substr(2), "size"},
    {"SoughtLongS", wide("[S]\r\nsize=1"), "\u017Fize"},
    {"DotlessI", wide("[S]\r\ns") + "\x31\x01" + wide("ze=1").substr(2), "size"},
    {"SoughtDotlessI", wide("[S]\r\nsize=1"), "s\u0131ze"},
    {"KelvinSign", wide("[S]\r\n") + "\x2A\x21" + wide("=1").substr(2), "k"},
    {"SoughtKelvinSign", wide("[S]\r\nk=1"), "\u212A"},
    {"ReplacedCharacter", "[S]\r\nk\xFF=1", "k"},
};

class LookAlike : public testing::TestWithParam<LookAlikeRow> {};

TEST_P(LookAlike, OfAnAsciiNameIsAnotherName) {
    EXPECT_EQ(ProfileText(GetParam().inTheFile).value("S", GetParam().sought), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Rows, LookAlike, testing::ValuesIn(lookAlikeRows), rowName);

TEST(ProfileText, FindsAnyNameBehindManyThatAreNotAscii) {
    std::string content = "[S]\r\n";
    for (int i = 0; i < 200'000; ++i)
        content += "\x83\xB6=\n"; // a Greek letter, which has two cases
    content += "k=1\n\x84\x41=2\n";
    ProfileText text(content);
    EXPECT_EQ(text.value("S", "K"), "1");
    EXPECT_EQ(text.value("S", "\u0431"), "2");
    ASSERT_TRUE(text.set("S", "K", "3"));
    EXPECT_EQ(text.value("S", "K"), "3");
}

TEST(ProfileText, IsChangedManyTimesHoweverLongItIs) {
    const std::string long932 = "[S]\r\nk=" + std::string(1'000'000, '\xB1') + "\r\n";
    ProfileText text(long932);
    for (int i = 0; i < 20; ++i)
        ASSERT_TRUE(text.set("T", "k" + std::to_string(i), "\u8868"));
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(text.value("T", "k" + std::to_string(i)), "\u8868");
    EXPECT_TRUE(text.bytes().starts_with(long932));
    EXPECT_TRUE(text.bytes().ends_with("k19=\x95\x5C\r\n"));
}

/// What is held under the names that garbage may make.
std::vector<std::optional<std::string>> valuesIn(const ProfileText& text) {
    std::vector<std::optional<std::string>> values;
    for (const char* section : {"S", "T", "Sk", "k"})
        for (const char* key : {"S", "k", "kS", "Sk", "1", "'", "\"", "\uFFFD"})
            values.push_back(text.value(section, key));
    return values;
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

/// A text that was changed is the same as one that was made of its bytes.
TEST(ProfileTextFromGarbage, StaysInStepWithItsBytes) {
    std::mt19937 random(1252);
    const std::string_view alphabet("[]=;Sk \t\r\n\0\x81\x5C\xFF\xFE\"'1\xD8=k\n", 22);
    std::uniform_int_distribution<std::size_t> any(0, alphabet.size() - 1);
    for (int i = 0; i < 1500; ++i) {
        std::string content = i % 4 == 0 ? "\xFF\xFE" : "";
        for (int length = i % 60; length > 0; --length)
            content += alphabet[any(random)];
        ProfileText text(content);
        ASSERT_TRUE(text.set("S", "k", "\u8868"));
        ASSERT_TRUE(text.set("S", "S", " 1"));
        ASSERT_TRUE(text.set("T", "k", "w"));
        ProfileText again(text.bytes());
        EXPECT_EQ(valuesIn(text), valuesIn(again)) << testing::PrintToString(content);
        ASSERT_TRUE(text.set("S", "k", "2") && again.set("S", "k", "2"));
        ASSERT_TRUE(text.set("Sk", "1", "3") && again.set("Sk", "1", "3"));
        EXPECT_EQ(text.bytes(), again.bytes()) << testing::PrintToString(content);
    }
}

} // namespace
} // namespace vantrel
