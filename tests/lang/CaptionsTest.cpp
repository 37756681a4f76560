#include "lang/Captions.h"

#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using enum Menu;
using testing::ElementsAre;
using testing::Pair;

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

TEST(ToolTips, GoByTheButtonsKey) {
    std::vector<std::pair<std::string, std::int32_t>> found;
    for (const auto& row : toolTips())
        found.emplace_back(row.key, row.message);
    EXPECT_THAT(found, testing::UnorderedElementsAre(
                           Pair("FileCopy", 140), Pair("FileMove", 141), Pair("FileDelete", 142),
                           Pair("AllSelect", 143), Pair("Refresh", 145), Pair("modeHiSpeed", 190),
                           Pair("modeBsc", 191), Pair("DispBig", 146), Pair("DispSmall", 147),
                           Pair("DispList", 148), Pair("DispDetail", 149), Pair("FileDisp", 150),
                           Pair("UpFolder", 151), Pair("Print", 152), Pair("PCButton", 214),
                           Pair("CTRLButton", 215)));
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
