#include "files/ControllerModels.h"

#include "base/Text.h"
#include "base/Wildcard.h"

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct ModelCase {
    const char* name;
    std::int16_t row;
    std::int16_t capabilities;
    std::int16_t bit;
    std::vector<std::string_view> filters;
};

class ControllerModelRow : public testing::TestWithParam<ModelCase> {};

TEST_P(ControllerModelRow, HasItsLinksBitAndFilters) {
    const ControllerModel& model = controllerModel(GetParam().row);
    EXPECT_EQ(model.name, GetParam().name);
    EXPECT_FALSE(model.isPC);
    EXPECT_EQ(model.capabilities, GetParam().capabilities);
    EXPECT_EQ(model.bit, GetParam().bit);
    EXPECT_THAT(model.filters, testing::ElementsAreArray(GetParam().filters));
}

INSTANTIATE_TEST_SUITE_P(
    All, ControllerModelRow,
    testing::Values(ModelCase{"Borin", 0, 3, 2, {"JBI", "DAT;CND;SYS", "PRM;LST"}},
                    ModelCase{"Aster", 1, 1, 1, {"JBI", "DAT"}},
                    ModelCase{"Cygna", 2, 3, 4, {"JBI", "DAT;CND;SYS", "PRM;LST"}},
                    ModelCase{"Dorado", 3, 3, 8, {"JBI", "DAT;CND;SYS", "PRM;LST"}},
                    ModelCase{"Eridan", 4, 3, 16, {"JBI", "DAT;CND;SYS", "PRM;LST"}},
                    ModelCase{"Tellus", 5, 3, 32, {"JBI", "DAT;CND;SYS", "PRM;LST"}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(ControllerModels, AsterAloneHasNoHighSpeedLink) {
    for (const ControllerModel& model : controllerModels())
        EXPECT_EQ((model.capabilities & capabilityHispeed) == 0, model.name == "Aster");
    EXPECT_EQ(controllerModels().size(), 6u);
}

TEST(ControllerModels, ThePCRowHasNoLinksAndNoBit) {
    EXPECT_EQ(pcModel().name, "PC");
    EXPECT_TRUE(pcModel().isPC);
    EXPECT_EQ(pcModel().capabilities, 0);
    EXPECT_EQ(pcModel().bit, 0);
    EXPECT_THAT(pcModel().filters, ElementsAre("JBI", "JBR", "DAT;CND;SYS", "PRM;LST", "*"));
}

TEST(ControllerModels, ASettingOutsideTheTableGivesSerialOnlyWithoutBitAndFilters) {
    for (const int row : {-1, 6, 7, 32767, -32768}) {
        const ControllerModel& model = controllerModel(static_cast<std::int16_t>(row));
        EXPECT_FALSE(model.isPC) << row;
        EXPECT_EQ(model.capabilities, capabilityBsc) << row;
        EXPECT_EQ(model.bit, 0) << row;
        EXPECT_THAT(model.filters, IsEmpty()) << row;
    }
}

constexpr std::int16_t borin = 0;
constexpr std::int16_t aster = 1;

TEST(FilterChoices, OfThePCReadAsPatterns) {
    EXPECT_THAT(filterChoices(pcModel()),
                ElementsAre("*.JBI", "*.JBR", "*.DAT;*.CND;*.SYS", "*.PRM;*.LST", "*.*"));
}

TEST(FilterChoices, OfAModelAreItsOwnEntries) {
    EXPECT_THAT(filterChoices(controllerModel(borin)),
                ElementsAre("*.JBI", "*.DAT;*.CND;*.SYS", "*.PRM;*.LST"));
    EXPECT_THAT(filterChoices(controllerModel(aster)), ElementsAre("*.JBI", "*.DAT"));
    EXPECT_THAT(filterChoices(controllerModel(99)), IsEmpty());
}

struct FilterCase {
    const char* title;
    std::string_view name;
    int index;
    bool matches;
};

class PCFilter : public testing::TestWithParam<FilterCase> {};

TEST_P(PCFilter, Matches) {
    EXPECT_EQ(matchesFilter(GetParam().name, GetParam().index, pcModel()), GetParam().matches);
}

INSTANTIATE_TEST_SUITE_P(
    Names, PCFilter,
    testing::Values(FilterCase{"Job", "A.JBI", 0, true}, FilterCase{"OtherKind", "A.JBR", 0, false},
                    FilterCase{"FirstOfThree", "A.DAT", 2, true},
                    FilterCase{"SecondOfThree", "A.CND", 2, true},
                    FilterCase{"LastOfThree", "A.SYS", 2, true},
                    FilterCase{"NoneOfThree", "A.PRM", 2, false},
                    FilterCase{"OnlyTheLastExtensionCounts", "A.JBI.BAK", 0, false},
                    FilterCase{"SeveralPoints", "A.B.JBI", 0, true},
                    FilterCase{"EndWithoutPoint", "MYJBI", 0, false},
                    FilterCase{"TheExtensionAlone", "JBI", 0, false},
                    FilterCase{"PointAndExtensionAlone", ".JBI", 0, true},
                    FilterCase{"LongerExtension", "A.XJBI", 0, false},
                    FilterCase{"LetterCaseCounts", "A.jbi", 0, false},
                    FilterCase{"AllFiles", "README.TXT", 4, true},
                    FilterCase{"AllFilesNeedAPoint", "README", 4, false},
                    FilterCase{"AllFilesWithAPointAtTheEnd", "README.", 4, true},
                    FilterCase{"PastTheEntries", "README.TXT", 5, true},
                    FilterCase{"PastTheEntriesWithoutPoint", "README", 5, false},
                    FilterCase{"NoChoice", "README.TXT", -1, true},
                    FilterCase{"NoChoiceWithoutPoint", "README", -1, false}),
    [](const auto& row) { return std::string(row.param.title); });

TEST(FileFilters, AreAskedOfTheGivenModel) {
    EXPECT_TRUE(matchesFilter("A.CND", 1, controllerModel(borin)));
    EXPECT_FALSE(matchesFilter("A.CND", 1, controllerModel(aster)));
    EXPECT_TRUE(matchesFilter("A.CND", 2, controllerModel(aster))) << "past its two entries";
    EXPECT_TRUE(matchesFilter("A.CND", 0, controllerModel(99))) << "a model without entries";
}

/// The shown caption is a wildcard pattern per extension; the test by the end of the name has to
/// agree with it.
TEST(FileFilters, AgreeWithTheirCaptionsAsWildcards) {
    const auto choices = filterChoices(pcModel());
    for (const std::string_view name :
         {"A.JBI", ".JBI", "JBI", "A.B.JBR", "A.DAT", "A.CNDX", "A.SYS", "X", "", ".", "A.",
          "溶接.PRM", "溶接.LST.", "A*.JBI"})
        for (std::size_t index = 0; index < choices.size(); ++index) {
            const auto patterns = split(choices[index], ';');
            const bool wanted =
                std::any_of(patterns.begin(), patterns.end(), [name](std::string_view pattern) {
                    return matchesWildcard(name, pattern);
                });
            EXPECT_EQ(matchesFilter(name, static_cast<int>(index), pcModel()), wanted)
                << name << " against " << choices[index];
        }
}

} // namespace
} // namespace vantrel
