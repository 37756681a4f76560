#include "app/commands/Commands.h"
#include "lang/LanguageFiles.h"
#include "lang/MessageTable.h"
#include "support/ProjectFiles.h"

#include <cctype>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace vantrel::tests {
namespace {

using enum CommandPlace;

/// The key of a caption, in lower case: what follows its only "&".
std::optional<char> mnemonic(const std::string& caption) {
    const auto ampersand = caption.find('&');
    if (ampersand == std::string::npos || ampersand != caption.rfind('&') ||
        ampersand + 1 == caption.size())
        return std::nullopt;
    const auto key = static_cast<unsigned char>(caption[ampersand + 1]);
    if (!std::isalnum(key))
        return std::nullopt;
    return static_cast<char>(std::tolower(key));
}

std::vector<std::int32_t> captionsAt(CommandPlace place) {
    std::vector<std::int32_t> captions;
    for (const CommandRow* command : commandsAt(commandTable(), place))
        if (command)
            captions.push_back(command->caption);
    return captions;
}

/// Captions that are on the screen together, so that each key may occur only once.
std::map<std::string, std::vector<std::int32_t>> groups() {
    std::map<std::string, std::vector<std::int32_t>> all = {
        {"question dialog", {455, 530, 531, 532, 533}},
        {"settings dialog", {320, 321, 322}},
        {"result sheet", {417, 418, 419}},
        {"connection test", {6499}},
        {"robot's pop-up menu", captionsAt(mnuRobot)},
        {"menu bar", captionsAt(menuBar)},
        {"pop-up menu", captionsAt(mnuRightClick)}};
    for (const MenuHead& head : menuBarHeads()) {
        all["menu bar"].push_back(head.caption);
        all["menu " + std::to_string(head.caption)] = captionsAt(head.place);
    }
    for (const MenuHead& head : popUpHeads()) {
        all["pop-up menu"].push_back(head.caption);
        all["pop-up menu " + std::to_string(head.caption)] = captionsAt(head.place);
    }
    return all;
}

std::set<std::int32_t> numbersWithMnemonic() {
    std::set<std::int32_t> numbers;
    for (const auto& [name, members] : groups())
        numbers.insert(members.begin(), members.end());
    return numbers;
}

MessageTable delivered(const std::string& language) {
    MessageTable messages;
    EXPECT_TRUE(LanguageFiles(dataFolder()).readInto(language, messages)) << language;
    return messages;
}

class DeliveredMnemonics : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(In, DeliveredMnemonics, testing::Values("English", "Japanese", "System"),
                         [](const auto& row) { return std::string(row.param); });

TEST_P(DeliveredMnemonics, OccurOnceWhereTheyAreShownTogether) {
    const MessageTable messages = delivered(GetParam());
    for (const auto& [group, numbers] : groups()) {
        // The option buttons of the controller models bring their first letters along.
        std::string taken = group == "settings dialog" ? "bacdet" : "";
        for (const auto number : numbers) {
            const auto key = mnemonic(messages.getMessage(number));
            ASSERT_TRUE(key) << group << number;
            EXPECT_EQ(taken.find(*key), std::string::npos) << group << number;
            taken += *key;
        }
    }
}

TEST_P(DeliveredMnemonics, AreInMenusAndDialogsOnly) {
    const MessageTable messages = delivered(GetParam());
    const auto withKeys = numbersWithMnemonic();
    for (std::int32_t number = 0; number < 10000; ++number) {
        const bool hasKey = messages.getMessage(number).find('&') != std::string::npos;
        EXPECT_EQ(hasKey, withKeys.contains(number)) << number;
    }
}

TEST(DeliveredMnemonicsTest, AreTheSameInBothLanguages) {
    const MessageTable english = delivered("English");
    const MessageTable japanese = delivered("Japanese");
    for (const auto number : numbersWithMnemonic())
        EXPECT_EQ(mnemonic(japanese.getMessage(number)), mnemonic(english.getMessage(number)))
            << number;
}

} // namespace
} // namespace vantrel::tests
