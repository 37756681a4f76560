#include "base/Numbers.h"
#include "base/Text.h"
#include "lang/LanguageFiles.h"
#include "platform/Files.h"
#include "platform/TextEncoding.h"
#include "support/ProjectFiles.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <map>
#include <optional>
#include <regex>
#include <set>
#include <string>

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using namespace std::string_literals;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* languages[] = {"Japanese", "English", "System"};

using Texts = std::map<std::int32_t, MessageEntry>;

std::string contentOf(const std::string& path) {
    const auto bytes = readFile(path);
    EXPECT_TRUE(bytes) << path;
    return bytes ? *bytes : std::string{};
}

std::string languageFile(const std::string& language) {
    return contentOf(tests::dataFolder() + "/" + language + ".lng");
}

Texts textsOf(const std::string& language) {
    Texts texts;
    for (auto& entry : parseLanguageFile(languageFile(language)))
        EXPECT_TRUE(texts.emplace(entry.MsgNo, entry).second)
            << language << entry.MsgNo << " twice";
    return texts;
}

std::string shownText(const Texts& texts, std::int32_t number) {
    const auto found = texts.find(number);
    return found == texts.end() ? std::string{} : found->second.Text2;
}

std::set<std::int32_t> numbersOf(const std::string& language) {
    std::set<std::int32_t> numbers;
    for (const auto& [number, entry] : textsOf(language))
        numbers.insert(number);
    return numbers;
}

constexpr std::int32_t resourceOffset = 500;

std::string header(const std::string& file) {
    return contentOf(tests::sourceFolder() + "/" + file);
}

/// The values of the whole-number constants that a header defines.
std::set<std::int32_t> constantsIn(std::string_view header) {
    constexpr std::string_view start = "inline constexpr std::int";
    std::set<std::int32_t> values;
    for (auto at = header.find(start); at != header.npos; at = header.find(start, at + 1))
        values.insert(leadingInteger32(header.substr(header.find('=', at) + 1)));
    return values;
}

/// The names of the whole-number constants that a header defines.
std::vector<std::string> constantNamesIn(std::string_view header) {
    constexpr std::string_view start = "inline constexpr std::int32_t ";
    std::vector<std::string> names;
    for (auto at = header.find(start); at != header.npos; at = header.find(start, at + 1)) {
        const auto name = header.substr(at + start.size());
        names.emplace_back(name.substr(0, name.find(' ')));
    }
    return names;
}

/// The program's own sources, one text.
std::string programSources() {
    std::string sources;
    for (const char* room : {"lang", "link", "files", "app", "console", "ui"})
        for (const auto& entry : std::filesystem::recursive_directory_iterator(
                 std::filesystem::path(tests::sourceFolder()) / room))
            if (entry.path().extension() == ".cpp")
                sources += contentOf(entry.path().string());
    return sources;
}

TEST(MessageNumbers, AreAllUsedByTheProgram) {
    const auto sources = programSources();
    const auto names =
        constantNamesIn(header("lang/MessageNumbers.h") + header("console/ConsoleMessages.h"));
    EXPECT_GT(names.size(), 100U);
    for (const auto& name : names) {
        auto at = sources.find("::" + name);
        while (at != sources.npos &&
               std::isalnum(static_cast<unsigned char>(
                   sources[std::min(at + 2 + name.size(), sources.size() - 1)])))
            at = sources.find("::" + name, at + 1);
        EXPECT_NE(at, sources.npos) << name;
    }
}

/// Every number that has a name in the program; the names are read from the header itself, so that
/// a new constant without a text is found.
std::set<std::int32_t> namedNumbers() {
    const auto content = header("lang/MessageNumbers.h");
    const auto resources = content.find("namespace resource {");
    EXPECT_NE(resources, content.npos);
    auto numbers = constantsIn(content.substr(0, resources));
    for (const auto number : constantsIn(content.substr(resources)))
        numbers.insert(number + resourceOffset);
    numbers.merge(constantsIn(header("console/ConsoleMessages.h")));
    return numbers;
}

/// The texts of the error codes, our own and those of the stand-in for the communication library.
/// Nothing in the program names their numbers; they too are read from the headers.
std::set<std::int32_t> codeNumbers() {
    const auto ours = constantsIn(header("link/SessionErrorRecord.h"));
    const auto theirs = constantsIn(header("simulator/ResultCodes.h"));
    EXPECT_TRUE(ours.contains(3) && theirs.contains(1000));
    std::set<std::int32_t> numbers;
    for (const auto code : ours)
        numbers.insert(code + resourceOffset);
    // What a library returns has a text in the controllers' range only.
    for (const auto code : theirs)
        if (code >= 1000 && code <= 5200)
            numbers.insert(code);
    // The operator's answers to a question are never reported.
    numbers.erase(resourceOffset + 4);
    numbers.erase(resourceOffset + 5);
    return numbers;
}

/// A number and two texts in double quotes, one blank between, and nothing else.
bool isCleanEntry(std::string_view line) {
    const auto pieces = split(line, '"');
    return pieces.size() == 5 && pieces[0].ends_with(' ') && wholeNumber(pieces[0]) &&
           pieces[2] == " " && pieces[4].empty();
}

bool hasOuterBlank(const std::string& text, bool atEnd) {
    return !text.empty() && (atEnd ? text.back() : text.front()) == ' ';
}

