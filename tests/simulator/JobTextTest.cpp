#include "simulator/ControllerFileName.h"
#include "simulator/ResultCodes.h"

#include <ostream>

#include <gtest/gtest.h>

namespace vantrel::simulator {
namespace {

struct JobCase {
    const char* name;
    std::string bytes;
    std::string job; ///< empty: refused
    std::int16_t code = code::done;
};

void PrintTo(const JobCase& each, std::ostream* out) {
    *out << each.bytes.substr(0, 60);
}

class JobText : public testing::TestWithParam<JobCase> {};

TEST_P(JobText, NamesItsJobOrIsRefused) {
    const auto job = jobNameIn(GetParam().bytes);

    ASSERT_EQ(static_cast<bool>(job), !GetParam().job.empty());
    if (job)
        EXPECT_EQ(*job, GetParam().job);
    else
        EXPECT_EQ(job.code(), GetParam().code);
}

const JobCase jobCases[] = {
    {"Usual", "/JOB\r\n//NAME WELD1\r\n/STEPS\r\n", "WELD1"},
    {"OtherLineEnds", "/JOB\n//NAME WELD1\n", "WELD1"},
    {"OldLineEnds", "/JOB\r//NAME WELD1\rx", "WELD1"},
    {"NoLineEnd", "//NAME WELD1", "WELD1"},
    {"OuterBlanks", "//NAME \t WELD1  \r\n", "WELD1"},
    {"LowerCase", "//NAME weld1\r\n", "WELD1"},
    {"FirstWins", "//NAME A\r\n//NAME B\r\n", "A"},
    {"CodePage", "//NAME \x83\x5c\x83\x65\r\n", "ソテ"},
    {"HalfWidthWholeFileDecides", "//NAME \xc2\xbf\r\n//TITLE \x83\x65\r\n", "ﾂｿ"},
    {"Utf8", "//NAME αweld\r\n", "αWELD"},
    {"Utf8WithMark", "\xef\xbb\xbf//NAME WELD1\r\n", "WELD1"},
    {"AfterSteps", "/JOB\r\nbegin\r\n//NAME WELD1\r\n", "WELD1"},
    {"NulBytesElsewhere", std::string("\0\0\r\n//NAME A\r\n\0", 14), "A"},
    {"LongLine", std::string(10'000'000, 'x') + "\r\n//NAME A\r\n", "A"},
    {"Empty", "", "", code::formatError},
    {"Utf16", std::string("\xff\xfe/\0/\0N\0", 8), "", code::formatError},
    {"NoLine", "/JOB\r\nbegin\r\n", "", code::headerMissing},
    {"OtherCase", "//name WELD1\r\n", "", code::headerMissing},
    {"LongerWord", "//NAMES WELD1\r\n", "", code::headerMissing},
    {"NotAtTheStart", " //NAME WELD1\r\n", "", code::headerMissing},
    {"WordAlone", "//NAME", "", code::headerMissing},
    {"NoName", "//NAME  \r\n", "", code::headerMissing},
    {"NoNameThenOne", "//NAME  \r\n//NAME A\r\n", "A"},
    {"Path", "//NAME ../../WELD1\r\n", "", code::nameInvalid},
    {"Absolute", "//NAME /etc/WELD1\r\n", "", code::nameInvalid},
    {"Device", "//NAME NUL\r\n", "", code::nameInvalid},
    {"NulInName", std::string("//NAME A\0B\r\n", 12), "", code::nameInvalid},
    {"TooLong", "//NAME " + std::string(252, 'A') + "\r\n", "", code::nameInvalid},
};

INSTANTIATE_TEST_SUITE_P(Jobs, JobText, testing::ValuesIn(jobCases),
                         [](const auto& each) { return std::string(each.param.name); });

} // namespace
} // namespace vantrel::simulator
