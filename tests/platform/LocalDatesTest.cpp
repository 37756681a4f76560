#include "platform/LocalDates_posix.h"
#include "support/EnvironmentVariable.h"
#include "support/NamedRow.h"

#include <limits>
#include <random>

namespace vantrel {
namespace {

using namespace tests;

struct DateRow : NamedRow {
    const char* zone;
    std::time_t time;
    std::string_view expected;
};

// The rule of Central Europe, written out so that no time zone files are needed.
constexpr const char* summerTime = "CET-1CEST,M3.5.0,M10.5.0/3";

const DateRow rows[] = {
    {"Epoch", "UTC0", 0, "1970/01/01 00:00:00"},
    {"BeforeTheEpoch", "UTC0", -1, "1969/12/31 23:59:59"},
    {"LeadingZeros", "UTC0", 1772953509, "2026/03/08 07:05:09"},
    {"LastSecondOfADay", "UTC0", 1795219199, "2026/11/20 23:59:59"},
    {"FirstSecondOfADay", "UTC0", 1795219200, "2026/11/21 00:00:00"},
    {"EastOfGreenwich", "JST-9", 1795129509, "2026/11/20 08:05:09"},
    {"WestOfGreenwich", "EST5", 1795129509, "2026/11/19 18:05:09"},
    {"OddOffset", "IST-5:30", 1795129509, "2026/11/20 04:35:09"},
    {"BeforeSummerTime", summerTime, 1774745999, "2026/03/29 01:59:59"},
    {"AfterTheJumpForward", summerTime, 1774746000, "2026/03/29 03:00:00"},
    {"BeforeTheJumpBack", summerTime, 1792889999, "2026/10/25 02:59:59"},
    {"AfterTheJumpBack", summerTime, 1792890000, "2026/10/25 02:00:00"},
    {"LeapDay", "UTC0", 1835438400, "2028/02/29 12:00:00"},
    {"LastYearOfFourDigits", "UTC0", 253402300799, "9999/12/31 23:59:59"},
    {"FiveDigitYearIsUnknown", "UTC0", 253402300800, ""},
    {"FarFutureIsUnknown", "UTC0", std::numeric_limits<std::time_t>::max(), ""},
    {"FarPastIsUnknown", "UTC0", std::numeric_limits<std::time_t>::min(), ""},
};

class LocalDate : public testing::TestWithParam<DateRow> {};

TEST_P(LocalDate, IsFixedWidthText) {
    const EnvironmentVariable zone("TZ", GetParam().zone);
    EXPECT_EQ(LocalDates().text(GetParam().time).view(), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, LocalDate, testing::ValuesIn(rows), rowName);

class RememberedDays : public testing::TestWithParam<const char*> {};

/// One object for many times must tell the same as a fresh one for each.
TEST_P(RememberedDays, ChangeNothing) {
    const EnvironmentVariable zone("TZ", GetParam());
    LocalDates remembering;
    std::mt19937 random(10);
    std::uniform_int_distribution<std::time_t> week(0, 7 * 86400);
    for (const std::time_t start : {1774400000, 1792600000, 1795000000, -500000}) {
        for (int i = 0; i < 2000; ++i) {
            const std::time_t time = start + week(random);
            ASSERT_EQ(remembering.text(time), LocalDates().text(time)) << time;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Zones, RememberedDays,
                         testing::Values("UTC0", "JST-9", summerTime, "NST3:30NDT,M3.2.0,M11.1.0"));

} // namespace
} // namespace vantrel
