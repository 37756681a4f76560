#include "ui/dialogs/CentredPosition.h"

#include "support/NamedRow.h"

namespace vantrel::tests {
namespace {

struct Row : NamedRow {
    PixelRectangle owner;
    PixelExtent dialog;
    PixelPosition place;
};

constexpr PixelRectangle screen{100, 50, 1000, 800};

class CentredPosition : public testing::TestWithParam<Row> {};

TEST_P(CentredPosition, IsOverTheOwnerAndOnTheScreen) {
    const auto& row = GetParam();
    const auto place = centredPosition(row.owner, row.dialog, screen);
    EXPECT_EQ(place.left, row.place.left);
    EXPECT_EQ(place.top, row.place.top);
}

INSTANTIATE_TEST_SUITE_P(
    Places, CentredPosition,
    testing::Values(Row{{"Inside"}, {200, 150, 600, 400}, {300, 200}, {350, 250}},
                    Row{{"LargerThanItsOwner"}, {500, 400, 100, 100}, {300, 200}, {400, 350}},
                    Row{{"OwnerBeyondTheRight"}, {1000, 150, 600, 400}, {300, 200}, {800, 250}},
                    Row{{"OwnerBelowTheBottom"}, {200, 800, 600, 400}, {300, 200}, {350, 650}},
                    Row{{"OwnerLeftAndAbove"}, {-500, -300, 600, 400}, {300, 200}, {100, 50}},
                    Row{{"LargerThanTheScreen"}, {200, 150, 600, 400}, {2000, 900}, {100, 50}}),
    rowName);

} // namespace
} // namespace vantrel::tests
