#include "lang/Captions.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>
#include <tuple>

namespace vantrel {
namespace {

using enum Menu;
using testing::ElementsAre;

std::vector<std::int32_t> messagesOf(Menu menu) {
    std::vector<std::int32_t> found;
    for (const auto& row : menuCaptions())
        if (row.item.menu == menu)
            found.push_back(row.message);
    return found;
}

TEST(MenuCaptions, FollowTheMenuBarInItsOrder) {
    std::vector<std::int32_t> bar;
    for (const auto& row : menuCaptions())
        if (row.item.menu < mnuRightFile)
            bar.push_back(row.message);
    EXPECT_THAT(bar, ElementsAre(101, 102, 103, 104, 105, 106, 107, 108, 109, 110, 111, 112, 113,
                                 130, 131, 132, 114, 115, 116, 117, 118, 119, 120, 121, 122, 123,
                                 124, 125, 126, 128, 129));
}

TEST(MenuCaptions, PopUpRepeatsTheMenuBarsTexts) {
    EXPECT_THAT(messagesOf(mnuRightFile), ElementsAre(102, 103, 104, 105));
    EXPECT_THAT(messagesOf(mnuFileDispMain), ElementsAre(109));
    EXPECT_EQ(messagesOf(mnuFileDisp), messagesOf(mnuDisp));
    EXPECT_THAT(messagesOf(mnuSortIconMain), ElementsAre(114));
    EXPECT_EQ(messagesOf(mnuSortIcon), messagesOf(mnuSort));
    EXPECT_THAT(messagesOf(mnuRightRefresh), ElementsAre(118));
}

TEST(MenuCaptions, AreFoundByMenuAndIndex) {
    EXPECT_EQ(menuMessage({mnuFileMain}), 101);
    EXPECT_EQ(menuMessage({mnuFile, 0}), 102);
    EXPECT_EQ(menuMessage({mnuFile, 5}), 106);
    EXPECT_EQ(menuMessage({mnuFile, 6}), 107);
    EXPECT_EQ(menuMessage({mnuOpt, 2}), 121);
    EXPECT_EQ(menuMessage({mnuOpt, 7}), 125);
    EXPECT_EQ(menuMessage({mnuDisp, 3}), 113);
}

TEST(MenuCaptions, SeparatorsAndUnknownEntriesHaveNone) {
    for (const MenuItem item : {MenuItem{mnuFile, 4}, MenuItem{mnuFile, 7}, MenuItem{mnuOpt, 1},
                                MenuItem{mnuOpt, 6}, MenuItem{mnuSort, 3}, MenuItem{mnuDisp, -1}})
        EXPECT_EQ(menuMessage(item), std::nullopt);
}

TEST(MenuCaptions, NameEachEntryOnce) {
    std::set<std::pair<Menu, int>> items;
    for (const auto& row : menuCaptions())
        EXPECT_TRUE(items.emplace(row.item.menu, row.item.index).second) << row.message;
}

struct Button {
    const char* key;
    std::int32_t message;
    bool released;
};

class ToolTips : public testing::TestWithParam<Button> {};

TEST_P(ToolTips, GoByTheButtonsKey) {
    EXPECT_EQ(toolTipMessage(GetParam().key), GetParam().message);
    const auto row = std::ranges::find(toolTips(), GetParam().key, &ToolTip::key);
    ASSERT_NE(row, toolTips().end());
    EXPECT_EQ(row->released, GetParam().released);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, ToolTips,
    testing::Values(Button{"FileCopy", 140, true}, Button{"FileMove", 141, true},
                    Button{"FileDelete", 142, true}, Button{"AllSelect", 143, true},
                    Button{"Refresh", 145, true}, Button{"modeHiSpeed", 190, false},
                    Button{"modeBsc", 191, false}, Button{"DispBig", 146, false},
                    Button{"DispSmall", 147, false}, Button{"DispList", 148, false},
                    Button{"DispDetail", 149, false}, Button{"FileDisp", 150, false},
                    Button{"UpFolder", 151, false}, Button{"Print", 152, false},
                    Button{"PCButton", 214, false}, Button{"CTRLButton", 215, false}),
    [](const auto& row) { return row.param.key; });

TEST(ToolTipTable, HoldsTheSixteenKeysOnly) {
    EXPECT_EQ(toolTips().size(), 16U);
    EXPECT_EQ(toolTipMessage("filecopy"), std::nullopt);
    EXPECT_EQ(toolTipMessage(""), std::nullopt);
}

TEST(ControlCaptions, GoByNameAndIndex) {
    const std::tuple<const char*, int, std::int32_t> expected[] = {
        {"fraPC", 0, 153},   {"fraCtrl", 0, 155},    {"lblDisp", 0, 156},
        {"lblDisp", 1, 157}, {"lblDisp", 2, 157},    {"lblDisp", 3, 158},
        {"lblDisp", 4, 159}, {"lblRbtName", 0, 230}, {"lblIPaddr", 0, 192},
    };
    for (const auto& [control, index, message] : expected)
        EXPECT_EQ(controlMessage(control, index), message) << control << index;
    EXPECT_EQ(controlMessage("lblDisp", 5), std::nullopt);
    EXPECT_EQ(controlMessage("lsvPC"), std::nullopt);
}

TEST(ColumnCaptions, AreNameSizeAndDate) {
    const auto columns = columnMessages();
    EXPECT_THAT(std::vector(columns.begin(), columns.end()), ElementsAre(211, 212, 213));
}

} // namespace
} // namespace vantrel
