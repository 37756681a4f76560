#include "lang/SystemReasons.h"

#include "lang/LanguageFiles.h"
#include "lang/MessageTable.h"
#include "platform/Files.h"
#include "support/ProjectFiles.h"
#include "support/TemporaryFolder.h"

#include <algorithm>
#include <utility>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

MessageTable delivered(const std::string& language) {
    MessageTable messages;
    EXPECT_TRUE(LanguageFiles(tests::dataFolder()).readInto(language, messages)) << language;
    return messages;
}

bool isAscii(const std::string& text) {
    return std::ranges::all_of(text, [](char character) { return character > 0; });
}

TEST(SystemReasonsTest, TheUsualOnesAreJapaneseInJapanese) {
    const MessageTable japanese = delivered("Japanese");
    for (const char* reason :
         {"No such file or directory", "Permission denied", "No space left on device",
          "Read-only file system", "Text file busy", "Is a directory", "Not a regular file",
          "Access is denied", "There is not enough space on the disk",
          "The delivered file is empty", "not a library of this system",
          "library for another kind of processor", "32-bit library, 64-bit program",
          "64-bit library, 32-bit program", "the file is cut short"}) {
        const std::string shown = reasonInLanguage(japanese, reason);
        EXPECT_FALSE(shown.empty());
        EXPECT_FALSE(isAscii(shown)) << shown;
    }
}

TEST(SystemReasonsTest, DifferentReasonsStayDifferent) {
    const MessageTable japanese = delivered("Japanese");
    EXPECT_NE(reasonInLanguage(japanese, "Permission denied"),
              reasonInLanguage(japanese, "No space left on device"));
    EXPECT_NE(reasonInLanguage(japanese, "Permission denied"),
              reasonInLanguage(japanese, "Is a folder"));
}

TEST(SystemReasonsTest, AReasonOfThisSystemIsAmongThem) {
    const tests::TemporaryFolder folder;
    const auto missing = readFile(folder.path("missing"));
    ASSERT_FALSE(missing);
    EXPECT_FALSE(isAscii(reasonInLanguage(delivered("Japanese"), missing.reason())))
        << missing.reason();
}

TEST(SystemReasonsTest, NamesBeforeAndBehindOneStay) {
    const MessageTable japanese = delivered("Japanese");
    const std::string denied = reasonInLanguage(japanese, "Permission denied");
    ASSERT_FALSE(isAscii(denied));
    for (const auto& [before, behind] :
         {std::pair("xdg-open: ", ""), {"", " [/vantrel/robot.ini.bak]"}, {"a: b: ", " [c [d]]"}})
        EXPECT_EQ(reasonInLanguage(japanese, std::string(before) + "Permission denied" + behind),
                  before + denied + behind);
    EXPECT_EQ(reasonInLanguage(japanese, "editor: is gone [x]"), "editor: is gone [x]");
    EXPECT_EQ(reasonInLanguage(japanese, "Permission denied: "), "Permission denied: ");
}

TEST(SystemReasonsTest, AnyOtherStaysAsItIs) {
    EXPECT_EQ(reasonInLanguage(delivered("Japanese"), "Too many open files"),
              "Too many open files");
    EXPECT_EQ(reasonInLanguage(delivered("Japanese"), ""), "");
}

TEST(SystemReasonsTest, ALanguageWithoutThemLeavesTheSystemsWords) {
    EXPECT_EQ(reasonInLanguage(MessageTable(), "Permission denied"), "Permission denied");
}

} // namespace
} // namespace vantrel
