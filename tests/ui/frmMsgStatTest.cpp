#include "ui/dialogs/frmMsgStat.h"

#include "DialogTest.h"
#include "ui/look/WindowHolder.h"

#include <wx/frame.h>
#include <wx/gauge.h>

namespace vantrel::tests {
namespace {

class frmMsgStatTest : public DialogInLanguage {
  public:
    frmMsgStatTest() {
        panel.setTitle(messages.getMessage(7));
        panel.setCancelCaption(messages.resourceMessage(33));
    }

    void yieldOnce() {
        ++yields;
        runEvents();
    }
    std::string message() {
        return control<wxStaticText>(*window, "lblMsg").GetLabelText().utf8_string();
    }

    int yields = 0;
    ProgressPanel panel;
    WindowHolder<frmMsgStat> window{
        new frmMsgStat(panel, messages, state, [this] { yieldOnce(); })};
};

TEST_P(frmMsgStatTest, IsLoadedHidden) {
    EXPECT_FALSE(window->IsShown());
    EXPECT_EQ(window->GetTitle(), "Snappy");
}

TEST_P(frmMsgStatTest, ShowsWhatThePanelHolds) {
    panel.show(messages.resourceMessage(4));
    panel.step(messages.resourceMessage(4) + "PALLET_LAYER_07.JBI", 2, 5,
               messages.getMessage(51) + "3" + messages.getMessage(52) + "5   " +
                   messages.getMessage(50));
    EXPECT_TRUE(window->IsShown());
    EXPECT_EQ(window->GetTitle().utf8_string(), messages.getMessage(7));
    EXPECT_EQ(message(), messages.resourceMessage(4) + "PALLET_LAYER_07.JBI");
    EXPECT_EQ(labelOf(*window, "cmdCancel"), messages.resourceMessage(33));
    const auto& bar = control<wxGauge>(*window, "pgbInf");
    EXPECT_EQ(bar.GetRange(), 5);
    EXPECT_EQ(bar.GetValue(), 2);
    EXPECT_EQ(labelOf(*window, "lblPace"), "");
    panel.setPlace("→ LINE1 WELD (192.168.0.11)");
    panel.setPace([this](int item, int count, std::chrono::milliseconds) {
        EXPECT_EQ(item, 2);
        EXPECT_EQ(count, 5);
        const std::string joint = messages.getMessage(409);
        return messages.getMessageWithInsertion(6549, "1048576", "2097152 KB") + joint +
               messages.getMessageWithInsertion(6552, "120") + joint +
               messages.getMessageWithInsertion(6551, "2:00:35");
    });
    panel.showAgain();
    EXPECT_FALSE(panel.pace().empty());
    EXPECT_EQ(labelOf(*window, "lblPace"), panel.pace());
    EXPECT_GT(control<wxStaticText>(*window, "lblPace").GetPosition().y,
              control<wxStaticText>(*window, "lblPlace").GetPosition().y);
    const auto& line = control<wxStaticText>(*window, "lblPace");
    EXPECT_LE(line.GetTextExtent(line.GetLabelText()).x, line.GetClientSize().x)
        << "shortened in its middle";
    expectNothingCutOff(*window);
    saveScreenshot(*window, "progress-" + language());
}

TEST_P(frmMsgStatTest, StaysOnTop) {
    EXPECT_TRUE(window->HasFlag(wxSTAY_ON_TOP));
}

TEST_P(frmMsgStatTest, ShowingYieldsOnceAndAStepNever) {
    panel.show("first");
    EXPECT_EQ(yields, 1);
    EXPECT_TRUE(window->IsShownOnScreen());
    yields = 0;
    panel.step("second", 1, 2, "");
    EXPECT_EQ(yields, 0) << "a step lets no events run";
    panel.yield();
    EXPECT_EQ(yields, 1);
}

TEST_P(frmMsgStatTest, AmpersandsOfNamesAreShown) {
    panel.show("A&B && C.JBI");
    EXPECT_EQ(message(), "A&B && C.JBI");
}

TEST_P(frmMsgStatTest, ALongNameDoesNotWidenIt) {
    panel.show("short");
    const auto size = window->GetClientSize();
    panel.step(std::string(255, 'W'), 0, 1, std::string(255, 'W'));
    runEvents();
    // Its frame, which comes late, changes the height in passing.
    EXPECT_TRUE(waitFor([&] { return window->GetClientSize() == size; }))
        << window->GetClientSize().x << " x " << window->GetClientSize().y << " instead of "
        << size.x << " x " << size.y;
    saveScreenshot(*window, "progress-long-" + language());
}

TEST_P(frmMsgStatTest, ALanguageWithoutACaptionLeavesTheButtonTheDesignedOne) {
    messages.replace({});
    panel.setCancelCaption("");
    const WindowHolder<frmMsgStat> other{new frmMsgStat(panel, messages, state, [] {})};
    panel.show("first");
    EXPECT_EQ(labelOf(*other, "cmdCancel"), "ｷｬﾝｾﾙ(&C)");
}

TEST_P(frmMsgStatTest, HidesAndComesBackAsItWas) {
    panel.show("text");
    panel.pressCancel();
    panel.hide();
    EXPECT_FALSE(window->IsShown());
    panel.showAgain();
    EXPECT_TRUE(window->IsShown());
    EXPECT_EQ(message(), "text");
    EXPECT_TRUE(panel.isCancelled());
}

TEST_P(frmMsgStatTest, CancelLeavesItsTextAndSaysThatItWasTaken) {
    panel.show("text");
    click(*window, "cmdCancel");
    EXPECT_TRUE(panel.isCancelled());
    EXPECT_FALSE(control<wxButton>(*window, "cmdCancel").IsEnabled());
    panel.show("next");
    EXPECT_FALSE(panel.isCancelled());
    EXPECT_TRUE(control<wxButton>(*window, "cmdCancel").IsEnabled());
}

TEST_P(frmMsgStatTest, CancelStaysOffThroughStepsAndQuestionsUntilItsTextIsCleared) {
    panel.show("text");
    click(*window, "cmdCancel");
    const auto& button = control<wxButton>(*window, "cmdCancel");
    panel.step("second", 1, 2, "");
    EXPECT_FALSE(button.IsEnabled());
    panel.hide();
    panel.showAgain();
    EXPECT_FALSE(button.IsEnabled());
    panel.showCancelButton(true);
    EXPECT_FALSE(button.IsEnabled());
    panel.show("another command");
    EXPECT_TRUE(button.IsEnabled());
}

TEST_P(frmMsgStatTest, CancelStaysOffAsLongAsThePressIsKept) {
    panel.show("text");
    click(*window, "cmdCancel");
    panel.keepPress(true);
    panel.show("next");
    EXPECT_FALSE(control<wxButton>(*window, "cmdCancel").IsEnabled());
    panel.keepPress(false);
    panel.show("another command");
    EXPECT_TRUE(control<wxButton>(*window, "cmdCancel").IsEnabled());
}

TEST_P(frmMsgStatTest, EscAndCloseBoxArePressesOfCancel) {
    panel.show("text");
    EXPECT_TRUE(swallows(*window, WXK_ESCAPE));
    EXPECT_TRUE(panel.isCancelled());
    panel.clearCancel();
    EXPECT_FALSE(window->Close()) << "the window itself stays";
    EXPECT_TRUE(panel.isCancelled());
    EXPECT_TRUE(window->IsShown());
}

TEST_P(frmMsgStatTest, WithoutACancelButtonEscAndCloseBoxDoNothing) {
    panel.showCancelButton(false);
    panel.show("text");
    swallows(*window, WXK_ESCAPE);
    window->Close();
    EXPECT_FALSE(panel.isCancelled());
    EXPECT_TRUE(window->IsShown());
    EXPECT_FALSE(control<wxButton>(*window, "cmdCancel").IsShown());
}

TEST_P(frmMsgStatTest, TheBarIsShownOnRequest) {
    panel.showBar(false);
    panel.show("text");
    EXPECT_FALSE(control<wxGauge>(*window, "pgbInf").IsShown());
    panel.showBar(true);
    EXPECT_TRUE(control<wxGauge>(*window, "pgbInf").IsShown());
}

TEST_P(frmMsgStatTest, CountsOutOfOrderLeaveTheBarWithinItsRange) {
    panel.show("text");
    panel.step("text", 9, 0, "");
    EXPECT_EQ(control<wxGauge>(*window, "pgbInf").GetValue(), 1);
    panel.step("text", -3, -7, "");
    EXPECT_EQ(control<wxGauge>(*window, "pgbInf").GetValue(), 0);
}

TEST_P(frmMsgStatTest, F1IsSwallowed) {
    panel.show("text");
    EXPECT_TRUE(swallows(*window, WXK_F1));
    EXPECT_FALSE(panel.isCancelled());
}

TEST_P(frmMsgStatTest, HasNoDefaultButton) {
    EXPECT_EQ(window->GetDefaultItem(), nullptr);
}

TEST_P(frmMsgStatTest, DoesNotTakeTheMainWindowsFocus) {
    const WindowHolder<wxFrame> main(new wxFrame(nullptr, wxID_ANY, "main"));
    auto* const text = new wxTextCtrl(main.get(), wxID_ANY);
    main->Show();
    text->SetFocus();
    ASSERT_TRUE(waitFor([&] { return text->HasFocus(); }));
    panel.show("text");
    runEvents();
    EXPECT_TRUE(text->HasFocus());
}

TEST_P(frmMsgStatTest, StandsOverTheMainWindow) {
    auto* const main = new wxFrame(nullptr, wxID_ANY, "main", wxPoint(60, 300), wxSize(500, 300));
    const WindowHolder<wxFrame> holder(main);
    wxTheApp->SetTopWindow(main);
    main->Show();
    ASSERT_TRUE(waitFor([&] { return main->IsActive() && main->GetSize().x == 500; }));
    panel.show("text");
    const auto middle = [](const wxRect& at) { return wxPoint(at.x, at.y) + at.GetSize() / 2; };
    EXPECT_TRUE(waitFor([&] {
        const auto off = middle(window->GetRect()) - middle(main->GetRect());
        return std::abs(off.x) < 30 && std::abs(off.y) < 30;
    }));
    wxTheApp->SetTopWindow(nullptr);
}

TEST_P(frmMsgStatTest, UnloadingDetachesItFromThePanel) {
    panel.show("text");
    panel.unload();
    EXPECT_TRUE(waitFor([&] { return !window; }));
    panel.show("nobody shows this");
    panel.hide();
}

TEST_P(frmMsgStatTest, AWindowThatIsDestroyedDetachesItself) {
    window->Destroy();
    ASSERT_TRUE(waitFor([&] { return !window; }));
    panel.show("nobody shows this");
}

INSTANTIATE_TEST_SUITE_P(In, frmMsgStatTest, bothLanguages, languageName);

} // namespace
} // namespace vantrel::tests
