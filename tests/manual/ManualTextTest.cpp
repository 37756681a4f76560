#include "base/Text.h"
#include "console/ConsoleMessages.h"
#include "lang/LanguageFiles.h"
#include "lang/MessageNumbers.h"
#include "platform/Files.h"
#include "support/NamedRow.h"
#include "support/ProjectFiles.h"

#include <algorithm>
#include <regex>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using tests::NamedRow;

const std::string sources = tests::sourceFolder();

std::string contentOf(const std::string& file) {
    const auto bytes = readFile(sources + "/" + file);
    EXPECT_TRUE(bytes) << file;
    return bytes ? *bytes : std::string{};
}

/// Each match with its groups.
std::vector<std::vector<std::string>> matches(const std::string& text, const char* pattern) {
    const std::regex expression(pattern);
    std::vector<std::vector<std::string>> found;
    for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end;
         ++match)
        found.emplace_back(match->begin(), match->end());
    return found;
}

std::string replaced(const std::string& text, const char* pattern, const char* by) {
    return std::regex_replace(text, std::regex(pattern), by);
}

/// A caption as it is read on the screen: without its key, the points of a dialog and the colon.
std::string shown(const std::string& caption) {
    return std::string(trimmed(replaced(caption, R"(\(&.\)|&|\.\.\.|:$)", "")));
}

/// The letter after "&" as a capital one, or nothing.
std::string keyOf(const std::string& caption) {
    const auto ampersand = caption.find('&');
    return ampersand == std::string::npos ? std::string{}
                                          : asciiUpper(caption.substr(ampersand + 1, 1));
}

struct Manual : NamedRow {
    const char* file;
    const char* language;
    const char* pictures;
};

constexpr int resourceOffset = 500;
constexpr int firstControllerCode = 1000;
constexpr int lastControllerCode = 5200;

/// Every number that has a name in the program, as it stands in the language files.
std::set<int> namedNumbers() {
    const auto header = contentOf("lang/MessageNumbers.h");
    const auto resources = header.find("namespace resource {");
    EXPECT_NE(resources, header.npos);
    std::set<int> numbers;
    const auto add = [&numbers](const std::string& part, int offset) {
        for (const auto& constant : matches(part, R"(constexpr std::int32_t \w+ = (\d+);)"))
            numbers.insert(std::stoi(constant[1]) + offset);
    };
    add(header.substr(0, resources), 0);
    add(header.substr(resources), resourceOffset);
    add(contentOf("console/ConsoleMessages.h"), 0);
    return numbers;
}

constexpr int ofResource(int number) {
    return number + resourceOffset;
}

/// From the first number to the last: what stands in windows, menus and title bars. Every other
/// number is told in a message box or asked in one, a new one too until it is listed here.
constexpr std::pair<int, int> captionNumbers[] = {
    {message::title, message::title},
    {message::transferTitle, message::transferTitle},
    {message::countPC, message::countEnd},
    {message::saveJobsTitle, message::versionHeading},
    {message::simulationNotice, message::simulationNotice},
    {message::listFileHint, message::listFileHint},
    {message::searchText, message::tipSearchPrevious},
    {message::waitingForController, message::progressOf},
    {message::menuFile, message::applySettings},
    {message::ok, message::cancel},
    {message::languageTitle, message::chooseFont},
    {message::executionMessage, message::tipFolderTree},
    {ofResource(message::resource::transferring), ofResource(message::resource::deleting)},
    {message::resultSent, message::resultJoint}, // words of the status bar and of the result sheet
    {message::menuTools, message::resultClose},
    {message::menuTestConnection, message::testEnd},
    {message::testCopy, message::testCopy},
    {message::menuRobotMark, message::colourGrey},
    {message::menuNewFolder, message::folderToOpen},
    {message::toWasteBin, message::quickFilterLabel},
    {message::resultCopied, message::resultCopied},
    {message::menuLineNumbers, message::closeQuickFilter},
    {message::menuSaveSelection, message::timeMomentLeft},
    {message::listFilesOffered, message::listFilesOffered},
    {message::consoleFolder, message::consoleWouldBeDone}, // cells of vantrelctl's lines
    {message::consoleDone, message::consoleDone},
    {message::snapshotRecorded, message::snapshotUnread},
    {message::backupSummary, message::backupSummary},
    {message::userProcess, message::unknownUser}, // of who works with a machine
    {ofResource(message::resource::yes), ofResource(message::resource::cancel)}};

bool isCaption(int number) {
    return std::ranges::any_of(captionNumbers, [number](const auto& range) {
        return number >= range.first && number <= range.second;
    });
}

/// The start of a message that no language file holds, and where the program has it.
struct FixedMessage {
    const char* text;
    const char* source;
};

constexpr FixedMessage fixedMessages[] = {{"File Get Error!!", "files/PaneRefresh.h"},
                                          {"File Dispaly Error!!", "files/PaneRefresh.h"},
                                          {"Start Error.", "app/start/StartRoutine.cpp"},
                                          {"Language File Read Error.", "lang/LanguageChoice.cpp"},
                                          {"Error(", "app/robots/RobotFile.cpp"}};

