#include "app/results/ResultCommands.h"

#include "MainCommandsFixture.h"

#include <gmock/gmock.h>

namespace vantrel::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class ResultCommandsTest : public MainCommandsTest {
  protected:
    /// A copy of A, B and C that fails at B.
    void sendInPart() {
        for (const char* name : {"A", "B", "C", "D"})
            pcJob(name);
        showPanes();
        window.pc.click({"A.JBI", "B.JBI", "C.JBI"});
        library.disturb({.function = "BscDownLoad", .call = 2, .code = 2000});
        run("mnuFile(0)");
        library.disturb({.function = "none"});
        boxes.shown.clear();
        library.forgetCalls();
    }

    ResultCommands result{services, results, main};
};

TEST_F(ResultCommandsTest, WithoutACommandThereIsNothing) {
    EXPECT_FALSE(result.last());
    EXPECT_FALSE(result.canTryAgain());
    EXPECT_EQ(result.text(), "");
    EXPECT_FALSE(shown("mnuTools(0)").enabled);
    result.tryAgain();
    EXPECT_EQ(library.callCount("BscConnect"), 0);
}

TEST_F(ResultCommandsTest, TheTextNamesEachFileItsEndAndTheReason) {
    sendInPart();
    EXPECT_TRUE(shown("mnuTools(0)").enabled);
    EXPECT_EQ(window.result, "1 sent, 0 skipped, 1 failed, 1 not tried");
    EXPECT_EQ(result.text(), "1 sent, 0 skipped, 1 failed, 1 not tried\n→ COM1\n" + pc.path() +
                                 "\n\nA.JBI\tsent\nB.JBI\tfailed\tBscDownLoad ( line broken "
                                 "(2000) )\nC.JBI\tnot tried\n");
}

TEST_F(ResultCommandsTest, WhatIsLeftIsTriedAgainAndNothingElse) {
    sendInPart();
    window.pc.click({"D.JBI"});
    state.Active = ActiveSide::Controller;
    ASSERT_TRUE(result.canTryAgain());
    result.tryAgain();
    EXPECT_THAT(robot().names(), ElementsAre("A.JBI", "B.JBI", "C.JBI"));
    EXPECT_EQ(library.callCount("BscDownLoad"), 2);
    EXPECT_EQ(window.result, "2 sent, 0 skipped, 0 failed");
    EXPECT_FALSE(result.canTryAgain());
}

TEST_F(ResultCommandsTest, NothingIsTriedAgainForAnotherMachineOrFolder) {
    sendInPart();
    state.Port = 2;
    EXPECT_FALSE(result.canTryAgain());
    result.tryAgain();
    EXPECT_EQ(library.callCount("BscConnect"), 0);
    state.Port = 1;
    EXPECT_TRUE(result.canTryAgain());
    state.PCPath = pc.makeFolder("elsewhere");
    EXPECT_FALSE(result.canTryAgain());
    result.tryAgain();
    EXPECT_EQ(library.callCount("BscConnect"), 0);
}

TEST_F(ResultCommandsTest, NothingIsTriedAgainUnderAnotherSetting) {
    sendInPart();
    state.JBR = true;
    EXPECT_FALSE(result.canTryAgain());
    state.JBR = false;
    EXPECT_TRUE(result.canTryAgain());
}

// Below it the controller pane cannot become the active one, and commands would act on the PC's.
TEST_F(ResultCommandsTest, NothingOfTheControllerIsTriedAgainBelowTheViewer) {
    for (const char* name : {"A", "B"})
        robotJob(name);
    pcJob("P");
    showPanes();
    state.Active = ActiveSide::Controller;
    window.controller.click({"A.JBI", "B.JBI"});
    library.disturb({.function = "BscUpLoad", .code = 2000});
    run("mnuFile(0)");
    library.disturb({.function = "none"});
    ASSERT_TRUE(result.canTryAgain());
    window.pc.click({"P.JBI"});
    run("mnuFile(5)");
    ASSERT_TRUE(state.ViewerShown);
    EXPECT_FALSE(result.canTryAgain());
    result.tryAgain();
    EXPECT_FALSE(robot().has("P.JBI"));
}

TEST_F(ResultCommandsTest, ItFollowsTheLanguage) {
    sendInPart();
    window.result = "in another language";
    main.recaption();
    EXPECT_EQ(window.result, "1 sent, 0 skipped, 1 failed, 1 not tried");
}

TEST_F(ResultCommandsTest, AFileThatIsNotThereAnyMoreIsNamedAndNothingRuns) {
    sendInPart();
    std::filesystem::remove(pc.path("C.JBI"));
    ASSERT_TRUE(panes.scanPC(pc.path()));
    panes.fill(ActiveSide::PC);
    window.pc.click({"D.JBI"});
    result.tryAgain();
    EXPECT_THAT(boxes.texts(), ElementsAre(HasSubstr("[C.JBI]")));
    EXPECT_EQ(window.pc.selectedNames(), (std::vector<std::string>{"D.JBI"}));
    EXPECT_EQ(library.callCount("BscConnect"), 0);
}

TEST_F(ResultCommandsTest, ItIsSavedForEveryEditor) {
    sendInPart();
    result.save(pc.path("result.txt"));
    const std::string saved = pc.read("result.txt");
    EXPECT_TRUE(saved.starts_with("\xEF\xBB\xBF"
                                  "1 sent"))
        << saved;
    EXPECT_THAT(saved, HasSubstr("\r\nA.JBI\tsent\r\n"));
    std::string shown = saved.substr(3);
    std::erase(shown, '\r');
    EXPECT_EQ(shown, result.text());
    EXPECT_THAT(boxes.texts(), IsEmpty());
    result.save(pc.path("no/folder/result.txt"));
    EXPECT_THAT(boxes.texts(), ElementsAre(HasSubstr("result.txt")));
}

TEST_F(ResultCommandsTest, ItIsPrintedAndAFailureIsTold) {
    sendInPart();
    result.print();
    ASSERT_EQ(printer.printed.size(), 1u);
    EXPECT_THAT(printer.printed[0], HasSubstr(result.text()));
    printer.answer = Failure{"no printer"};
    result.print();
    EXPECT_THAT(boxes.texts(), ElementsAre(HasSubstr("no printer")));
}

} // namespace
} // namespace vantrel::tests
