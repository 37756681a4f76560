#include "platform/ProfileFile.h"

#include "platform/ProfileCases.h"
#include "support/SystemReasons.h"
#include "support/TemporaryFolder.h"
#include "support/Wine.h"

#include <algorithm>
#include <filesystem>

namespace vantrel {
namespace {

using namespace tests;

/// Every case has to hold. Only where the system's functions are Wine's, a case of its known
/// differences has to fail: one that holds there by now is to leave the list.
void expectCase(const NamedRow& row, const std::string& given, const std::string& expected) {
    const auto* const known = std::ranges::find(differsUnderWine, row.name, &WineDifference::name);
    if (isUnderWine() && known != std::end(differsUnderWine))
        EXPECT_NE(given, expected) << "no more so: Wine " << known->reason;
    else
        EXPECT_EQ(given, expected);
}

ProfileFile openProfile(const TemporaryFolder& folder, const std::optional<std::string>& content) {
    if (content)
        folder.write("test.ini", *content);
    return ProfileFile(folder.path("test.ini"));
}

class ProfileRead : public testing::TestWithParam<ProfileReadCase> {};

TEST_P(ProfileRead, GivesTheValue) {
    const auto& row = GetParam();
    const TemporaryFolder folder;
    const ProfileFile file = openProfile(folder, row.file);
    expectCase(row, file.text(row.section, row.key, row.defaultValue, row.bufferSize),
               row.expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, ProfileRead, testing::ValuesIn(profileReadCases), rowName);

class ProfileInteger : public testing::TestWithParam<ProfileIntegerCase> {};

TEST_P(ProfileInteger, GivesTheNumber) {
    const TemporaryFolder folder;
    const ProfileFile file = openProfile(folder, GetParam().file);
    EXPECT_EQ(file.integer("S", "k", GetParam().defaultValue), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, ProfileInteger, testing::ValuesIn(profileIntegerCases), rowName);

struct ShortIntegerCase : NamedRow {
    std::string file;
    std::int16_t expected;
};

const ShortIntegerCase shortIntegerCases[] = {
    {"Missing", "", 7},
    {"Plain", "[S]\nk=-1\n", -1},
    {"Highest", "[S]\nk=32767\n", 32767},
    {"PastTheHighest", "[S]\nk=32768\n", 32767},
    {"SixteenZeroBits", "[S]\nk=65536\n", 32767},
    {"Lowest", "[S]\nk=-32768\n", -32768},
    {"PastTheLowest", "[S]\nk=-32769\n", -32768},
};

class ProfileShortInteger : public testing::TestWithParam<ShortIntegerCase> {};

TEST_P(ProfileShortInteger, StaysWithinSixteenBits) {
    const TemporaryFolder folder;
    const ProfileFile file = openProfile(folder, GetParam().file);
    EXPECT_EQ(file.shortInteger("S", "k", 7), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, ProfileShortInteger, testing::ValuesIn(shortIntegerCases), rowName);

class ProfileWrite : public testing::TestWithParam<ProfileWriteCase> {};

TEST_P(ProfileWrite, ChangesNothingElse) {
    const auto& row = GetParam();
    const TemporaryFolder folder;
    ProfileFile file = openProfile(folder, row.before);
    ASSERT_TRUE(file.set(row.section, row.key, row.value));
    ASSERT_TRUE(file.save());
    expectCase(row, folder.read("test.ini"), row.after);
}

INSTANTIATE_TEST_SUITE_P(Rows, ProfileWrite, testing::ValuesIn(profileWriteCases), rowName);

TEST(ProfileFile, WritesSeveralValuesInTheirOrder) {
    const TemporaryFolder folder;
    ProfileFile file(folder.path("test.ini"));
    ASSERT_TRUE(file.set("Vantrel", "Port", "1"));
    ASSERT_TRUE(file.set("PCType", "DispType", "3"));
    ASSERT_TRUE(file.set("Vantrel", "Baudrate", "9600"));
    ASSERT_TRUE(file.save());
    EXPECT_EQ(folder.read("test.ini"),
              "[Vantrel]\r\nPort=1\r\nBaudrate=9600\r\n[PCType]\r\nDispType=3\r\n");
}

TEST(ProfileFile, WritesNothingBeforeItIsSaved) {
    const TemporaryFolder folder;
    ProfileFile file(folder.path("test.ini"));
    ASSERT_TRUE(file.set("S", "k", "v"));
    EXPECT_FALSE(folder.has("test.ini"));
}

/// Which file it is, apart from its name: a file that was replaced is another one.
auto identity(const TemporaryFolder& folder) {
    return std::filesystem::last_write_time(folder.path("test.ini")).time_since_epoch().count();
}

TEST(ProfileFile, IsNotWrittenWhenNothingChanged) {
    const TemporaryFolder folder;
    folder.write("test.ini", "[S]\r\nk=v\r\n");
    const std::filesystem::file_time_type longAgo{};
    std::filesystem::last_write_time(folder.path("test.ini"), longAgo);
    const auto before = identity(folder);
    ProfileFile file(folder.path("test.ini"));
    ASSERT_TRUE(file.set("S", "k", "other"));
    ASSERT_TRUE(file.set("S", "k", "v"));
    EXPECT_TRUE(file.save());
    EXPECT_EQ(identity(folder), before);
}

TEST(ProfileFile, IsNotCreatedWhenNothingWasSet) {
    const TemporaryFolder folder;
    EXPECT_TRUE(ProfileFile(folder.path("test.ini")).save());
    EXPECT_FALSE(folder.has("test.ini"));
}

TEST(ProfileFile, CreatesNoFolder) {
    const TemporaryFolder folder;
    ProfileFile file(folder.path("none/test.ini"));
    ASSERT_TRUE(file.set("S", "k", "v"));
    const auto outcome = file.save();
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.reason(), noSuchFolder());
    EXPECT_FALSE(folder.has("none"));
}

TEST(ProfileFile, LeavesAFileThatItCannotReadAsItIs) {
    const TemporaryFolder folder;
    folder.makeFolder("test.ini");
    ProfileFile file(folder.path("test.ini"));
    EXPECT_EQ(file.text("S", "k", "d", 128), "d");
    ASSERT_TRUE(file.set("S", "k", "v"));
    EXPECT_FALSE(file.save());
    EXPECT_TRUE(std::filesystem::is_directory(folder.path("test.ini")));
}

TEST(ProfileFile, LeavesAFileThatCouldNotBeReadAtTheStartAsItIs) {
    const TemporaryFolder folder;
    folder.makeFolder("test.ini");
    ProfileFile file(folder.path("test.ini"));
    std::filesystem::remove(folder.path("test.ini"));
    folder.write("test.ini", "[S]\r\nk=precious\r\n");
    ASSERT_TRUE(file.set("S", "k", "v"));
    const auto outcome = file.save();
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.reason(), isAFolder());
    EXPECT_EQ(folder.read("test.ini"), "[S]\r\nk=precious\r\n");
}

TEST(ProfileFile, CanBeSavedAgainAfterAFailure) {
    const TemporaryFolder folder;
    ProfileFile file(folder.path("late/test.ini"));
    ASSERT_TRUE(file.set("S", "k", "v"));
    ASSERT_FALSE(file.save());
    folder.makeFolder("late");
    EXPECT_TRUE(file.save());
    EXPECT_EQ(folder.read("late/test.ini"), "[S]\r\nk=v\r\n");
}

TEST(ProfileFile, RefusesACharacterThatTheCodePageLacks) {
    const TemporaryFolder folder;
    folder.write("test.ini", "[S]\r\nk=1\r\n");
    ProfileFile file(folder.path("test.ini"));
    EXPECT_FALSE(file.set("S", "k", "\u20AC"));
    EXPECT_FALSE(file.set("S", "\u20AC", "2"));
    EXPECT_TRUE(file.save());
    EXPECT_EQ(folder.read("test.ini"), "[S]\r\nk=1\r\n");
}

TEST(ProfileFile, CutsAValueAtItsNul) {
    const TemporaryFolder folder;
    const ProfileFile file = openProfile(folder, std::string("[S]\r\nk=a\0b\r\n", 12));
    EXPECT_EQ(file.text("S", "k", "d", 128), "a");
}

TEST(ProfileFile, KeepsItsPath) {
    const ProfileFile file("/nowhere/test.ini");
    EXPECT_EQ(file.path(), "/nowhere/test.ini");
}

TEST(ProfileCases, AllowListNamesCasesThatExist) {
    for (const auto& known : differsUnderWine) {
        const auto isNamed = [&](const NamedRow& row) { return row.name == known.name; };
        EXPECT_TRUE(std::ranges::any_of(profileReadCases, isNamed) ||
                    std::ranges::any_of(profileWriteCases, isNamed))
            << known.name;
    }
}

} // namespace
} // namespace vantrel