constexpr Manual manuals[] = {{{"English"}, "Zurolink_us.adoc", "English.lng", "en"},
                              {{"Japanese"}, "Zurolink_jp.adoc", "Japanese.lng", "ja"}};

/// One of the manuals, with the texts of its language.
class ManualText : public testing::TestWithParam<Manual> {
  protected:
    static std::string textOf(const Manual& manual) {
        return contentOf(std::string("docs/manual/") + manual.file);
    }

    /// Words of the screen stand in bold, in Japanese within brackets.
    static std::string unbracketed(const std::string& words) {
        return replaced(words, "［|］", "");
    }

    /// What a table holds whose attributes begin with `role`, with all tables of that role joined.
    std::string tables(const std::string& role) const {
        std::string all;
        const std::string begin = "[." + role;
        for (auto place = text_.find(begin); place != std::string::npos;) {
            const auto end = text_.find("\n|===", text_.find("|===", place) + 4);
            all += text_.substr(place, end - place) + "\n";
            place = text_.find(begin, end);
        }
        return all;
    }

    /// What stands there as a message of the program, without the quotation marks around it.
    std::set<std::string> quotedMessages() const {
        std::set<std::string> quoted;
        for (const auto& words : matches(text_, R"(\[\.msg\]#+([^#]+)#)"))
            quoted.insert(replaced(words[1], "\"|「|」", ""));
        return quoted;
    }

    bool isKeyOf(const std::string& key, const std::string& words) const {
        return std::ranges::any_of(entries_, [&](const MessageEntry& entry) {
            return shown(entry.Text2) == words && keyOf(entry.Text2) == key;
        });
    }

    std::string messageText(int number) const {
        const auto found = std::ranges::find(entries_, number, &MessageEntry::MsgNo);
        return found == entries_.end() ? std::string{} : found->Text2;
    }

    std::string shownText(int number) const { return shown(messageText(number)); }

    const std::string text_ = textOf(GetParam());
    const std::vector<MessageEntry> entries_ =
        parseLanguageFile(contentOf(std::string("data/") + GetParam().language));
};

INSTANTIATE_TEST_SUITE_P(Languages, ManualText, testing::ValuesIn(manuals), tests::rowName);

TEST_P(ManualText, QuotesOnlyCaptionsThatTheScreenShows) {
    std::set<std::string> captions;
    for (const auto& entry : entries_)
        captions.insert(shown(entry.Text2));
    const auto quoted = matches(text_, R"(\*\*([^*]+)\*\*)");
    EXPECT_GT(quoted.size(), 100U);
    for (const auto& words : quoted)
        EXPECT_TRUE(captions.contains(unbracketed(words[1]))) << words[1];
}

TEST_P(ManualText, QuotesOnlyMessagesThatTheProgramGives) {
    std::set<std::string> texts;
    for (const auto& entry : entries_)
        texts.emplace(trimmed(entry.Text2));
    for (const auto& message : fixedMessages)
        texts.emplace(message.text);
    const auto quoted = quotedMessages();
    EXPECT_GT(quoted.size(), 80U);
    for (const auto& words : quoted)
        EXPECT_TRUE(texts.contains(words)) << words;
}

TEST_P(ManualText, QuotesEveryMessageThatIsToldInABox) {
    const auto quoted = quotedMessages();
    for (const auto number : namedNumbers())
        EXPECT_TRUE(isCaption(number) || quoted.contains(std::string(trimmed(messageText(number)))))
            << number;
}

TEST_P(ManualText, QuotesTheMessagesThatHaveNoTranslation) {
    const auto quoted = quotedMessages();
    for (const auto& message : fixedMessages) {
        EXPECT_THAT(contentOf(message.source), HasSubstr(std::string("\"") + message.text));
        EXPECT_THAT(quoted, Contains(message.text));
    }
}

TEST_P(ManualText, GivesEveryMenuEntryItsKeys) {
    std::set<std::string> listed;
    for (const auto& row :
         matches(tables("keys"), R"(\|`Alt\+(.)` `(.)` \|\*\*([^*]+)\*\*[^*]+\*\*([^*]+)\*\*)")) {
        EXPECT_TRUE(isKeyOf(row[1], unbracketed(row[3]))) << row[0];
        EXPECT_TRUE(isKeyOf(row[2], unbracketed(row[4]))) << row[0];
        listed.insert(unbracketed(row[4]));
    }
    for (const auto& row : matches(tables("keys"), R"(\|`Alt\+(.)` \|\*\*([^*]+)\*\*)")) {
        EXPECT_TRUE(isKeyOf(row[1], unbracketed(row[2]))) << row[0];
        listed.insert(unbracketed(row[2]));
    }
    const auto commands =
        matches(contentOf("app/commands/Commands.cpp"), R"(\.caption = message::(\w+))");
    EXPECT_GT(commands.size(), 30U);
    const auto header = contentOf("lang/MessageNumbers.h");
    for (const auto& command : commands) {
        const auto constants = matches(header, (" " + command[1] + R"( = (\d+);)").c_str());
        ASSERT_EQ(constants.size(), 1U) << command[1];
        EXPECT_THAT(listed, Contains(shownText(std::stoi(constants.front()[1])))) << command[1];
    }
}

