#include "ProgramWorld.h"
#include "support/FakeZurolink.h"
#include "support/ScreenPicture.h"
#include "ui/CommandToolBar.h"
#include "ui/dialogs/FrmMessage.h"

#include <functional>
#include <map>
#include <optional>
#include <utility>

#include <wx/gauge.h>
#include <wx/statbmp.h>
#include <wx/statusbr.h>

namespace vantrel::tests {
namespace {

/// The whole program on a library that looks at the screen from inside its calls: nothing else
/// tells what an operator has before him while a call blocks.
class ScreenInsideCalls : public testing::TestWithParam<const char*>, public ProgramWorld {
  protected:
    ScreenInsideCalls() {
        library = &robots;
        for (const char* line : {"COM1", "10.0.0.1", "10.0.0.2"})
            robots.at(line);
        robots.onCall = [this](const std::string& function) {
            const auto expected = looks_.find({function, ++calls_[function]});
            if (expected == looks_.end())
                return;
            const auto look = expected->second;
            looks_.erase(expected);
            look();
        };
        in(TransferMode::Bsc);
    }
    ~ScreenInsideCalls() override {
        robots.onCall = nullptr;
        EXPECT_TRUE(looks_.empty()) << looks_.size() << " calls did not come";
        endProgram();
    }

    void in(TransferMode mode) {
        settings("TransMode=" + std::to_string(int(mode)) + "\r\nSyncroRobotDir=0\r\n", GetParam());
    }
    void onRobot(const std::string& name) { robots.at("COM1").put(name + ".JBI", job(name)); }
    void startSilently(bool readController = false) {
        start(readController);
        calls_.clear();
        window().Raise();
        EXPECT_TRUE(waitFor([this] { return window().IsActive(); }));
        paintInGoodTime();
    }
    /// Looks from inside call `number` of a function, counted from the start's end.
    void inCall(const std::string& function, int number, std::function<void()> look) {
        looks_[{function, number}] = std::move(look);
    }
    /// The next dialog asks; it is answered by a button, from inside its own events.
    void answerQuestion(const std::string& button) {
        modal.act([this, button](wxDialog& question) {
            paintInGoodTime();
            question_ = wxRect(question.ClientToScreen(wxPoint(0, 0)), question.GetClientSize());
            asked_.emplace(*question_);
            click(question, button);
        });
    }

    static wxWindow* progress() { return wxWindow::FindWindowByName("frmMsgStat"); }
    /// All of the progress window stands on the screen as it will stand there in good time.
    static void expectProgress() {
        ASSERT_TRUE(progress() && progress()->IsShown());
        auto* const window = dynamic_cast<wxTopLevelWindow*>(progress());
        const bool wasActive = window->IsActive();
        const ScreenPicture now(*window);
        paintInGoodTime();
        // A window manager that activates it later changes its colours.
        EXPECT_TRUE(now == ScreenPicture(*window) || window->IsActive() != wasActive);
        for (const char* part : {"lblMsg", "cmdCancel"})
            EXPECT_GT(ScreenPicture(control<wxWindow>(*progress(), part)).colours(), 2u) << part;
    }
    /// The windows that are to be seen, and none beside them.
    static void expectWindows(int count) { EXPECT_EQ(windowsOnScreen(), count); }
    /// What stood in the question's place is painted again.
    void expectQuestionGone() {
        ASSERT_TRUE(question_);
        expectWindows(2);
        EXPECT_FALSE(ScreenPicture(*question_) == *asked_);
    }
    /// A part of the main window shows what it is told, though nobody has given it time.
    static void expectPainted(const wxWindow& part) {
        const ScreenPicture now(part);
        paintInGoodTime();
        EXPECT_TRUE(now == ScreenPicture(part)) << part.GetName();
    }
    /// Where the bar ends, in the hundredths of its width.
    static int filled() {
        auto& bar = control<wxGauge>(*progress(), "pgbInf");
        const ScreenPicture picture(bar);
        const int y = picture.height() / 2, first = 3;
        int x = first;
        while (x < picture.width() && picture.at(x, y) == picture.at(first, y))
            ++x;
        return 100 * x / picture.width();
    }

    FakeZurolink robots;

