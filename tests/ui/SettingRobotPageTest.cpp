#include "ui/dialogs/SettingRobotPage.h"

#include "SettingWorld.h"

#include <array>

#include <gmock/gmock.h>
#include <wx/menu.h>
#include <wx/uiaction.h>

namespace vantrel::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::array addressBoxes{"txtIP1", "txtIP2", "txtIP3", "txtIP4"};

/// The page of the robots and their addresses, in the dialog.
class SettingRobotPageTest : public SettingWorld {};

TEST_P(SettingRobotPageTest, ARobotIsShownWhenItIsClickedAndThatIsNoEdit) {
    pick(robots(), 1);
    EXPECT_EQ(textOf("txtRbtName"), "LINE2");
    for (const auto* const name : addressBoxes)
        EXPECT_EQ(textOf(name), "");
    EXPECT_EQ(labelOf(dialog(), "lblDirName"), disk.path("gone"));
    EXPECT_EQ(edited().robots().selectedRobot(), state.RobotList[1]);
    EXPECT_FALSE(canApply());
}

TEST_P(SettingRobotPageTest, ANameIsEditedInPlace) {
    type(dialog(), "txtRbtName", "溶接１");
    EXPECT_THAT(robotNames(), ElementsAre("溶接１", "LINE2"));
    EXPECT_EQ(robots().GetSelection(), 0);
    EXPECT_EQ(edited().robots().selectedRobot().Name, "溶接１");
    EXPECT_TRUE(canApply());
}

TEST_P(SettingRobotPageTest, RobotsAreInsertedOnBothSidesAndDeleted) {
    whileModal(dialog(), [&] {
        click(dialog(), "cmdAdd0");
        EXPECT_THAT(robotNames(), ElementsAre("LINE1 WELD", messages.getMessage(193), "LINE2"));
        EXPECT_EQ(robots().GetSelection(), 1);
        EXPECT_TRUE(hasFocus("txtRbtName"));
        EXPECT_TRUE(canApply());
        type(dialog(), "txtRbtName", "MIDDLE");
        pick(robots(), 0);
        click(dialog(), "cmdAdd1");
        EXPECT_THAT(robotNames(),
                    ElementsAre(messages.getMessage(193), "LINE1 WELD", "MIDDLE", "LINE2"));
        EXPECT_EQ(robots().GetSelection(), 0);
        click(dialog(), "cmdDel");
        EXPECT_THAT(robotNames(), ElementsAre("LINE1 WELD", "MIDDLE", "LINE2"));
        EXPECT_EQ(robots().GetSelection(), 0);
        click(dialog(), "cmdCancel");
    });
}

TEST_P(SettingRobotPageTest, TheRightButtonSelectsTheRobotUnderItForItsMenu) {
    wxMenu* opened = nullptr;
    robots().Bind(wxEVT_MENU_OPEN, [&](wxMenuEvent& event) {
        opened = event.GetMenu();
        EXPECT_EQ(robots().GetSelection(), 1);
        EXPECT_EQ(opened->FindItemByPosition(0)->GetItemLabel().utf8_string(),
                  messages.getMessage(6491));
        robots().CallAfter([menu = opened] { closeOpenMenu(*menu); });
        event.Skip();
    });
    whileModal(dialog(), [&] {
        wxPoint second(20, 1);
        while (robots().HitTest(second) != 1 && second.y < 200)
            ++second.y;
        second.y += 3;
        wxUIActionSimulator mouse;
        mouse.MouseMove(robots().ClientToScreen(second));
        awaitDisplay();
        mouse.MouseClick(wxMOUSE_BTN_RIGHT);
        EXPECT_TRUE(waitFor([&] { return opened; }));
        outwaitToolkit();
        waitFor([] { return !wxGetMouseState().RightIsDown(); });
        EXPECT_EQ(textOf("txtRbtName"), "LINE2");
        EXPECT_FALSE(canApply()) << "it is no edit";
        click(dialog(), "cmdCancel");
    });
}

