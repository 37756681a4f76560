#include "MainWindowTest.h"
#include "app/settings/SettingsFile.h"
#include "ui/CommandToolBar.h"
#include "ui/ControlPlaces.h"

#include <wx/display.h>
#include <wx/panel.h>
#include <wx/stattext.h>
#include <wx/statusbr.h>

namespace vantrel::tests {
namespace {

class CaptionRoomTest : public MainWindowTest {
  protected:
    CaptionRoomTest() { window.showAddress("255.255.255.255"); }

    void chooseFont(int size, bool bold) {
        state.FontSize = std::int16_t(size);
        state.FontBold = bold;
        window.applyFont();
        runEvents();
    }
    void expectRoomForTexts() {
        for (auto* label :
             {controls.lblPCFileType, controls.lblCtrlFileType, controls.lblFolder,
              controls.lblSerial, controls.lblRbtName, controls.lblIPaddr, controls.lblIPAddr2}) {
            if (!label->IsShown())
                continue;
            const wxSize text = label->GetTextExtent(label->GetLabelText());
            EXPECT_LE(text.x, label->GetSize().x) << label->GetLabel();
            EXPECT_LE(text.y, label->GetSize().y) << label->GetLabel();
        }
    }
};

INSTANTIATE_TEST_SUITE_P(Languages, CaptionRoomTest, bothLanguages, languageName);

TEST_P(CaptionRoomTest, LargerCaptionsAreNotCutOff) {
    for (int size = 6; size <= 16; ++size) {
        chooseFont(size, true);
        for (const auto mode : {TransferMode::Bsc, TransferMode::HispeedLink}) {
            window.showMode(modeLook(mode, messages));
            expectRoomForTexts();
        }
        saveScreenshot(window, "captions-" + language() + "-" + std::to_string(size));
    }
}

TEST_P(CaptionRoomTest, TheWindowGrowsWithItsCaptionsAndShrinksAgain) {
    const wxSize before = window.GetSize();
    const auto size = state.FontSize;
    const auto bold = state.FontBold;
    const auto changeOfSize = [&] { return window.GetSize() - before; };
    chooseFont(14, true);
    EXPECT_TRUE(waitFor([&] { return changeOfSize().x > 0 && changeOfSize().y > 0; }));
    chooseFont(size, bold);
    EXPECT_TRUE(waitFor(
        [&] { return std::abs(changeOfSize().x) <= 2 && std::abs(changeOfSize().y) <= 2; }));
}

TEST_P(CaptionRoomTest, ToolIconsAndTheStatusBarGrowWithTheCaptionsAndShrinkAgain) {
    const auto& bar = *controls.tlbMain;
    const auto statusHeight = [this] { return controls.stsFileInf->GetSize().y; };
    const int icons = bar.GetToolBitmapSize().y, tools = bar.GetSize().y, status = statusHeight();
    const auto size = state.FontSize;
    const auto bold = state.FontBold;
    chooseFont(18, true);
    EXPECT_GT(bar.GetToolBitmapSize().y, icons);
    EXPECT_TRUE(waitFor([&] { return bar.GetSize().y > tools; }));
    EXPECT_TRUE(
        waitFor([&] { return statusHeight() >= controls.stsFileInf->GetCharHeight() + 4; }));
    EXPECT_GT(statusHeight(), status);
    for (auto* const each : controls.toolBars())
        EXPECT_LE(each->GetBestSize().x, each->GetSize().x) << each->GetName();
    EXPECT_TRUE(waitFor([&] {
        return controls.pcHighlight->GetRect().GetBottom() < controls.surface->GetSize().y;
    })) << "the status bar covers nothing";
    saveScreenshot(window, "captions-" + language() + "-18");
    chooseFont(size, bold);
    EXPECT_EQ(bar.GetToolBitmapSize().y, icons);
    EXPECT_TRUE(waitFor([&] { return bar.GetSize().y == tools; }));
}

TEST_P(CaptionRoomTest, WhatIsStoredStaysTheSame) {
    for (const int size : {12, 9, 11})
        chooseFont(size, true);
    const auto placement = window.placement();
    EXPECT_EQ(placement.width, 9720);
    EXPECT_EQ(placement.height, 7000);
    EXPECT_NEAR(placement.columnWidths[0], 1400, 15);
}

TEST_P(CaptionRoomTest, AnEnlargedWindowIsPlacedWithinItsScreenAndKeepsItsPlace) {
    chooseFont(14, true);
    window.place({600, 600, 12600, 8400, 1650, 800, 2400, 0});
    const wxRect screen = wxDisplay(&window).GetClientArea();
    EXPECT_TRUE(waitFor([&] {
        return window.GetSize().x <= screen.width && window.GetSize().x > screen.width / 2 &&
               screen.Contains(window.GetRect());
    })) << window.GetRect().x
        << ' ' << window.GetRect().width;
    EXPECT_EQ(window.placement().left, 600);
    EXPECT_EQ(window.placement().width, 12600);
}

TEST_P(CaptionRoomTest, TheWindowStaysOnItsScreen) {
    chooseFont(24, true);
    const wxRect screen = wxDisplay(&window).GetClientArea();
    EXPECT_LE(window.GetSize().x, screen.width);
    EXPECT_LE(window.GetSize().y, screen.height);
    EXPECT_LE(window.GetMinSize().x, screen.width);
    EXPECT_LE(window.GetMinSize().y, screen.height);
}

} // namespace
} // namespace vantrel::tests