class DeliveredLanguage : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Files, DeliveredLanguage, testing::ValuesIn(languages),
                         [](const auto& row) { return std::string(row.param); });

TEST_P(DeliveredLanguage, IsUtf8WithoutAMark) {
    EXPECT_EQ(decodeText(languageFile(GetParam())).encoding, TextEncoding::Utf8);
}

TEST_P(DeliveredLanguage, HasNoLineThatWouldBePassedOver) {
    const auto content = languageFile(GetParam());
    const auto all = lines(content);
    auto line = std::ranges::find(all, "Start:");
    ASSERT_NE(line, all.end());
    for (++line; line != all.end(); ++line)
        EXPECT_TRUE(line->empty() || line->starts_with(';') || isCleanEntry(*line)) << *line;
}

TEST_P(DeliveredLanguage, HoldsEveryNumberThatTheProgramUses) {
    const auto numbers = numbersOf(GetParam());
    for (const auto number : namedNumbers())
        EXPECT_TRUE(numbers.contains(number)) << number;
    for (const auto number : codeNumbers())
        EXPECT_TRUE(numbers.contains(number)) << number;
}

TEST_P(DeliveredLanguage, HoldsNoNumberThatNothingUses) {
    auto numbers = numbersOf(GetParam());
    for (const auto number : namedNumbers())
        numbers.erase(number);
    for (const auto number : codeNumbers())
        numbers.erase(number);
    EXPECT_THAT(numbers, IsEmpty());
    EXPECT_FALSE(namedNumbers().contains(127));
    EXPECT_FALSE(namedNumbers().contains(144));
}

TEST_P(DeliveredLanguage, HasTextsThatCanBeShown) {
    for (const auto& [number, entry] : textsOf(GetParam()))
        for (const auto& text : {entry.Text1, entry.Text2}) {
            EXPECT_FALSE(trimmed(text).empty()) << number;
            EXPECT_EQ(text.find('"'), std::string::npos) << number;
            EXPECT_TRUE(std::ranges::none_of(text, [](char c) { return c >= 0 && c < ' '; }))
                << number;
        }
}

TEST_P(DeliveredLanguage, HasPlaceholdersWhereSomethingIsInserted) {
    const std::map<int, int> inserted{{3, 1},    {10, 1},   {11, 2},   {49, 1},   {70, 1},
                                      {390, 2},  {393, 1},  {408, 2},  {423, 2},  {6549, 2},
                                      {6551, 1}, {6552, 1}, {6554, 1}, {449, 1},  {456, 2},
                                      {660, 2},  {661, 2},  {662, 1},  {663, 1},  {665, 1},
                                      {6643, 1}, {6644, 1}, {6645, 1}, {6646, 1}, {6653, 2}};
    for (const auto& [number, entry] : textsOf(GetParam())) {
        const auto found = inserted.find(number);
        const auto expected = found == inserted.end() ? 0 : found->second;
        EXPECT_EQ(std::ranges::count(entry.Text1, '%'), expected) << number;
        EXPECT_EQ(std::ranges::count(entry.Text2, '%'), expected) << number;
    }
}

TEST_P(DeliveredLanguage, KeepsTheBlanksThatJoinTexts) {
    for (const auto& [number, entry] : textsOf(GetParam()))
        for (const bool atEnd : {false, true})
            EXPECT_EQ(hasOuterBlank(entry.Text1, atEnd), hasOuterBlank(entry.Text2, atEnd))
                << number;
}

TEST(DeliveredLanguages, ErrorCodesHaveTextsOfTheirOwn) {
    const auto named = namedNumbers();
    for (const auto number : codeNumbers())
        EXPECT_FALSE(named.contains(number)) << number;
}

/// The session's own codes are small, and their texts are resource messages.
TEST(DeliveredLanguages, NoSmallCodeFindsATextThatIsMeantForSomethingElse) {
    auto meant = codeNumbers();
    for (const auto number : {2, 4, 7, 30, 31, 32, 33})
        meant.insert(resourceOffset + number);
    const auto numbers = numbersOf("English");
    for (std::int32_t code = -30; code < 100; ++code)
        EXPECT_TRUE(!numbers.contains(resourceOffset + code) ||
                    meant.contains(resourceOffset + code))
            << code;
}

TEST(DeliveredLanguages, HaveTheSameNumbersAndReferenceTexts) {
    const auto english = textsOf("English");
    for (const char* language : languages) {
        EXPECT_EQ(numbersOf(language), numbersOf("English")) << language;
        for (const auto& [number, entry] : textsOf(language))
            EXPECT_EQ(entry.Text1, english.at(number).Text1) << language << number;
    }
}

TEST(DeliveredLanguages, EnglishAndSystemShowTheReferenceTexts) {
    for (const char* language : {"English", "System"})
        for (const auto& [number, entry] : textsOf(language))
            EXPECT_EQ(entry.Text2, entry.Text1) << language << number;
}

/// Where no language file can be had at all the program has this one text of its own.
TEST(DeliveredLanguages, TheTextThatIsInTheProgramToo) {
    const auto source = header("app/start/StartRoutine.cpp");
    const std::string inOneLine = std::regex_replace(source, std::regex(R"("\s+")"), "");
    EXPECT_THAT(inOneLine, HasSubstr('"' + shownText(textsOf("English"), 382) + '"'));
}

} // namespace
} // namespace vantrel
