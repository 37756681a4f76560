#include "platform/Drives.h"
#include "platform/Environment.h"
#include "platform/LocalDates_windows.h"
#include "platform/System_windows.h"
#include "platform/TextEncoding.h"
#include "support/NamedRow.h"
#include "support/SystemReasons.h"
#include "support/TemporaryFolder.h"

#include <algorithm>

namespace vantrel {
namespace {

using namespace tests;

TEST(WindowsExecutablePath, IsThisProgramsOwn) {
    const std::string path = executablePath();
    EXPECT_EQ(path.substr(1, 2), ":\\") << path;
    EXPECT_TRUE(path.ends_with("platform_tests.exe")) << path;
}

/// What the cases of text encodings and profile files are written for.
TEST(WindowsCodePage, IsTheOneThatTheTestsAreWrittenFor) {
    EXPECT_EQ(::GetACP(), 932u);
    EXPECT_EQ(toCodePage("\u8868"), "\x95\x5C");
}

TEST(WindowsLocaleLanguage, IsAnEnglishName) {
    const std::string name = localeLanguageName();
    EXPECT_FALSE(name.empty());
    EXPECT_EQ(name == "Japanese", ::GetACP() == 932) << name;
}

TEST(WindowsOpenDocument, FailsForAMissingFile) {
    const TemporaryFolder folder;
    EXPECT_EQ(openDocument(folder.path("none.pdf")).reason(), noSuchFile());
    EXPECT_EQ(editTextFile(folder.path("none.txt")).reason(), noSuchFile());
    EXPECT_FALSE(openDocument(std::string("C:\\\0x", 5)));
}

TEST(WindowsLibraryFileName, IsTheSystems) {
    EXPECT_EQ(libraryFileName(), "Zurolink.dll");
}

TEST(WindowsDrives, AreLettersInTheirOrder) {
    const auto drives = listDrives();
    const auto system = std::ranges::find(drives, "C:\\", &Drive::path);
    ASSERT_NE(system, drives.end());
    EXPECT_TRUE(system->text.starts_with("C:"));
    EXPECT_TRUE(std::ranges::is_sorted(drives, {}, &Drive::path));
    for (const Drive& drive : drives)
        EXPECT_TRUE(drive.text.size() == 2 ||
                    (drive.text.substr(2, 2) == " [" && drive.text.ends_with(']')))
            << drive.text;
}

struct FolderRow : NamedRow {
    std::string folder;
    bool expected;
};

const FolderRow folderRows[] = {
    {"Share", R"(\\server\share)", true},
    {"FolderOnAShare", R"(\\server\share\jobs)", true},
    {"ShareWithSlashes", "//server/share", true},
    {"LongFormOfAShare", R"(\\?\UNC\server\share)", true},
    {"LongFormOfADrive", R"(\\?\C:\jobs)", false},
    {"Drive", "C:\\jobs", false},
    {"UnusedLetter", "Q:\\jobs", false},
    {"Relative", "jobs", false},
    {"Empty", "", false},
};

class WindowsNetworkFolder : public testing::TestWithParam<FolderRow> {};

TEST_P(WindowsNetworkFolder, IsToldWithoutTouchingIt) {
    EXPECT_EQ(isOnNetwork(GetParam().folder), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, WindowsNetworkFolder, testing::ValuesIn(folderRows), rowName);

TEST(WindowsLocalDate, IsTheSystemsLocalTime) {
    SYSTEMTIME local{};
    local.wYear = 2026;
    local.wMonth = 3;
    local.wDay = 8;
    local.wHour = 7;
    local.wMinute = 5;
    local.wSecond = 9;
    SYSTEMTIME universal{};
    FILETIME time{};
    ASSERT_TRUE(::TzSpecificLocalTimeToSystemTime(nullptr, &local, &universal) &&
                ::SystemTimeToFileTime(&universal, &time));
    EXPECT_EQ(localDateText(time).view(), "2026/03/08 07:05:09");
    EXPECT_EQ(localDateText({0xFFFFFFFF, 0xFFFFFFFF}).view(), "");
}

TEST(WindowsText, KeepsWhatItCannotHoldVisible) {
    EXPECT_EQ(narrow(wide("\u8868 \U0001F600")), "\u8868 \U0001F600");
    EXPECT_EQ(narrow(wide("a\xFF"
                          "b")),
              "a\uFFFDb");
    const wchar_t half[] = {L'a', 0xD800, L'b', 0};
    EXPECT_EQ(narrow(half), "a\uFFFDb");
    EXPECT_EQ(wide(""), L"");
}

TEST(WindowsText, HasWordsForEveryError) {
    EXPECT_FALSE(systemFailure(ERROR_ACCESS_DENIED).reason.empty());
    EXPECT_EQ(systemFailure(0x2FFFFFFF).reason, "system error 805306367");
}

} // namespace
} // namespace vantrel