  private:
    std::map<std::pair<std::string, int>, std::function<void()>> looks_;
    std::map<std::string, int> calls_;
    std::optional<wxRect> question_;
    std::optional<ScreenPicture> asked_;
};

constexpr const char *copyEntry = "mnuFile(0)", *moveEntry = "mnuFile(1)",
                     *deleteEntry = "mnuFile(2)", *refreshEntry = "mnuRefresh";

TEST_P(ScreenInsideCalls, TheStartShowsThatItReadsTheDirectory) {
    onRobot("OLD");
    modal.act([](wxDialog& question) {
        paintInGoodTime();
        answer(question, wxID_YES);
    });
    inCall("BscOpen", 1, [] {
        expectWindows(1);
        expectProgress();
    });
    inCall("BscConnect", 1, expectProgress);
    inCall("BscFindNext", 1, expectProgress);
    EXPECT_EQ(startProgram(), StartResult::Running);
    EXPECT_FALSE(progress()->IsShown());
}

TEST_P(ScreenInsideCalls, ARefreshShowsItsProgressAndGreyCommands) {
    onRobot("OLD");
    startSilently();
    choose(*controls().lsvCtrl, {});
    paintInGoodTime();
    const ScreenPicture before(*controls().tlbMain);
    inCall("BscOpen", 1, [&] {
        expectProgress();
        expectWindows(2);
        EXPECT_FALSE(ScreenPicture(*controls().tlbMain) == before);
        expectPainted(*controls().tlbMain);
    });
    menu(refreshEntry);
    EXPECT_FALSE(progress()->IsShown());
    EXPECT_EQ(namesIn(controllerList()), std::vector<std::string>{"OLD.JBI"});
}

TEST_P(ScreenInsideCalls, AChosenRobotStandsBesideItsOwnAddressWhileItConnects) {
    in(TransferMode::HispeedLink);
    startSilently();
    const auto& address = *controls().lblIPAddr2;
    const ScreenPicture before(address);
    inCall("BscOpen", 1, [&] {
        EXPECT_FALSE(ScreenPicture(address) == before);
        expectPainted(address);
        expectProgress();
    });
    controls().cmbRbtName->SetSelection(1);
    window().onRobotChosen(1);
}

TEST_P(ScreenInsideCalls, AnOverwrittenCopyHasItsProgressAndNoQuestionOverIt) {
    pcJob("A");
    onRobot("A");
    startSilently();
    choose(*controls().lsvPC, {0});
    answerQuestion("cmdYesNo0");
    inCall("BscFindFirst", 1, expectProgress);
    inCall("BscDeleteJob", 1, [this] {
        expectQuestionGone();
        expectProgress();
    });
    inCall("BscDownLoad", 1, expectProgress);
    menu(copyEntry);
    EXPECT_FALSE(progress()->IsShown());
}

TEST_P(ScreenInsideCalls, AMoveHasItsProgressAfterTheQuestion) {
    pcJob("A");
    onRobot("A");
    startSilently();
    choose(*controls().lsvPC, {0});
    answerQuestion("cmdYesNo0");
    inCall("BscOpen", 1, expectProgress);
    inCall("BscOpen", 2, [this] {
        expectQuestionGone();
        expectProgress();
    });
    inCall("BscDownLoad", 1, expectProgress);
    menu(moveEntry);
}

TEST_P(ScreenInsideCalls, ADeletionHasItsProgressAfterTheQuestion) {
    onRobot("A");
    startSilently(true);
    choose(*controls().lsvCtrl, {0});
    answerQuestion("cmdYesNo0");
    inCall("BscSelectJob", 1, [this] {
        expectQuestionGone();
        expectProgress();
    });
    menu(deleteEntry);
}

TEST_P(ScreenInsideCalls, AfterACancelledDeletionEveryCommandHasItsProgress) {
    pcJob("A");
    pcJob("B");
    onRobot("OLD");
    startSilently(true);
    for (int round = 1; round <= 3; ++round) {
        choose(*controls().lsvCtrl, {0});
        answerQuestion("cmdYesNo3");
        menu(deleteEntry);
        choose(*controls().lsvPC, {0, 1});
        inCall("BscDownLoad", 2 * round - 1, [] {
            expectProgress();
            expectWindows(2);
        });
        if (round > 1)
            answerQuestion("cmdYesNo2");
        menu(copyEntry);
    }
}

TEST_P(ScreenInsideCalls, TheBarStandsAtTheItemThatBegins) {
    for (const char* name : {"A", "B", "C", "D"})
        pcJob(name);
    startSilently();
    choose(*controls().lsvPC, {0, 1, 2, 3});
    for (int item = 1; item < 4; ++item)
        inCall("BscDownLoad", item + 1, [item] { EXPECT_NEAR(filled(), 25 * item, 3); });
    menu(copyEntry);
}

TEST_P(ScreenInsideCalls, TheProgressIsCentredForEachCommandAndStaysWhereItIsPutInOne) {
    pcJob("A");
    startSilently();
    const auto isCentred = [this] {
        const wxRect at = progress()->GetRect(), over = window().GetRect();
        return std::abs(at.x + at.width / 2 - over.x - over.width / 2) < 40;
    };
    for (int command = 1; command <= 2; ++command) {
        choose(*controls().lsvPC, {0});
        if (command > 1)
            answerQuestion("cmdYesNo0");
        inCall("BscDownLoad", command, [&] {
            EXPECT_TRUE(isCentred()) << command << ' ' << progress()->GetPosition().x;
            progress()->Move(700, 700);
            EXPECT_TRUE(waitFor([&] { return progress()->GetPosition().y > 600; }));
        });
        // The directory that is read at the command's end.
        inCall("BscFindFirst", 2 * command, [&] { EXPECT_FALSE(isCentred()); });
        menu(copyEntry);
    }
}

TEST_P(ScreenInsideCalls, CancelInTheProgressOfAReceivedListEndsItAfterTheFile) {
    for (const char* name : {"A", "B", "C"})
        onRobot(name);
    startSilently(true);
    choose(*controls().lsvCtrl, {0, 1, 2});
    inCall("BscUpLoad", 2, [] {
        // The press waits for the next yield, as one made during a long call does.
        progress()->CallAfter([] { click(*progress(), "cmdCancel"); });
    });
    menu(copyEntry);
    EXPECT_TRUE(folder.has("jobs/A.JBI") && folder.has("jobs/B.JBI"));
    EXPECT_FALSE(folder.has("jobs/C.JBI"));
    EXPECT_EQ(robots.callCount("BscUpLoad"), 2);
    EXPECT_FALSE(progress()->IsShown());
}

INSTANTIATE_TEST_SUITE_P(In, ScreenInsideCalls, testing::Values("English", "Japanese"),
                         [](const auto& row) { return std::string(row.param); });

} // namespace
} // namespace vantrel::tests
