#include "ui/dialogs/FrmMessage.h"

#include "DialogTest.h"
#include "ui/look/WindowHolder.h"

#include <wx/frame.h>

namespace vantrel::tests {
namespace {

class FrmMessageTest : public DialogInLanguage {
  public:
    WindowHolder<FrmMessage> window{new FrmMessage("Vantrel 1.00", messages, state)};
};

TEST_P(FrmMessageTest, ShowsTheStartMessage) {
    window->showPainted(runEvents);
    EXPECT_EQ(window->GetTitle().utf8_string(), messages.getMessage(350));
    EXPECT_EQ(labelOf(*window, "lblMsg"), messages.getMessage(210));
    EXPECT_EQ(control<wxTextCtrl>(*window, "TxtMessage").GetValue(), "Vantrel 1.00");
    EXPECT_FALSE(window->IsModal());
    expectNothingCutOff(*window);
    saveScreenshot(*window, "start-message-" + language());
}

TEST_P(FrmMessageTest, AnEmptyBodyTakesNoRoom) {
    const WindowHolder<FrmMessage> bare(new FrmMessage("", messages, state));
    EXPECT_FALSE(control<wxTextCtrl>(*bare, "TxtMessage").IsShown());
}

TEST_P(FrmMessageTest, WithoutALanguageItKeepsItsOwnTitle) {
    const MessageTable none;
    const WindowHolder<FrmMessage> early(new FrmMessage("", none, state));
    EXPECT_EQ(early->GetTitle(), "Execution Message");
}

TEST_P(FrmMessageTest, IsGoneWhenTheOperatorGoesElsewhere) {
    window->showPainted(runEvents);
    ASSERT_TRUE(waitFor([&] { return window->IsActive(); }));
    const WindowHolder<wxFrame> other(new wxFrame(nullptr, wxID_ANY, "other"));
    other->Show();
    EXPECT_TRUE(waitFor([&] { return !window; }));
    window.unload();
}

TEST_P(FrmMessageTest, UnloadingItTwiceDoesNothing) {
    window->showPainted(runEvents);
    window.unload();
    window.unload();
    EXPECT_FALSE(window);
}

TEST_P(FrmMessageTest, IsCentredOnTheScreen) {
    const auto screen = wxGetClientDisplayRect();
    const auto place = window->GetRect();
    EXPECT_NEAR(place.x + place.width / 2, screen.x + screen.width / 2, 40);
    EXPECT_NEAR(place.y + place.height / 2, screen.y + screen.height / 2, 40);
}

INSTANTIATE_TEST_SUITE_P(In, FrmMessageTest, bothLanguages, languageName);

} // namespace
} // namespace vantrel::tests
