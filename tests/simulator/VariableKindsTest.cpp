#include "simulator/ResultCodes.h"
#include "simulator/VariableStore.h"

#include <limits>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

namespace vantrel::simulator {
namespace {

struct VariableCase {
    const char* name;
    std::int16_t kind;
    std::int16_t number;
    double value;
    std::int16_t code;
};

void PrintTo(const VariableCase& each, std::ostream* out) {
    *out << each.kind << ' ' << each.number << ' ' << each.value;
}

class VariableKinds : public testing::TestWithParam<VariableCase> {};

TEST_P(VariableKinds, AcceptOrRefuse) {
    const auto& each = GetParam();
    auto result = checkVariable(each.kind, each.number);
    if (result == code::done) {
        const auto& kind = variableKinds()[static_cast<std::size_t>(each.kind)];
        VariableValues values{};
        values[kind.valueCount - 1] = each.value;
        result = checkValues(kind, values);
    }
    EXPECT_EQ(result, each.code);
}

const VariableCase variableCases[] = {
    {"ByteLowest", 0, 0, 0, code::done},
    {"ByteHighest", 0, 999, 255, code::done},
    {"ByteTooHigh", 0, 0, 256, code::variableValue},
    {"ByteNegative", 0, 0, -1, code::variableValue},
    {"ByteFraction", 0, 0, 1.5, code::variableValue},
    {"IntegerLowest", 1, 7, -32768, code::done},
    {"IntegerTooHigh", 1, 7, 32768, code::variableValue},
    {"DoubleHighest", 2, 7, 2147483647, code::done},
    {"DoubleTooHigh", 2, 7, 2147483648.0, code::variableValue},
    {"RealFraction", 3, 7, -0.25, code::done},
    {"RealTooHigh", 3, 7, 1e39, code::variableValue},
    {"RealInfinite", 3, 7, std::numeric_limits<double>::infinity(), code::variableValue},
    {"RealNoNumber", 3, 7, std::numeric_limits<double>::quiet_NaN(), code::variableValue},
    {"PositionLastValue", 4, 255, -9999999.999, code::done},
    {"PositionTooFar", 4, 255, 1e7, code::variableValue},
    {"BasePosition", 5, 3, 12.5, code::done},
    {"Station", 6, 3, 12.5, code::done},
    {"NumberTooHigh", 0, 1000, 0, code::variableNumber},
    {"PositionNumberTooHigh", 4, 256, 0, code::variableNumber},
    {"NumberNegative", 0, -1, 0, code::variableNumber},
    {"KindTooHigh", 7, 0, 0, code::variableKind},
    {"KindNegative", -1, 0, 0, code::variableKind},
};

INSTANTIATE_TEST_SUITE_P(Variables, VariableKinds, testing::ValuesIn(variableCases),
                         [](const auto& each) { return std::string(each.param.name); });

TEST(VariableKindsTable, SlotsThatAKindDoesNotUseAreNotLookedAt) {
    VariableValues values;
    values.fill(1e300);
    values[0] = 5;

    EXPECT_EQ(checkValues(variableKinds()[0], values), code::done);
}

} // namespace
} // namespace vantrel::simulator
