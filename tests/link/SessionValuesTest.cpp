#include "link/SessionOperations.h"
#include "support/NamedRow.h"

#include <limits>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

using Text = std::string;

struct NumberRow : tests::NamedRow {
    SessionValue value;
    std::optional<std::int32_t> integer32;
    std::optional<std::int16_t> integer16;
};

class SessionNumberTest : public testing::TestWithParam<NumberRow> {};

TEST_P(SessionNumberTest, ConvertsWithinItsRange) {
    EXPECT_EQ(integer32From(GetParam().value), GetParam().integer32);
    EXPECT_EQ(integer16From(GetParam().value), GetParam().integer16);
}

INSTANTIATE_TEST_SUITE_P(Rows, SessionNumberTest,
                         testing::Values(NumberRow{"Number", 7.0, 7, std::int16_t{7}},
                                         NumberRow{"Text", Text("7"), 7, std::int16_t{7}},
                                         NumberRow{"TextWithRest", Text("7x"), {}, {}},
                                         NumberRow{"Words", Text("seven"), {}, {}},
                                         NumberRow{"EmptyText", Text(""), {}, {}},
                                         NumberRow{"Nothing", SessionValue(), {}, {}},
                                         NumberRow{"HalfToEven", 2.5, 2, std::int16_t{2}},
                                         NumberRow{"Beyond16", 40000.0, 40000, {}},
                                         NumberRow{"Below16", -32769.0, -32769, {}},
                                         NumberRow{"Beyond32", 3e9, {}, {}}),
                         tests::rowName);

TEST(SessionValuesTest, TruthValues) {
    EXPECT_EQ(flagFrom(0.0), false);
    EXPECT_EQ(flagFrom(-1.0), true);
    EXPECT_EQ(flagFrom(Text("TRUE")), true);
    EXPECT_EQ(flagFrom(Text("False")), false);
    EXPECT_EQ(flagFrom(Text("1")), true);
    EXPECT_EQ(flagFrom(Text(" true\t")), true) << "as in the settings file";
    EXPECT_EQ(flagFrom(Text("maybe")), std::nullopt);
    EXPECT_EQ(flagFrom(std::numeric_limits<double>::quiet_NaN()), std::nullopt);
    EXPECT_EQ(toSessionValue(true), SessionValue(1.0));
}

TEST(SessionValuesTest, Texts) {
    EXPECT_EQ(textFrom(Text("a")), "a");
    EXPECT_EQ(textFrom(12.5), "12.5");
    EXPECT_EQ(textFrom(SessionValue()), "");
    EXPECT_EQ(toSessionValue(Text("a")), SessionValue(Text("a")));
    EXPECT_EQ(toSessionValue(std::int32_t{5}), SessionValue(5.0));
}

} // namespace
} // namespace vantrel
