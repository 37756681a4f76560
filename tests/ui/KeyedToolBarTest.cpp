#include "ui/KeyedToolBar.h"

#include "support/Windows.h"

#include <gmock/gmock.h>
#include <wx/frame.h>

namespace vantrel::tests {
namespace {

class KeyedToolBarTest : public testing::Test {
  protected:
    KeyedToolBarTest() {
        bar.onPressed = [this](const std::string& key) { pressed.push_back(key); };
    }
    ~KeyedToolBarTest() override {
        frame->Destroy();
        runEvents();
    }
    void press(int position) {
        const auto* tool = bar.GetToolByPos(position);
        wxCommandEvent event(wxEVT_TOOL, tool->GetId());
        event.SetEventObject(&bar);
        bar.HandleWindowEvent(event);
    }

    wxFrame* frame = new wxFrame(nullptr, wxID_ANY, "bar");
    KeyedToolBar& bar = *new KeyedToolBar(frame, "tlbMain",
                                          {{"FileCopy"},
                                           {"", KeyedToolBar::Kind::Separator},
                                           {"modeBsc", KeyedToolBar::Kind::Check}});
    std::vector<std::string> pressed;
};

TEST_F(KeyedToolBarTest, NamesTheButtonThatWasPressed) {
    press(0);
    press(2);
    EXPECT_THAT(pressed, testing::ElementsAre("FileCopy", "modeBsc"));
}

TEST_F(KeyedToolBarTest, APressDoesNotChangeWhatIsPressed) {
    bar.setPressed("modeBsc", true);
    const int id = bar.GetToolByPos(2)->GetId();
    bar.ToggleTool(id, false); // as the click itself does
    press(2);
    EXPECT_TRUE(bar.isPressed("modeBsc"));
}

TEST_F(KeyedToolBarTest, EnablesByKey) {
    bar.setEnabled("FileCopy", false);
    EXPECT_FALSE(bar.isEnabled("FileCopy"));
    EXPECT_TRUE(bar.isEnabled("modeBsc"));
    bar.Enable(false);
    EXPECT_FALSE(bar.isEnabled("modeBsc"));
}

TEST_F(KeyedToolBarTest, ATipIsTheNameForAssistiveProgramsToo) {
    bar.setToolTip("FileCopy", "Copy");
    EXPECT_EQ(bar.toolTip("FileCopy"), "Copy");
    EXPECT_EQ(bar.GetToolByPos(0)->GetLabel(), "Copy");
}

TEST_F(KeyedToolBarTest, UnknownKeysAreNoButtons) {
    bar.setEnabled("Nonsense", true);
    bar.setPressed("Nonsense", true);
    bar.setToolTip("Nonsense", "tip");
    EXPECT_FALSE(bar.isPressed("Nonsense"));
}

} // namespace
} // namespace vantrel::tests
