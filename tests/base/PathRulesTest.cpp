#include "base/PathRules.h"

#include "support/NamedRow.h"

namespace vantrel {
namespace {

using tests::NamedRow;
using tests::rowName;

constexpr auto W = PathStyle::Windows;
constexpr auto P = PathStyle::Posix;

TEST(Separator, IsTheStylesOwn) {
    EXPECT_EQ(PathRules(W).separator(), '\\');
    EXPECT_EQ(PathRules(P).separator(), '/');
    EXPECT_TRUE(PathRules(W).isSeparator('/') && PathRules(W).isSeparator('\\'));
    EXPECT_TRUE(PathRules(P).isSeparator('/'));
    EXPECT_FALSE(PathRules(P).isSeparator('\\'));
}

struct OneRow : NamedRow {
    PathStyle style;
    std::string_view path, expected;
};

class WithSeparator : public testing::TestWithParam<OneRow> {};
const OneRow withSeparatorRows[] = {
    {"WindowsFolder", W, "C:\\jobs", "C:\\jobs\\"},
    {"WindowsHasOne", W, "C:\\jobs\\", "C:\\jobs\\"},
    {"WindowsHasTwo", W, "C:\\jobs\\\\", "C:\\jobs\\"},
    {"WindowsSlash", W, "C:/jobs/", "C:/jobs\\"},
    {"WindowsRoot", W, "C:\\", "C:\\"},
    {"WindowsDrive", W, "C:", "C:\\"},
    {"PosixFolder", P, "/jobs", "/jobs/"},
    {"PosixHasOne", P, "/jobs/", "/jobs/"},
    {"PosixRoot", P, "/", "/"},
    {"PosixBackslashIsPartOfTheName", P, "/jobs\\", "/jobs\\/"},
    {"EmptyStaysEmpty", P, "", ""},
};
TEST_P(WithSeparator, EndsInExactlyOne) {
    EXPECT_EQ(PathRules(GetParam().style).withSeparator(GetParam().path), GetParam().expected);
}
INSTANTIATE_TEST_SUITE_P(Rows, WithSeparator, testing::ValuesIn(withSeparatorRows), rowName);

class WithoutTrailing : public testing::TestWithParam<OneRow> {};
const OneRow withoutTrailingRows[] = {
    {"WindowsFolder", W, "C:\\jobs\\", "C:\\jobs"},
    {"WindowsNone", W, "C:\\jobs", "C:\\jobs"},
    {"WindowsOneOfTwo", W, "C:\\jobs\\\\", "C:\\jobs\\"},
    {"WindowsRootKeepsIt", W, "C:\\", "C:\\"},
    {"WindowsShareKeepsIt", W, "\\\\server\\share\\", "\\\\server\\share\\"},
    {"WindowsFolderOfAShare", W, "\\\\server\\share\\jobs\\", "\\\\server\\share\\jobs"},
    {"PosixFolder", P, "/jobs/", "/jobs"},
    {"PosixRootKeepsIt", P, "/", "/"},
    {"Relative", P, "jobs/", "jobs"},
    {"Empty", P, "", ""},
};
TEST_P(WithoutTrailing, LosesOneSeparatorButNotARoots) {
    EXPECT_EQ(PathRules(GetParam().style).withoutTrailingSeparator(GetParam().path),
              GetParam().expected);
}
INSTANTIATE_TEST_SUITE_P(Rows, WithoutTrailing, testing::ValuesIn(withoutTrailingRows), rowName);

class Parent : public testing::TestWithParam<OneRow> {};
const OneRow parentRows[] = {
    {"WindowsFolder", W, "C:\\jobs\\old", "C:\\jobs"},
    {"WindowsTrailing", W, "C:\\jobs\\old\\", "C:\\jobs"},
    {"WindowsMixed", W, "C:\\jobs/old", "C:\\jobs"},
    {"WindowsFirstFolder", W, "C:\\jobs", "C:\\"},
    {"WindowsRoot", W, "C:\\", "C:\\"},
    {"WindowsDrive", W, "C:", "C:"},
    {"WindowsDriveRelative", W, "C:jobs", "C:"},
    {"WindowsShare", W, "\\\\server\\share\\", "\\\\server\\share\\"},
    {"WindowsShareWithoutTrailing", W, "\\\\server\\share", "\\\\server\\share"},
    {"WindowsFolderOfAShare", W, "\\\\server\\share\\jobs", "\\\\server\\share\\"},
    {"WindowsRooted", W, "\\jobs", "\\"},
    {"PosixFolder", P, "/jobs/old", "/jobs"},
    {"PosixTrailing", P, "/jobs/old/", "/jobs"},
    {"PosixDoubled", P, "/jobs//old", "/jobs"},
    {"PosixFirstFolder", P, "/jobs", "/"},
    {"PosixRoot", P, "/", "/"},
    {"Relative", P, "jobs/old", "jobs"},
    {"RelativeName", P, "jobs", ""},
    {"Empty", P, "", ""},
};
TEST_P(Parent, IsTheFolderAbove) {
    EXPECT_EQ(PathRules(GetParam().style).parent(GetParam().path), GetParam().expected);
}
INSTANTIATE_TEST_SUITE_P(Rows, Parent, testing::ValuesIn(parentRows), rowName);

class LastName : public testing::TestWithParam<OneRow> {};
const OneRow lastNameRows[] = {
    {"WindowsFolder", W, "C:\\jobs\\old", "old"},
    {"WindowsTrailing", W, "C:\\jobs\\old\\", "old"},
    {"WindowsSlash", W, "C:/jobs/old", "old"},
    {"WindowsRoot", W, "C:\\", "C:"},
    {"WindowsShare", W, "\\\\server\\share\\", "\\\\server\\share"},
    {"WindowsRootOfTheCurrentDrive", W, "\\", "\\"},
    {"PosixFolder", P, "/jobs/old", "old"},
    {"PosixTrailing", P, "/jobs/old/", "old"},
    {"PosixRoot", P, "/", "/"},
    {"PosixColonAndBackslash", P, "/jobs/C:\\old", "C:\\old"},
    {"NameAlone", P, "old", "old"},
    {"Empty", P, "", ""},
};
TEST_P(LastName, IsTheLastComponent) {
    EXPECT_EQ(PathRules(GetParam().style).lastName(GetParam().path), GetParam().expected);
}
INSTANTIATE_TEST_SUITE_P(Rows, LastName, testing::ValuesIn(lastNameRows), rowName);

class Drive : public testing::TestWithParam<OneRow> {};
const OneRow driveRows[] = {
    {"WindowsDrive", W, "C:\\jobs", "C:"},
    {"WindowsDriveAlone", W, "d:", "d:"},
    {"WindowsShare", W, "\\\\server\\share\\jobs", "\\\\server\\share"},
    {"WindowsServerAlone", W, "\\\\server", "\\\\server"},
    {"WindowsRooted", W, "\\jobs", ""},
    {"WindowsThreeSeparatorsNameNoServer", W, "\\\\\\jobs", ""},
    {"WindowsRelative", W, "jobs", ""},
    {"PosixAbsolute", P, "/jobs", "/"},
    {"PosixRelative", P, "C:\\jobs", ""},
    {"Empty", W, "", ""},
};
TEST_P(Drive, IsWhatThePathStartsOn) {
    EXPECT_EQ(PathRules(GetParam().style).drive(GetParam().path), GetParam().expected);
}
INSTANTIATE_TEST_SUITE_P(Rows, Drive, testing::ValuesIn(driveRows), rowName);

struct JoinRow : NamedRow {
    PathStyle style;
    std::string_view folder, added, expected;
};
class Join : public testing::TestWithParam<JoinRow> {};
const JoinRow joinRows[] = {
    {"Windows", W, "c:\\vantrel", "data\\r1", "c:\\vantrel\\data\\r1"},
    {"WindowsEndsInOne", W, "c:\\", "robot.ini", "c:\\robot.ini"},
    {"WindowsEndsInSlash", W, "c:/", "robot.ini", "c:/robot.ini"},
    {"Posix", P, "/opt/vantrel", "robot.ini", "/opt/vantrel/robot.ini"},
    {"PosixRoot", P, "/", "robot.ini", "/robot.ini"},
    {"EmptyFolderMakesNoRoot", P, "", "robot.ini", "robot.ini"},
};
TEST_P(Join, PutsOneSeparatorBetween) {
    EXPECT_EQ(PathRules(GetParam().style).join(GetParam().folder, GetParam().added),
              GetParam().expected);
}
INSTANTIATE_TEST_SUITE_P(Rows, Join, testing::ValuesIn(joinRows), rowName);

struct KindRow : NamedRow {
    PathStyle style;
    std::string_view path;
    bool isAbsolute, isRoot;
};
class PathKind : public testing::TestWithParam<KindRow> {};
const KindRow kindRows[] = {
    {"WindowsDrive", W, "C:\\jobs", true, false},
    {"WindowsRoot", W, "C:\\", true, true},
    {"WindowsDriveAlone", W, "C:", true, true},
    {"WindowsDriveRelativeCountsAsAbsolute", W, "C:jobs", true, false},
    {"WindowsRooted", W, "\\jobs", true, false},
    {"WindowsRootOfTheCurrentDrive", W, "\\", true, true},
    {"WindowsShare", W, "\\\\server\\share", true, true},
    {"WindowsShareWithSeparator", W, "\\\\server\\share\\", true, true},
    {"WindowsFolderOfAShare", W, "\\\\server\\share\\jobs", true, false},
    {"WindowsRelative", W, "data\\r1", false, false},
    {"WindowsColonFirst", W, ":a", false, false},
    {"WindowsColonThird", W, "ab:c", false, false},
    {"WindowsColonSecondAfterJapanese", W, "\u3042:\\x", true, false},
    {"WindowsEmpty", W, "", false, false},
    {"PosixAbsolute", P, "/jobs", true, false},
    {"PosixRoot", P, "/", true, true},
    {"PosixDoubledRoot", P, "//", true, true},
    {"PosixRelative", P, "jobs", false, false},
    {"PosixColon", P, "C:\\jobs", false, false},
    {"PosixBackslash", P, "\\jobs", false, false},
    {"PosixEmpty", P, "", false, false},
};
TEST_P(PathKind, IsToldByTheText) {
    const PathRules rules(GetParam().style);
    EXPECT_EQ(rules.isAbsolute(GetParam().path), GetParam().isAbsolute);
    EXPECT_EQ(rules.isRoot(GetParam().path), GetParam().isRoot);
}
INSTANTIATE_TEST_SUITE_P(Rows, PathKind, testing::ValuesIn(kindRows), rowName);

struct ShortenRow : NamedRow {
    PathStyle style;
    std::string_view path;
    std::size_t maximumLength;
    std::string_view expected;
};
class Shorten : public testing::TestWithParam<ShortenRow> {};
const ShortenRow shortenRows[] = {
    {"ExactlyTheMaximumStays", W, "C:\\jobs\\old", 11, "C:\\jobs\\old"},
    {"OneMoreIsShortened", W, "C:\\jobs\\old", 10, "C:\\...\\old"},
    {"TrailingSeparator", W, "C:\\jobs\\old\\", 10, "C:\\...\\old"},
    {"OneTrailingSeparatorOnly", W, "C:\\jobs\\old\\\\", 10, "C:\\...\\"},
    {"WithoutDrive", W, "\\\\server\\share\\jobs", 5, "jobs"},
    {"Relative", W, "jobs\\old", 4, "old"},
    {"ColonAnywhereCounts", W, "ab\\c:d\\name", 5, "ab\\...\\name"},
    {"NeverHalfACharacter", W, "\u3042:\\\u30B8\u30E7\u30D6\\name", 5, "\u3042:\\...\\name"},
    {"NoSeparatorAtAll", W, "C:name", 3, "C:\\...\\C:name"},
    {"MayStayTooLong", W, "C:\\a\\a very long name", 3, "C:\\...\\a very long name"},
    {"CountsCharactersNotBytes", W, "C:\\\u30B8\u30E7\u30D6", 6, "C:\\\u30B8\u30E7\u30D6"},
    {"Posix", P, "/home/operator/jobs", 10, "/.../jobs"},
    {"PosixExactlyTheMaximum", P, "/home/jobs", 10, "/home/jobs"},
    {"PosixTrailing", P, "/home/operator/jobs/", 10, "/.../jobs"},
    {"PosixRelative", P, "operator/jobs", 5, "jobs"},
    {"PosixColonIsNoDrive", P, "operator/a:b/jobs", 5, "jobs"},
    {"Empty", W, "", 0, ""},
};
TEST_P(Shorten, KeepsDriveAndLastName) {
    const auto& row = GetParam();
    EXPECT_EQ(PathRules(row.style).shorten(row.path, row.maximumLength), row.expected);
}
INSTANTIATE_TEST_SUITE_P(Rows, Shorten, testing::ValuesIn(shortenRows), rowName);

class EveryPath : public testing::TestWithParam<PathStyle> {};

/// All texts of up to five characters of those that have a meaning in paths.
TEST_P(EveryPath, HasAParentChainThatEndsAndNeverGrows) {
    const PathRules rules(GetParam());
    const std::string_view alphabet = "a:\\/.";
    for (int code = 0; code < 3125; ++code) {
        std::string path;
        for (int rest = code; rest > 0; rest /= 5)
            path += alphabet[static_cast<std::size_t>(rest % 5)];
        std::string above = rules.parent(path);
        EXPECT_LE(above.size(), path.size()) << path;
        for (int steps = 0; steps < 6; ++steps)
            above = rules.parent(above);
        EXPECT_EQ(rules.parent(above), above) << path;
        EXPECT_LE(rules.lastName(path).size(), path.size() + 1) << path;
        EXPECT_EQ(rules.withSeparator(rules.withSeparator(path)), rules.withSeparator(path));
    }
}

TEST_P(EveryPath, TakesTenMegabytes) {
    const PathRules rules(GetParam());
    const std::string separators(10'000'000, '/');
    EXPECT_TRUE(rules.isAbsolute(separators));
    EXPECT_TRUE(rules.lastName(separators + "a") == "a");
    EXPECT_EQ(rules.shorten(std::string(10'000'000, '\x80'), 10).size(), 10'000'000u);
}

constexpr auto styleName = [](const auto& style) {
    return std::string(style.param == W ? "Windows" : "Posix");
};
INSTANTIATE_TEST_SUITE_P(Styles, EveryPath, testing::Values(W, P), styleName);

TEST(ResolvedPath, HasOneSpellingForEachFolder) {
    const PathRules posix(PathStyle::Posix);
    EXPECT_EQ(posix.resolved("/jobs/robot1/../robot2"), "/jobs/robot2");
    EXPECT_EQ(posix.resolved("/jobs//robot2/./"), "/jobs/robot2");
    EXPECT_EQ(posix.resolved("/jobs/robot2. "), "/jobs/robot2. ") << "a name of its own";
    EXPECT_EQ(posix.resolved("/../.."), "/");
    const PathRules windows(PathStyle::Windows);
    EXPECT_EQ(windows.resolved("D:\\jobs/robot1\\..\\robot2. "), "D:\\jobs\\robot2");
    EXPECT_EQ(windows.resolved("D:"), "D:\\");
    EXPECT_EQ(windows.resolved("D:jobs"), "D:\\jobs") << "not from the program's folder";
    EXPECT_EQ(windows.resolved("D:\\..\\jobs"), "D:\\jobs");
    EXPECT_EQ(windows.resolved("\\\\server\\share\\a\\..\\b\\"), "\\\\server\\share\\b");
    EXPECT_EQ(windows.resolved("//server//share/a"), "\\\\server\\share\\a");
    EXPECT_EQ(windows.resolved("\\jobs\\.\\a"), "\\jobs\\a");
    EXPECT_EQ(windows.resolved("\\\\?\\D:\\a.\\b"), "\\\\?\\D:\\a.\\b");
}

} // namespace
} // namespace vantrel