TEST_P(ManualText, NamesEveryAcceleratorOfTheMenus) {
    const auto menus = contentOf("app/commands/Commands.cpp");
    const auto accelerators = matches(menus, R"-(\.key = "([^"]+)")-");
    EXPECT_THAT(accelerators, testing::Not(IsEmpty()));
    const auto listed = tables("keys");
    for (const auto& accelerator : accelerators)
        EXPECT_THAT(listed, HasSubstr("|`" + accelerator[1] + "`"));
}

TEST_P(ManualText, NamesEveryKeyOfTheSettings) {
    const auto listed = tables("keys");
    for (const int number :
         {message::receiveRelatedJobs, message::showJobHeader, message::keepNoSettings}) {
        const auto row =
            replaced(listed, "［|］", "")
                .find("|`Alt+" + keyOf(messageText(number)) + "` |**" + shownText(number) + "**\n");
        EXPECT_NE(row, std::string::npos) << number;
    }
    const auto models =
        matches(contentOf("files/ControllerModels.cpp"), R"-(\{"(\w)(\w*)", false)-");
    EXPECT_THAT(models, testing::SizeIs(6));
    for (const auto& model : models)
        EXPECT_THAT(listed, HasSubstr("`Alt+" + model[1] + "` " + model[1] + model[2]));
    for (const char* key : {"`Ctrl+Tab`", "`Ctrl+Shift+Tab`", "`Ctrl+PageDown`", "`Ctrl+PageUp`"})
        EXPECT_THAT(listed, HasSubstr(key));
}

TEST_P(ManualText, ExplainsEveryErrorCodeThatHasAText) {
    std::set<int> explained;
    for (const auto& row : matches(tables("codes"), R"(\|(-?\d+) \|\[\.msg\]#+([^#]+)#+ \|\S)")) {
        const int code = std::stoi(row[1]);
        EXPECT_EQ(row[2], messageText(code < firstControllerCode ? ofResource(code) : code));
        explained.insert(code);
    }
    const auto named = namedNumbers();
    std::set<int> codes;
    for (const auto& entry : entries_)
        if (entry.MsgNo >= firstControllerCode && entry.MsgNo <= lastControllerCode)
            codes.insert(entry.MsgNo);
        else if (!named.contains(entry.MsgNo))
            codes.insert(entry.MsgNo - resourceOffset);
    EXPECT_EQ(explained, codes);
}

TEST_P(ManualText, NamesOnlyPicturesThatAreThereAndSmall) {
    const std::string folder = std::string("docs/manual/pictures/") + GetParam().pictures + "/";
    std::set<std::string> named;
    for (const auto& picture : matches(text_, R"((?:^|\n)image::([^\[]+)\[)")) {
        named.insert(picture[1]);
        EXPECT_LT(contentOf(folder + picture[1]).size(), 40'000U) << picture[1];
    }
    EXPECT_GE(named.size(), 9U);
}

TEST(Manuals, HaveTheSameStructureInBothLanguages) {
    const auto structure = [](const Manual& manual) {
        std::vector<std::string> parts;
        const auto text = contentOf(std::string("docs/manual/") + manual.file);
        for (const auto& part :
             matches(text, R"((?:^|\n)(={2,} |\[#.+\]|\[.*%header|image::[^\[]+|\|-?\d+ ))"))
            parts.push_back(part[1]);
        return parts;
    };
    const auto english = structure(manuals[0]);
    EXPECT_GT(english.size(), 100U);
    EXPECT_EQ(structure(manuals[1]), english);
}

/// Chapters and table rows in their order, then every word in code letters and every link.
std::vector<std::string> structureOfReadme(const std::string& file) {
    const auto text = contentOf(file);
    std::vector<std::string> parts;
    for (const auto& part : matches(text, R"((?:^|\n)(#+ |\| |```|- ))"))
        parts.push_back(part[1]);
    std::set<std::string> named;
    for (const auto& word : matches(text, R"(`[^`\n]+`|\]\([^)\n]+\))"))
        if (!word[0].ends_with(".png)") && !word[0].starts_with("](README"))
            named.insert(word[0]);
    parts.insert(parts.end(), named.begin(), named.end());
    return parts;
}

TEST(Readmes, NameTheSameThingsInBothLanguages) {
    const auto english = structureOfReadme("README.md");
    EXPECT_GT(english.size(), 80U);
    EXPECT_EQ(structureOfReadme("README.ja.md"), english);
    EXPECT_THAT(contentOf("README.md"), HasSubstr("](README.ja.md)"));
    EXPECT_THAT(contentOf("README.ja.md"), HasSubstr("](README.md)"));
}

} // namespace
} // namespace vantrel
