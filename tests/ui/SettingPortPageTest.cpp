#include "ui/dialogs/SettingPortPage.h"

#include "SettingWorld.h"

#include <array>

#include <wx/spinbutt.h>

namespace vantrel::tests {
namespace {

/// The page of the serial line, in the dialog.
class SettingPortPageTest : public SettingWorld {
  public:
    wxSpinButton& upDown() { return control<wxSpinButton>(dialog(), "udcPort"); }
};

TEST_P(SettingPortPageTest, ThePortIsSteppedWithinItsRange) {
    EXPECT_EQ(textOf("txtPort"), "COM1");
    EXPECT_FALSE(box("txtPort").IsEditable());
    auto& port = upDown();
    EXPECT_EQ(port.GetMin(), 1);
    EXPECT_EQ(port.GetMax(), 256);
    wxSpinEvent step(wxEVT_SPIN, port.GetId());
    step.SetEventObject(&port);
    step.SetPosition(12);
    port.HandleWindowEvent(step);
    EXPECT_EQ(textOf("txtPort"), "COM12");
    EXPECT_TRUE(canApply());
    EXPECT_TRUE(swallows(box("txtPort"), WXK_UP));
    EXPECT_EQ(textOf("txtPort"), "COM13");
    EXPECT_EQ(port.GetValue(), 13);
    EXPECT_TRUE(swallows(box("txtPort"), WXK_DOWN));
    EXPECT_EQ(textOf("txtPort"), "COM12");
}

TEST_P(SettingPortPageTest, ThePortBoxIsOneLineHighBesideATallerUpDown) {
    EXPECT_EQ(textOf("txtPort"), "COM1");
    EXPECT_LE(box("txtPort").GetSize().y, box("txtPort").GetBestSize().y);
}

TEST_P(SettingPortPageTest, AStoredPortOutsideTheRangeIsShownAndKeptUntilItIsStepped) {
    state.Port = 300;
    EXPECT_EQ(textOf("txtPort"), "COM300");
    EXPECT_EQ(upDown().GetValue(), 300);
    confirm();
    EXPECT_EQ(taken.at(0).Port, 300);
    swallows(box("txtPort"), WXK_DOWN);
    EXPECT_EQ(textOf("txtPort"), "COM256");
    EXPECT_EQ(upDown().GetMax(), 256);
}

TEST_P(SettingPortPageTest, TheSerialListsShowTheStoredValues) {
    state.Baudrate = 38400;
    state.Parity = 1;
    state.DataLen = 9;
    state.StopBit = 2;
    const auto shown = [this](const char* name) {
        return choice(name).GetStringSelection().utf8_string();
    };
    EXPECT_EQ(shown("cmbBaudrate"), "9600");
    EXPECT_EQ(shown("cmbParity"), "ODD");
    EXPECT_EQ(shown("cmbDataLen"), "");
    EXPECT_EQ(shown("cmbStopBit"), "2");
    EXPECT_FALSE(canApply());
    confirm();
    ASSERT_EQ(taken.size(), 1U);
    EXPECT_EQ(taken[0].Baudrate, 9600);
    EXPECT_EQ(taken[0].DataLen, 9);
}

TEST_P(SettingPortPageTest, EachSerialListIsItsOwnValue) {
    pick(choice("cmbBaudrate"), 0);
    pick(choice("cmbParity"), 0);
    pick(choice("cmbDataLen"), 0);
    pick(choice("cmbStopBit"), 1);
    confirm();
    ASSERT_EQ(taken.size(), 1U);
    EXPECT_EQ(taken[0].Baudrate, 1200);
    EXPECT_EQ(taken[0].Parity, 0);
    EXPECT_EQ(taken[0].DataLen, 7);
    EXPECT_EQ(taken[0].StopBit, 1);
}

TEST_P(SettingPortPageTest, TheDefaultsAreRestoredWithTheUpDown) {
    state.Port = 8;
    state.Baudrate = 1200;
    state.Parity = 0;
    state.DataLen = 7;
    state.StopBit = 2;
    pages().SetSelection(1);
    click(dialog(), "cmdReturn");
    EXPECT_EQ(textOf("txtPort"), "COM1");
    EXPECT_EQ(upDown().GetValue(), 1);
    const std::array<std::pair<const char*, const char*>, 4> expected{
        {{"cmbBaudrate", "9600"}, {"cmbParity", "EVEN"}, {"cmbDataLen", "8"}, {"cmbStopBit", "1"}}};
    for (const auto& [name, text] : expected)
        EXPECT_EQ(choice(name).GetStringSelection(), text) << name;
    EXPECT_TRUE(canApply());
}

INSTANTIATE_TEST_SUITE_P(In, SettingPortPageTest, bothLanguages, languageName);

} // namespace
} // namespace vantrel::tests
