#include "simulator/Script.h"

#include <chrono>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

namespace vantrel::simulator {
namespace {

using Kind = Disturbance::Kind;
using std::chrono::milliseconds;

struct RowCase {
    const char* name;
    std::string row;
    bool understood;
};

void PrintTo(const RowCase& each, std::ostream* out) {
    *out << each.row.substr(0, 60);
}

class ScriptRow : public testing::TestWithParam<RowCase> {};

TEST_P(ScriptRow, IsUnderstoodOrLeftOut) {
    Script script;
    EXPECT_EQ(script.addRow(GetParam().row), GetParam().understood);
}

const RowCase rowCases[] = {
    {"Fail", "BscConnect 2 fail 2010", true},
    {"FailFromThereOn", "BscConnect 2+ fail 2010", true},
    {"FailNegative", "BscOpen 1 fail -7", true},
    {"AnyLetterCase", "bscconnect 2 FAIL 2010", true},
    {"TabsAndBlanks", "  BscConnect\t2   fail 2010  ", true},
    {"Slow", "BscUpLoad 1 slow 500", true},
    {"Nothing", "BscDeleteJob 1 nothing", true},
    {"Cut", "BscUpLoad 1 cut 100", true},
    {"CutWithCode", "BscDownLoad 1 cut 100 0", true},
    {"Empty", "", false},
    {"FunctionAlone", "BscConnect", false},
    {"NoVerb", "BscConnect 2", false},
    {"UnknownFunction", "BscPing 2 fail 2010", false},
    {"UnknownVerb", "BscConnect 2 explode", false},
    {"CallZero", "BscConnect 0 fail 2010", false},
    {"CallNegative", "BscConnect -1 fail 2010", false},
    {"CallNoNumber", "BscConnect x fail 2010", false},
    {"CallPlusAlone", "BscConnect + fail 2010", false},
    {"CallTooLarge", "BscConnect 99999999999 fail 2010", false},
    {"FailWithoutCode", "BscConnect 2 fail", false},
    {"FailWithRest", "BscConnect 2 fail 2010 now", false},
    {"FailCodeTooLarge", "BscConnect 2 fail 70000", false},
    {"SlowNegative", "BscConnect 2 slow -1", false},
    {"NothingWithRest", "BscConnect 2 nothing 5", false},
    {"CutOfNoTransfer", "BscConnect 2 cut 5", false},
    {"CutWithoutBytes", "BscUpLoad 2 cut", false},
    {"CutNegative", "BscUpLoad 2 cut -5", false},
    {"CutBadCode", "BscUpLoad 2 cut 5 x", false},
    {"NulBytes", std::string("BscConnect\0 2 fail 1", 20), false},
    {"LongLine", "BscConnect 2 fail " + std::string(10'000'000, '1'), false},
    {"ManyWords",
     [] {
         std::string row;
         for (int word = 0; word < 1'000'000; ++word)
             row += "x ";
         return row;
     }(),
     false},
};

INSTANTIATE_TEST_SUITE_P(Rows, ScriptRow, testing::ValuesIn(rowCases),
                         [](const auto& each) { return std::string(each.param.name); });

TEST(Script, MeetsTheNamedCallOnly) {
    Script script;
    script.addRow("BscConnect 2 fail 2010");

    EXPECT_EQ(script.next(Function::BscConnect).kind, Kind::None);
    const auto second = script.next(Function::BscConnect);
    EXPECT_EQ(second.kind, Kind::Fail);
    EXPECT_EQ(second.code, 2010);
    EXPECT_EQ(script.next(Function::BscConnect).kind, Kind::None);
}

TEST(Script, MeetsTheNamedCallAndEveryLaterOne) {
    Script script;
    script.addRow("BscUpLoad 2+ nothing");

    EXPECT_EQ(script.next(Function::BscUpLoad).kind, Kind::None);
    for (int call = 2; call <= 5; ++call)
        EXPECT_EQ(script.next(Function::BscUpLoad).kind, Kind::Nothing) << call;
}

TEST(Script, CountsEachFunctionOnItsOwn) {
    Script script;
    script.addRow("BscUpLoad 1 fail 5");

    EXPECT_EQ(script.next(Function::BscDownLoad).kind, Kind::None);
    EXPECT_EQ(script.next(Function::BscPutVarData).kind, Kind::None);
    EXPECT_EQ(script.next(Function::BscUpLoad).code, 5);
}

TEST(Script, AddsUpDelaysAndTakesTheFirstOfTheRest) {
    Script script;
    script.addRow("BscUpLoad 1 slow 200");
    script.addRow("BscUpLoad 1 cut 7");
    script.addRow("BscUpLoad 1+ slow 50");
    script.addRow("BscUpLoad 1 fail 5");

    const auto disturbance = script.next(Function::BscUpLoad);
    EXPECT_EQ(disturbance.delay, milliseconds(250));
    EXPECT_EQ(disturbance.kind, Kind::Cut);
    EXPECT_EQ(disturbance.cutAfter, 7u);
    EXPECT_EQ(disturbance.code, 3010);
}

TEST(Script, ARowOfOneLineCountsItsCallsAlone) {
    Script script;
    EXPECT_TRUE(script.addRow("@10.0.0.2 BscUpLoad 2 fail 5"));
    EXPECT_TRUE(script.addRow("@COM1 BscUpLoad 1 crash"));
    EXPECT_EQ(script.next(Function::BscUpLoad, "10.0.0.1").kind, Disturbance::Kind::None);
    EXPECT_EQ(script.next(Function::BscUpLoad, "10.0.0.2").kind, Disturbance::Kind::None);
    EXPECT_EQ(script.next(Function::BscUpLoad).kind, Disturbance::Kind::None);
    EXPECT_EQ(script.next(Function::BscUpLoad, "10.0.0.2").code, 5);
    EXPECT_EQ(script.next(Function::BscUpLoad, "COM1").kind, Disturbance::Kind::Crash);
}

TEST(Script, HoldsDelaysToAMinute) {
    Script script;
    script.addRow("BscUpLoad 1+ slow 4294967295");
    script.addRow("BscUpLoad 1+ slow 4294967295");

    EXPECT_EQ(script.next(Function::BscUpLoad).delay, Script::longestDelay);
}

} // namespace
} // namespace vantrel::simulator
