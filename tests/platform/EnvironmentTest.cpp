#include "platform/Environment.h"

#include "support/EnvironmentVariable.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

using namespace tests;

TEST(ExecutablePath, IsThisProgramsOwn) {
    const std::string path = executablePath();
    EXPECT_TRUE(path.starts_with('/')) << path;
    EXPECT_TRUE(path.ends_with("platform_tests")) << path;
    EXPECT_TRUE(std::filesystem::exists(path));
}

TEST(ProgramPath, IsWhereTheProgramRuns) {
    const EnvironmentVariable folder("VANTREL_FOLDER", std::nullopt);
    EXPECT_EQ(programPath(), executablePath());
}

TEST(ProgramPath, IsInTheFolderThatTheLauncherNames) {
    const EnvironmentVariable folder("VANTREL_FOLDER", "/home/operator/vantrel");
    EXPECT_EQ(programPath(), "/home/operator/vantrel/platform_tests");
}

TEST(ProgramPath, OfNoAbsoluteFolderIsWhereTheProgramRuns) {
    for (const char* named : {"", "vantrel", "./vantrel"}) {
        const EnvironmentVariable folder("VANTREL_FOLDER", named);
        EXPECT_EQ(programPath(), executablePath()) << named;
    }
}

TEST(LocaleLanguage, ComesFromTheFirstVariableThatIsSet) {
    const EnvironmentVariable all("LC_ALL", "ja_JP.UTF-8");
    const EnvironmentVariable messages("LC_MESSAGES", "de_DE.UTF-8");
    const EnvironmentVariable lang("LANG", "fr_FR.UTF-8");
    EXPECT_EQ(localeLanguageName(), "Japanese");
    const EnvironmentVariable noAll("LC_ALL", "");
    EXPECT_EQ(localeLanguageName(), "German");
    const EnvironmentVariable noMessages("LC_MESSAGES", std::nullopt);
    EXPECT_EQ(localeLanguageName(), "French");
}

TEST(LocaleLanguage, IsEnglishWhenNothingIsSet) {
    const EnvironmentVariable all("LC_ALL", std::nullopt);
    const EnvironmentVariable messages("LC_MESSAGES", std::nullopt);
    const EnvironmentVariable lang("LANG", std::nullopt);
    EXPECT_EQ(localeLanguageName(), "English");
}

TEST(OpenDocument, FailsForAMissingFile) {
    const TemporaryFolder folder;
    EXPECT_EQ(openDocument(folder.path("none.pdf")).reason(), "No such file or directory");
    EXPECT_EQ(editTextFile(folder.path("none.txt")).reason(), "No such file or directory");
}

TEST(OpenDocument, NamesTheProgramThatIsMissing) {
    const TemporaryFolder folder;
    const EnvironmentVariable path("PATH", folder.path());
    EXPECT_EQ(openDocument(folder.write("help.pdf", "")).reason(),
              "xdg-open: No such file or directory");
}

TEST(LibraryFileName, IsTheSystems) {
    EXPECT_EQ(libraryFileName(), "libZurolink.so");
}

} // namespace
} // namespace vantrel
