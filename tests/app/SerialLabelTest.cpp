#include "app/settings/SerialDraft.h"
#include "base/ApplicationState.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

ApplicationState stateWith(std::int16_t parity, std::int16_t stopBit) {
    ApplicationState state;
    state.Parity = parity;
    state.StopBit = stopBit;
    return state;
}

TEST(SerialLabelTest, ShowsTheDefaults) {
    EXPECT_EQ(serialLabel(ApplicationState()).text(),
              "COM1: 9600bps  DataLength:8  Parity:EVEN  StopBit:1");
}

TEST(SerialLabelTest, ShowsTheStoredNumbersAsTheyStand) {
    ApplicationState state;
    state.Port = 12;
    state.Baudrate = 38400;
    state.DataLen = 7;
    EXPECT_EQ(serialLabel(state).port, "COM12: 38400bps");
    EXPECT_EQ(serialLabel(state).format, "DataLength:7  Parity:EVEN  StopBit:1");
}

struct Case {
    const char* name;
    std::int16_t parity, stopBit;
    const char* format;
};

class SerialCodesTest : public testing::TestWithParam<Case> {};

TEST_P(SerialCodesTest, AreNamed) {
    EXPECT_EQ(serialLabel(stateWith(GetParam().parity, GetParam().stopBit)).format,
              GetParam().format);
}

INSTANTIATE_TEST_SUITE_P(, SerialCodesTest,
                         testing::Values(Case{"None", 0, 0, "DataLength:8  Parity:NONE  StopBit:1"},
                                         Case{"Odd", 1, 1, "DataLength:8  Parity:ODD  StopBit:1.5"},
                                         Case{"Even", 2, 2, "DataLength:8  Parity:EVEN  StopBit:2"},
                                         Case{"TooLarge", 3, 3, "DataLength:8  Parity:  StopBit:"},
                                         Case{"Negative", -1, -1,
                                              "DataLength:8  Parity:  StopBit:"}),
                         [](const auto& test) { return test.param.name; });

} // namespace
} // namespace vantrel
