#include "ui/CommandToolBar.h"

#include "lang/MessageTable.h"
#include "support/Windows.h"

#include <gmock/gmock.h>
#include <wx/frame.h>

namespace vantrel::tests {
namespace {

class CommandToolBarTest : public testing::Test {
  protected:
    CommandToolBarTest() {
        bar.onPressed = [this](const CommandRow& command, CommandPlace place) {
            EXPECT_EQ(place, CommandPlace::tlbMain);
            pressed.emplace_back(command.icon);
        };
    }
    ~CommandToolBarTest() override {
        frame->Destroy();
        runEvents();
    }
    void press(int position) {
        const auto* tool = bar.GetToolByPos(position);
        wxCommandEvent event(wxEVT_TOOL, tool->GetId());
        event.SetEventObject(&bar);
        bar.HandleWindowEvent(event);
    }

    static bool isBsc(const CommandInput& input, CommandPlace) {
        return input.mode == TransferMode::Bsc;
    }
    static bool isOnPC(const CommandInput& input, CommandPlace) {
        return input.active == ActiveSide::PC;
    }

    std::vector<CommandRow> table{{.tip = 140,
                                   .icon = "FileCopy",
                                   .offers = {{CommandPlace::tlbMain}},
                                   .isAvailable = isOnPC},
                                  {.icon = "Print", .offers = {{CommandPlace::tlbPC}}},
                                  {.icon = "modeBsc",
                                   .offers = {{CommandPlace::tlbMain, 1}},
                                   .indicator = CommandIndicator::Button,
                                   .isInForce = isBsc}};
    wxFrame* frame = new wxFrame(nullptr, wxID_ANY, "bar");
    CommandToolBar& bar = *new CommandToolBar(frame, "tlbMain", table, CommandPlace::tlbMain);
    std::vector<std::string> pressed;
};

TEST_F(CommandToolBarTest, HasWhatTheTableOffersThereALineBetweenGroups) {
    EXPECT_THAT(bar.keys(), testing::ElementsAre("FileCopy", "modeBsc"));
    ASSERT_EQ(bar.GetToolsCount(), 3U);
    EXPECT_TRUE(bar.GetToolByPos(1)->IsSeparator());
}

TEST_F(CommandToolBarTest, NamesTheCommandWhoseButtonWasPressed) {
    press(0);
    press(2);
    EXPECT_THAT(pressed, testing::ElementsAre("FileCopy", "modeBsc"));
}

TEST_F(CommandToolBarTest, APressDoesNotChangeWhatIsPressed) {
    bar.applyStates({});
    EXPECT_TRUE(bar.isPressed("modeBsc"));
    const int id = bar.GetToolByPos(2)->GetId();
    bar.ToggleTool(id, false); // as the click itself does
    press(2);
    EXPECT_TRUE(bar.isPressed("modeBsc"));
    bar.applyStates({.mode = TransferMode::HispeedLink});
    EXPECT_FALSE(bar.isPressed("modeBsc"));
}

TEST_F(CommandToolBarTest, EnablesWhatIsAvailable) {
    bar.applyStates({.active = ActiveSide::Controller});
    EXPECT_FALSE(bar.isEnabled("FileCopy"));
    EXPECT_TRUE(bar.isEnabled("modeBsc"));
    bar.applyStates({});
    EXPECT_TRUE(bar.isEnabled("FileCopy"));
    bar.Enable(false);
    EXPECT_FALSE(bar.isEnabled("modeBsc"));
}

TEST_F(CommandToolBarTest, ATipIsTheNameForAssistiveProgramsToo) {
    MessageTable messages;
    messages.replace({{140, "Copy", "Copy"}});
    bar.applyTips(messages);
    EXPECT_EQ(bar.toolTip("FileCopy"), "Copy");
    EXPECT_EQ(bar.GetToolByPos(0)->GetLabel(), "Copy");
}

TEST_F(CommandToolBarTest, UnknownKeysAreNoButtons) {
    EXPECT_FALSE(bar.isPressed("Nonsense"));
    EXPECT_FALSE(bar.isEnabled("Nonsense"));
    EXPECT_TRUE(bar.toolTip("Nonsense").empty());
}

} // namespace
} // namespace vantrel::tests
