#include "link/JobNameSet.h"

#include "base/TextCase.h"
#include "support/NamedRow.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

JobNameSet setOf(const std::vector<std::string>& names) {
    JobNameSet set;
    set.assign(names);
    return set;
}

TEST(JobNameSetTest, FilesAreFoundByTheirWholeNameInAnyLetterCase) {
    const auto set = setOf({"Weld.jbi", "DATA.CND"});
    EXPECT_TRUE(set.hasFile("WELD.JBI"));
    EXPECT_TRUE(set.hasFile("data.cnd"));
    EXPECT_FALSE(set.hasFile("WELD.JBR"));
    EXPECT_FALSE(set.hasFile("WELD"));
}

TEST(JobNameSetTest, JobsAreFoundWhateverTheirExtension) {
    const auto set = setOf({"WELD.JBI", "PAINT.JBR", "PICK"});
    EXPECT_EQ(set.jobEntry("weld.jbr"), "WELD.JBI");
    EXPECT_EQ(set.jobEntry("WELD"), "WELD.JBI");
    EXPECT_EQ(set.jobEntry("paint.jbi"), "PAINT.JBR");
    EXPECT_EQ(set.jobEntry("pick.jbi"), "PICK");
    EXPECT_EQ(set.jobEntry("OTHER.JBI"), "");
}

TEST(JobNameSetTest, DataFilesStandInNoJobsWay) {
    const auto set = setOf({"WELD.CND"});
    EXPECT_EQ(set.jobEntry("WELD.JBI"), "");
    EXPECT_EQ(set.jobEntry("WELD.CND"), "");
}

TEST(JobNameSetTest, LowerCaseGreekLettersAreLettersOfTheirOwn) {
    const auto set = setOf({"A\xCE\xB1.JBI"});
    EXPECT_EQ(set.jobEntry("a\xCE\xB1.JBI"), "A\xCE\xB1.JBI");
    EXPECT_EQ(set.jobEntry("A\xCE\x91.JBI"), "");
}

TEST(JobNameSetTest, RemovedNamesAreGone) {
    auto set = setOf({"WELD.JBI"});
    set.remove("weld.jbi");
    EXPECT_FALSE(set.hasFile("WELD.JBI"));
    EXPECT_EQ(set.jobEntry("WELD"), "");
}

TEST(JobNameSetTest, AJobIsPreferredToItsRelatedFileWhateverTheirOrder) {
    EXPECT_EQ(setOf({"WELD.JBR", "WELD.JBI"}).jobEntry("WELD.JBI"), "WELD.JBI");
    EXPECT_EQ(setOf({"WELD.JBI", "WELD.JBR"}).jobEntry("WELD.JBR"), "WELD.JBI");
}

TEST(JobNameSetTest, RemovingOneEntryOfAJobLeavesTheOther) {
    auto set = setOf({"WELD.JBR", "WELD.JBI"});
    set.remove("WELD.JBI");
    EXPECT_EQ(set.jobEntry("WELD.JBI"), "WELD.JBR");
    set.remove("weld.jbr");
    EXPECT_EQ(set.jobEntry("WELD.JBI"), "");
}

TEST(JobNameSetTest, AssigningForgetsTheOldNames) {
    auto set = setOf({"WELD.JBI"});
    set.assign({"PICK.JBI"});
    EXPECT_EQ(set.jobEntry("WELD"), "");
    EXPECT_EQ(set.jobEntry("PICK"), "PICK.JBI");
}

struct NameRow : tests::NamedRow {
    const char* fileName;
    const char* extension;
    bool isJob;
};

class JobFileNameTest : public testing::TestWithParam<NameRow> {};

TEST_P(JobFileNameTest, IsToldByItsExtension) {
    EXPECT_EQ(jobExtension(GetParam().fileName), GetParam().extension);
    EXPECT_EQ(isJobFileName(GetParam().fileName), GetParam().isJob);
}

INSTANTIATE_TEST_SUITE_P(Names, JobFileNameTest,
                         testing::Values(NameRow{"Job", "A.JBI", ".JBI", true},
                                         NameRow{"LowerCase", "a.jbi", ".JBI", true},
                                         NameRow{"Related", "A.Jbr", ".JBR", true},
                                         NameRow{"Data", "A.CND", ".CND", false},
                                         NameRow{"TwoPoints", "A.JBI.BAK", ".BAK", false},
                                         NameRow{"None", "A", "", false},
                                         NameRow{"Empty", "", "", false}),
                         tests::rowName);

std::size_t normalisations = 0;

std::string countedForm(std::string_view name) {
    ++normalisations;
    return normalisedJobName(name);
}

TEST(JobNameSetTest, TenThousandLookupsInTenThousandNamesAreLinear) {
    constexpr std::size_t count = 10'000;
    std::vector<std::string> names;
    for (std::size_t i = 0; i < count; ++i)
        names.push_back("JOB" + std::to_string(i) + ".JBI");
    normalisations = 0;
    JobNameSet set(countedForm);
    set.assign(names);
    for (const std::string& name : names)
        EXPECT_EQ(set.jobEntry(name), name);
    EXPECT_EQ(normalisations, 2 * count);
}

} // namespace
} // namespace vantrel
