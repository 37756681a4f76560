#include "files/ControllerModels.h"

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

} // namespace
} // namespace vantrel
