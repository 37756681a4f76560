#include "console/Report.h"

#include "base/Text.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

class ReportTest : public testing::Test {
  protected:
    Report report(bool json) {
        return Report([this](std::string_view text) { output_ += text; },
                      [this](std::string_view text) { messages_ += text; }, json);
    }

    std::string output_, messages_;
};

TEST_F(ReportTest, ALineHasItsCellsPartedByTabs) {
    report(false).line({"LINE1", "MAIN.JBI"}, "file", {{"name", "MAIN.JBI"}});
    EXPECT_EQ(output_, "LINE1\tMAIN.JBI\n");
}

TEST_F(ReportTest, WithJsonALineIsAnObjectThatSaysItsForm) {
    report(true).line({"x"}, "file",
                      {{"name", "A \"B\""}, {"done", true}, {"size", std::int64_t{12}}});
    EXPECT_EQ(output_, "{\"vantrelctl\":1,\"type\":\"file\",\"name\":\"A \\\"B\\\"\",\"done\":true,"
                       "\"size\":12}\n");
}

TEST_F(ReportTest, ObjectsAreForJsonOnly) {
    report(false).object("end", {{"exit", std::int64_t{0}}});
    EXPECT_EQ(output_, "");
}

TEST_F(ReportTest, JsonIsUtf8WhateverTheNameHolds) {
    report(true).line({}, "file", {{"name", std::string("A\xFF\x80\n\x1B[2J")}});
    EXPECT_TRUE(isValidUtf8(output_));
    EXPECT_EQ(output_.find('\n'), output_.size() - 1);
    EXPECT_EQ(output_.find('\x1B'), output_.npos);
}

TEST_F(ReportTest, APlainLineShowsNoControlCharacters) {
    report(false).line({"A\x1B[2J\tB\nC", "D"}, "file", {});
    EXPECT_EQ(output_, "A\uFFFD[2J\uFFFDB\uFFFDC\tD\n");
}

TEST_F(ReportTest, MessagesGoTheirOwnWayLineByLine) {
    report(false).message("first\nsecond\x07");
    EXPECT_EQ(messages_, "first\nsecond\uFFFD\n");
    EXPECT_EQ(output_, "");
}

TEST_F(ReportTest, WithJsonAMessageIsAnObjectAsWell) {
    report(true).message("first\nsecond");
    EXPECT_EQ(messages_, "first\nsecond\n");
    EXPECT_EQ(output_, "{\"vantrelctl\":1,\"type\":\"message\",\"text\":\"first\\nsecond\"}\n");
}

} // namespace
} // namespace vantrel
