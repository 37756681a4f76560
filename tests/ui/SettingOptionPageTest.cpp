#include "ui/dialogs/SettingOptionPage.h"

#include "SettingWorld.h"

#include <array>

#include <wx/checkbox.h>

namespace vantrel::tests {
namespace {

/// The page of the controller's model and of the other options, in the dialog.
class SettingOptionPageTest : public SettingWorld {
  public:
    wxRadioButton& model(int index) {
        return control<wxRadioButton>(dialog(), "optCtrl" + std::to_string(index));
    }
};

TEST_P(SettingOptionPageTest, TheControllerModelsCarryTheirFirstLetters) {
    constexpr std::array names{"Borin(&B)",  "Aster(&A)",  "Cygna(&C)",
                               "Dorado(&D)", "Eridan(&E)", "Tellus(&T)"};
    for (std::size_t index = 0; index < names.size(); ++index) {
        EXPECT_EQ(model(int(index)).GetLabel(), names[index]);
        EXPECT_EQ(model(int(index)).GetValue(), index == 4) << names[index];
    }
}

TEST_P(SettingOptionPageTest, AModelAndOptionsAreTaken) {
    pick(model(1));
    tick(dialog(), "ChkRoboDir", false);
    for (const auto* const name : {"chkJBR", "chkHeadder", "chkIniFile"})
        tick(dialog(), name, true);
    EXPECT_TRUE(canApply());
    confirm();
    ASSERT_EQ(taken.size(), 1U);
    EXPECT_EQ(taken[0].Controler, 1);
    EXPECT_EQ(taken[0].SyncroRobotDir, 0);
    EXPECT_TRUE(taken[0].JBR && taken[0].Headder && taken[0].NoSave);
}

TEST_P(SettingOptionPageTest, EachCheckBoxShowsItsOwnSetting) {
    state.SyncroRobotDir = 0;
    state.NoSave = true;
    const auto ticked = [this](const char* name) {
        return control<wxCheckBox>(dialog(), name).GetValue();
    };
    EXPECT_TRUE(ticked("chkIniFile"));
    for (const auto* const name : {"ChkRoboDir", "chkJBR", "chkHeadder"})
        EXPECT_FALSE(ticked(name)) << name;
}

TEST_P(SettingOptionPageTest, TheOtherThreeAreOnWithoutIt) {
    state.JBR = state.Headder = true;
    const auto ticked = [this](const char* name) {
        return control<wxCheckBox>(dialog(), name).GetValue();
    };
    EXPECT_FALSE(ticked("chkIniFile"));
    for (const auto* const name : {"ChkRoboDir", "chkJBR", "chkHeadder"})
        EXPECT_TRUE(ticked(name)) << name;
}

TEST_P(SettingOptionPageTest, AModelThatIsNoneOfTheSixShowsNone) {
    state.Controler = 9;
    for (int index = 0; index < 6; ++index)
        EXPECT_FALSE(model(index).GetValue()) << index;
    confirm();
    EXPECT_EQ(taken.at(0).Controler, 9);
}

INSTANTIATE_TEST_SUITE_P(In, SettingOptionPageTest, bothLanguages, languageName);

} // namespace
} // namespace vantrel::tests
