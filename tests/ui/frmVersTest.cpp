#include "ui/dialogs/frmVers.h"

#include "DialogTest.h"
#include "support/ModalScript.h"
#include "support/ProjectFiles.h"
#include "ui/look/WindowHolder.h"

#include <wx/frame.h>

namespace vantrel::tests {
namespace {

class frmVersTest : public DialogInLanguage {
  public:
    /// Opens the window as the menu does, and acts while it is open.
    void whileOpen(const std::function<void()>& action) {
        ModalScript script;
        script.act([&](wxDialog&) { action(); });
        window->openModal();
    }

    WindowHolder<frmVers> window{new frmVers(nullptr, "1.23", messages, state)};
};

TEST_P(frmVersTest, ShowsNameAndVersion) {
    whileOpen([&] {
        EXPECT_EQ(labelOf(*window, "Label1"), messages.getMessage(25));
        EXPECT_EQ(labelOf(*window, "Label2"), "Ver1.23");
        EXPECT_EQ(labelOf(*window, "lblProduct"), "Vantrel");
        EXPECT_NE(labelOf(*window, "lblCopyright"), "");
        EXPECT_EQ(labelOf(*window, "Command1"), messages.getMessage(325));
        EXPECT_EQ(window->GetTitle().Find('&'), wxNOT_FOUND);
        EXPECT_FALSE(window->GetTitle().empty());
        expectNothingCutOff(*window);
        saveScreenshot(*window, "version-" + language());
        click(*window, "Command1");
    });
    EXPECT_FALSE(window->IsShown());
}

TEST_P(frmVersTest, IsCentredAtEachLoad) {
    const wxRect screen = wxGetClientDisplayRect();
    constexpr int frame = 64; // what a window manager's frame shifts it by, at most
    const auto isCentred = [&] {
        const wxRect place = window->GetRect();
        return std::abs(place.x + place.width / 2 - screen.width / 2) < frame &&
               std::abs(place.y + place.height / 2 - screen.height / 2) < frame;
    };
    wxPoint centred;
    whileOpen([&] {
        EXPECT_TRUE(waitFor(isCentred));
        centred = window->GetPosition();
        window->Move(10, 10);
        EXPECT_TRUE(waitFor([&] { return window->GetPosition().x < 100; }));
        click(*window, "Command1");
    });
    const auto isThereAgain = [&] {
        const wxPoint off = window->GetPosition() - centred;
        return std::abs(off.x) < frame && std::abs(off.y) < frame;
    };
    whileOpen([&] {
        EXPECT_TRUE(waitFor(isThereAgain));
        click(*window, "Command1");
    });
}

TEST_P(frmVersTest, IsLoadedHidden) {
    runEvents();
    EXPECT_FALSE(window->IsShown());
}

TEST_P(frmVersTest, ShownWithoutWaitingItIsClosedByItsButton) {
    window->Show();
    runEvents();
    EXPECT_TRUE(window->IsShown());
    click(*window, "Command1");
    EXPECT_FALSE(window->IsShown());
}

TEST_P(frmVersTest, OpensModallyWhileItIsVisible) {
    window->Show();
    runEvents();
    bool modal = false;
    whileOpen([&] {
        modal = window->IsModal();
        click(*window, "Command1");
    });
    EXPECT_TRUE(modal);
    EXPECT_FALSE(window->IsShown());
}

TEST_P(frmVersTest, OpensInFrontOfTheMainWindow) {
    window->Show();
    ASSERT_TRUE(waitFor([&] { return window->IsActive(); }));
    const WindowHolder<wxFrame> main(new wxFrame(nullptr, wxID_ANY, "main"));
    main->Show();
    ASSERT_TRUE(waitFor([&] { return main->IsActive(); }));
    whileOpen([&] {
        EXPECT_TRUE(waitFor([&] { return window->IsActive(); }));
        click(*window, "Command1");
    });
}

TEST_P(frmVersTest, EscAndCloseBoxCloseIt) {
    whileOpen([&] { swallows(*window, WXK_ESCAPE); });
    whileOpen([&] { window->Close(); });
    window->Show();
    window->Close();
    EXPECT_FALSE(window->IsShown());
}

TEST_P(frmVersTest, F1IsSwallowed) {
    window->Show();
    EXPECT_TRUE(swallows(*window, WXK_F1));
    EXPECT_TRUE(window->IsShown());
}

TEST_P(frmVersTest, OpensInTheLanguageNowInForce) {
    ASSERT_TRUE(bool(LanguageFiles(dataFolder()).readInto("System", messages)));
    whileOpen([&] {
        EXPECT_EQ(labelOf(*window, "Label1"), messages.getMessage(25));
        click(*window, "Command1");
    });
}

INSTANTIATE_TEST_SUITE_P(In, frmVersTest, bothLanguages, languageName);

} // namespace
} // namespace vantrel::tests
