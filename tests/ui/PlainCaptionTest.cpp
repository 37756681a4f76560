#include "support/NamedRow.h"
#include "ui/look/Captions.h"

namespace vantrel::tests {
namespace {

struct Row : NamedRow {
    const char* caption;
    const char* plain;
};

class PlainCaption : public testing::TestWithParam<Row> {};

TEST_P(PlainCaption, IsTheCaptionWithoutItsKey) {
    EXPECT_EQ(withoutMnemonic(GetParam().caption), GetParam().plain);
}

INSTANTIATE_TEST_SUITE_P(Captions, PlainCaption,
                         testing::Values(Row{{"Empty"}, "", ""}, Row{{"None"}, "Close", "Close"},
                                         Row{{"Leading"}, "&About", "About"},
                                         Row{{"Inner"}, "E&xit", "Exit"},
                                         Row{{"RealAmpersand"}, "A && B", "A & B"},
                                         Row{{"Bracketed"}, "終了(&X)", "終了"},
                                         Row{{"BracketedWithPoints"}, "設定(&S)...", "設定"},
                                         Row{{"OtherBrackets"}, "Font (8)", "Font (8)"},
                                         Row{{"UnfinishedBracket"}, "Font(&X", "Font(X"}),
                         rowName);

} // namespace
} // namespace vantrel::tests
