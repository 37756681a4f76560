#include "link/JobFile.h"

#include "support/NamedRow.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

struct NameRow : tests::NamedRow {
    std::string bytes;
    std::string inside;
};

class JobNameInsideTest : public testing::TestWithParam<NameRow> {};

TEST_P(JobNameInsideTest, IsTakenFromItsLine) {
    EXPECT_EQ(jobNameInside(GetParam().bytes).text, GetParam().inside);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, JobNameInsideTest,
    testing::Values(NameRow{"SecondLine", "/JOB\r\n//NAME WELD\r\n//POS\r\n", "WELD"},
                    NameRow{"FirstLine", "//NAME WELD", "WELD"},
                    NameRow{"LineFeeds", "/JOB\n//NAME WELD\n", "WELD"},
                    NameRow{"CarriageReturns", "/JOB\r//NAME WELD\r", "WELD"},
                    NameRow{"OuterBlanks", "//NAME   WELD \t\r\n", "WELD"},
                    NameRow{"Tab", "//NAME\tWELD", "WELD"},
                    NameRow{"FirstOfTwo", "//NAME A\n//NAME B\n", "A"},
                    NameRow{"EmptyThenFilled", "//NAME \n//NAME B\n", "B"},
                    NameRow{"Longer", "//NAMES WELD\n", ""},
                    NameRow{"NotAtTheStart", " //NAME WELD\n", ""},
                    NameRow{"None", "/JOB\nNOP\n", ""}, NameRow{"Empty", "", ""},
                    NameRow{"CodePage", "//NAME \x83\x5C\r\n", "\xE3\x82\xBD"},
                    NameRow{"Utf8", "//NAME \xE3\x82\xBD\r\n", "\xE3\x82\xBD"},
                    NameRow{"WithMark", "\xEF\xBB\xBF//NAME WELD\n", "WELD"}),
    tests::rowName);

TEST(JobFileTest, IsReadWholeFromTheDisk) {
    const tests::TemporaryFolder folder;
    const auto path =
        folder.write("A.JBI", "/JOB\r\n//NAME WELD\r\n" + std::string(5'000'000, 'x'));
    const auto file = JobFile::read(path);
    ASSERT_TRUE(file);
    EXPECT_EQ(file->name().text, "WELD");
}

TEST(JobFileTest, FailsWithTheSystemsReason) {
    const tests::TemporaryFolder folder;
    const auto file = JobFile::read(folder.path("none.JBI"));
    ASSERT_FALSE(file);
    EXPECT_FALSE(file.reason().empty());
}

TEST(JobFileTest, GarbageHasNoName) {
    EXPECT_EQ(jobNameInside(std::string("\0\0\xFF//NAME", 9)).text, "");
    EXPECT_EQ(jobNameInside(std::string(10'000'000, '/')).text, "");
}

} // namespace
} // namespace vantrel