TEST_P(SettingRobotPageTest, WithoutARobotThereIsNothingToEdit) {
    click(dialog(), "cmdDel");
    click(dialog(), "cmdDel");
    EXPECT_THAT(robotNames(), IsEmpty());
    for (const auto* const name : {"txtRbtName", "txtIP1", "txtIP4", "cmdDel", "Dir1", "Drive1"})
        EXPECT_FALSE(control<wxWindow>(dialog(), name).IsEnabled()) << name;
    click(dialog(), "cmdAdd1");
    EXPECT_THAT(robotNames(), ElementsAre(messages.getMessage(193)));
    EXPECT_TRUE(box("txtRbtName").IsEnabled());
}

TEST_P(SettingRobotPageTest, AnAddressBoxKeepsNumbersOnly) {
    type(dialog(), "txtIP1", "1x");
    EXPECT_EQ(textOf("txtIP1"), "");
    EXPECT_EQ(edited().robots().selectedRobot().IPaddr, ".168.0.11");
    type(dialog(), "txtIP1", "10");
    EXPECT_EQ(edited().robots().selectedRobot().IPaddr, "10.168.0.11");
    EXPECT_TRUE(canApply());
}

TEST_P(SettingRobotPageTest, TypedPointsLeadThroughTheAddressAndStayOutOfIt) {
    whileModal(dialog(), [&] {
        pick(robots(), 1);
        box("txtIP1").SetFocus();
        ASSERT_TRUE(waitFor([&] { return dialog().IsActive() && box("txtIP1").HasFocus(); }));
        wxUIActionSimulator keyboard;
        keyboard.Text("192.168.");
        ASSERT_TRUE(hasFocus("txtIP3"));
        keyboard.Text("7");
        ASSERT_TRUE(waitFor([&] { return textOf("txtIP3") == "7"; }));
        pressKey(WXK_NUMPAD_DECIMAL);
        ASSERT_TRUE(hasFocus("txtIP4"));
        keyboard.Text("8");
        ASSERT_TRUE(waitFor([&] { return textOf("txtIP4") == "8"; }));
        pressKey(WXK_RETURN);
        EXPECT_TRUE(hasFocus("Drive1"));
        EXPECT_TRUE(isOpen(dialog()));
        click(dialog(), "cmdCancel");
    });
    EXPECT_EQ(edited().robots().selectedRobot().IPaddr, "192.168.7.8");
    EXPECT_EQ(edited().robots().selectedRobot().IP1, "192");
    EXPECT_THAT(taken, IsEmpty());
}

TEST_P(SettingRobotPageTest, APointThatArrivesWithTheTextMovesOnToo) {
    whileModal(dialog(), [&] {
        box("txtIP2").SetFocus();
        type(dialog(), "txtIP2", "7.");
        EXPECT_EQ(textOf("txtIP2"), "7");
        EXPECT_TRUE(hasFocus("txtIP3"));
        type(dialog(), "txtIP4", "9.");
        EXPECT_EQ(textOf("txtIP4"), "9");
        EXPECT_TRUE(hasFocus("txtIP3"));
        click(dialog(), "cmdCancel");
    });
}

TEST_P(SettingRobotPageTest, ThePointKeysAreSwallowedButInTheLastBox) {
    for (const int key : {int('.'), int(WXK_NUMPAD_DECIMAL)}) {
        for (const auto* const name : {"txtIP1", "txtIP2", "txtIP3"})
            EXPECT_TRUE(swallows(box(name), key)) << name;
        EXPECT_FALSE(swallows(box("txtIP4"), key));
        EXPECT_FALSE(swallows(box("txtRbtName"), key));
    }
}

TEST_P(SettingRobotPageTest, ADoubleClickGoesToTheName) {
    whileModal(dialog(), [&] {
        pick(robots(), 1);
        pick(robots(), 1, wxEVT_LISTBOX_DCLICK);
        EXPECT_TRUE(hasFocus("txtRbtName"));
        click(dialog(), "cmdCancel");
    });
}

TEST_P(SettingRobotPageTest, AnAddressBoxThatGetsTheFocusIsSelectedWhole) {
    whileModal(dialog(), [&] {
        box("txtIP2").SetFocus();
        EXPECT_TRUE(waitFor([&] { return box("txtIP2").GetStringSelection() == "168"; }));
        click(dialog(), "cmdCancel");
    });
}

INSTANTIATE_TEST_SUITE_P(In, SettingRobotPageTest, bothLanguages, languageName);

} // namespace
} // namespace vantrel::tests
