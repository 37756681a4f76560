#include "link/OperatorTalk.h"

#include "link/ProgressPanel.h"
#include "support/FakeMessageBoxes.h"
#include "support/RecordingProgressView.h"
#include "support/ScriptedQuestionWindow.h"

#include <functional>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

/// Notes whether the progress window is out of the way while a box is open.
class WatchingBoxes : public tests::FakeMessageBoxes {
  public:
    explicit WatchingBoxes(const ProgressPanel& panel) : panel_(panel) {}

    void tell(const std::string& text, BoxIcon icon) override {
        look();
        FakeMessageBoxes::tell(text, icon);
    }
    bool askOkCancel(const std::string& text, BoxIcon icon) override {
        look();
        return FakeMessageBoxes::askOkCancel(text, icon);
    }
    bool askYesNo(const std::string& text, BoxIcon icon) override {
        look();
        return FakeMessageBoxes::askYesNo(text, icon);
    }

    int covered = 0;

  private:
    void look() { covered += panel_.isVisible() ? 1 : 0; }

    const ProgressPanel& panel_;
};

struct OperatorTalkTest : testing::Test {
    tests::RecordingProgressView view;
    ProgressPanel panel;
    tests::ScriptedQuestionWindow question;
    WatchingBoxes boxes{panel};
    OperatorTalk talk{panel, question, boxes};

    OperatorTalkTest() {
        panel.attach(&view);
        question.whileOpen = [this] { boxes.covered += panel.isVisible() ? 1 : 0; };
    }

    void askEverything() {
        talk.ask("title", "question");
        talk.tell("text", BoxIcon::None);
        talk.askOkCancel("text", BoxIcon::Question);
        talk.askYesNo("text", BoxIcon::Question);
    }
};

TEST_F(OperatorTalkTest, VisibleProgressIsHiddenAroundEveryBox) {
    panel.show("working");
    askEverything();
    EXPECT_EQ(boxes.covered, 0);
    EXPECT_TRUE(panel.isVisible());
    EXPECT_EQ(panel.message(), "working");
}

TEST_F(OperatorTalkTest, APressBeforeTheQuestionIsNotLostByIt) {
    panel.show("working");
    panel.pressCancel();
    askEverything();
    EXPECT_TRUE(panel.isCancelled());
}

TEST_F(OperatorTalkTest, HiddenProgressStaysHidden) {
    askEverything();
    EXPECT_FALSE(panel.isVisible());
    EXPECT_TRUE(view.pictures.empty());
}

TEST_F(OperatorTalkTest, AQuestionNamesTheControllerThatIsMeant) {
    talk.ask("title", "question");
    panel.setUsualPlace([] { return "usual"; });
    talk.ask("title", "question");
    panel.setPlace("of the command");
    talk.ask("title", "question");
    panel.setPlace("");
    talk.ask("title", "question");
    panel.setPlace({});
    talk.ask("title", "question");
    EXPECT_EQ(question.notes,
              (std::vector<std::string>{"", "usual", "of the command", "", "usual"}));
    talk.ask("title", "question", "facts");
    EXPECT_EQ(question.notes.back(), "usual\nfacts");
    panel.setPlace("");
    talk.ask("title", "question", "facts");
    EXPECT_EQ(question.notes.back(), "facts");
}

TEST_F(OperatorTalkTest, AnswersComeBackAsGiven) {
    question.answers = {Answer::Yes, Answer::No, Answer::All, Answer::Cancel};
    EXPECT_EQ(talk.ask("title", "question"), Answer::Yes);
    EXPECT_EQ(talk.ask("title", "question"), Answer::No);
    EXPECT_EQ(talk.ask("title", "question"), Answer::All);
    EXPECT_EQ(talk.ask("title", "question"), Answer::Cancel);
    EXPECT_EQ(question.titles.front(), "title");
    EXPECT_EQ(question.questions.front(), "question");
    boxes.answers = {true, false, true};
    EXPECT_TRUE(talk.askOkCancel("text", BoxIcon::Exclamation));
    EXPECT_FALSE(talk.askYesNo("text", BoxIcon::Question));
    EXPECT_TRUE(talk.askYesNo("text", BoxIcon::Question));
    EXPECT_EQ(boxes.shown.front().icon, BoxIcon::Exclamation);
}

TEST_F(OperatorTalkTest, AMarkStandsBesideTheControllerOnly) {
    panel.setUsualPlace([] { return "usual"; });
    panel.setMark([] { return PlaceMark{"LIVE", 0xD00000, "red"}; });
    talk.ask("title", "question", "facts");
    panel.setPlace("");
    talk.ask("title", "question", "facts");
    EXPECT_EQ(question.notes, (std::vector<std::string>{"usual \u2013 LIVE\nfacts", "facts"}));
    EXPECT_EQ(question.marks, (std::vector<PlaceMark>{{"LIVE", 0xD00000, "red"}, PlaceMark()}));
}

} // namespace
} // namespace vantrel
