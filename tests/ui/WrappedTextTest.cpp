#include "ui/look/WrappedText.h"

#include "base/Text.h"
#include "support/NamedRow.h"

namespace vantrel::tests {
namespace {

/// Every character is one unit wide.
int characters(std::string_view text) {
    return int(codePoints(text).size());
}

struct Row : NamedRow {
    const char* text;
    const char* wrapped;
};

class WrappedText : public testing::TestWithParam<Row> {};

TEST_P(WrappedText, BreaksWhereTheScriptAllowsIt) {
    EXPECT_EQ(wrappedText(GetParam().text, 10, characters), GetParam().wrapped);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, WrappedText,
    testing::Values(
        Row{{"Empty"}, "", ""}, Row{{"Short"}, "short text", "short text"},
        Row{{"AtABlank"}, "FOO.JBI already there", "FOO.JBI\nalready\nthere"},
        Row{{"NameLongerThanALine"},
            "ABCDEFGHIJKLMNOPQRSTUVWXYZ",
            "ABCDEFGHIJ\nKLMNOPQRST\nUVWXYZ"},
        Row{{"AfterAKana"}, "FOO は既に存在します。上書き", "FOO は既に存在し\nます。上書き"},
        Row{{"OwnLineEndsStay"}, "one\ntwo", "one\ntwo"},
        Row{{"EmptyLineStays"}, "one\n\ntwo", "one\n\ntwo"}),
    rowName);

TEST(WrappedTextWithoutRoom, StillEnds) {
    EXPECT_EQ(wrappedText("abc", 0, characters), "a\nb\nc");
}

TEST(WrappedTextOfALongName, TakesFewMeasurements) {
    int measured = 0;
    const std::string name(10000, 'x');
    wrappedText(name, 50, [&measured](std::string_view text) {
        ++measured;
        return characters(text);
    });
    EXPECT_LT(measured, 5000);
}

} // namespace
} // namespace vantrel::tests
