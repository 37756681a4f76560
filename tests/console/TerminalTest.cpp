#include "console/BuiltProgramWorld.h"
#include "support/TerminalProgram.h"

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::HasSubstr;
using testing::Not;

/// The built program before somebody.
class TerminalTest : public tests::BuiltProgramWorld {
  protected:
    std::vector<std::string> command(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), program_);
        return arguments;
    }

    /// Files that take long enough to be interrupted, by their names' numbers.
    void putSlowFiles() {
        for (int number = 0; number < count; ++number) {
            const std::string name = nameOf(number);
            folder_.write("first/" + name + ".JBI", job(name, "slow"));
        }
        simulated_.script("1=BscUpLoad 1+ slow 300\n");
    }
    static std::string nameOf(int number) { return "W" + std::to_string(100 + number); }

    static constexpr int count = 60;
};

TEST_F(TerminalTest, ProgressIsALineThatIsWrittenOverAndWipedOut) {
    tests::TerminalProgram program(command({"get", "*.JBI"}));
    EXPECT_TRUE(program.waitFor("OWN.JBI"));
    EXPECT_TRUE(program.waitFor("SUB.JBI"));
    EXPECT_EQ(program.end(), 0);
    EXPECT_THAT(program.shown(), HasSubstr("\r"));
    EXPECT_THAT(program.shown(), HasSubstr("LINE1\tSUB.JBI\treceived\r\n"));
    EXPECT_EQ(folder_.read("one/SUB.JBI"), job("SUB", "first"));
}

TEST_F(TerminalTest, OutputThatGoesElsewhereHasNoProgressInIt) {
    folder_.write("one/OWN.JBI", "old");
    EXPECT_EQ(run("get \"*.JBI\""), 3);
    EXPECT_THAT(output_ + messages_, Not(HasSubstr("\r")));
}

TEST_F(TerminalTest, WhoSitsThereIsAskedAboutEachFile) {
    folder_.write("one/OWN.JBI", "old");
    folder_.write("one/SUB.JBI", "old");
    tests::TerminalProgram program(command({"get", "*.JBI", "--overwrite", "ask"}));
    EXPECT_TRUE(program.waitFor("OWN.JBI") && program.waitFor("[c] cancel"));
    program.type("perhaps\n");
    EXPECT_TRUE(program.waitFor("[c] cancel"));
    program.type("n\n");
    EXPECT_TRUE(program.waitFor("SUB.JBI") && program.waitFor("[c] cancel"));
    program.type("y\n");
    EXPECT_EQ(program.end(), 3);
    EXPECT_EQ(folder_.read("one/OWN.JBI"), "old");
    EXPECT_EQ(folder_.read("one/SUB.JBI"), job("SUB", "first"));
}

TEST_F(TerminalTest, AllIsAnAnswerForTheRest) {
    folder_.write("one/OWN.JBI", "old");
    folder_.write("one/SUB.JBI", "old");
    tests::TerminalProgram program(command({"get", "*.JBI", "--overwrite", "ask"}));
    EXPECT_TRUE(program.waitFor("[c] cancel"));
    program.type("a\n");
    EXPECT_EQ(program.end(), 0);
    EXPECT_EQ(folder_.read("one/OWN.JBI"), job("OWN", "first"));
    EXPECT_EQ(folder_.read("one/SUB.JBI"), job("SUB", "first"));
}

TEST_F(TerminalTest, AboutValuesOfAListTheQuestionIsYesOrNo) {
    folder_.write("first/variables.txt", "B001=5\n");
    folder_.write("one/V.lst", "B001=1\r\n");
    tests::TerminalProgram program(command({"get-vars", "V", "--overwrite", "ask"}));
    EXPECT_TRUE(program.waitFor("[y] yes  [n] no\r\n"));
    program.type("y\n");
    EXPECT_EQ(program.end(), 0);
    EXPECT_EQ(folder_.read("one/V.lst"), "B001=5\r\n");
}

TEST_F(TerminalTest, TheEndOfTheInputIsCancel) {
    folder_.write("one/OWN.JBI", "old");
    tests::TerminalProgram program(command({"get", "*.JBI", "--overwrite", "ask"}));
    EXPECT_TRUE(program.waitFor("[c] cancel"));
    program.type("\x04");
    EXPECT_EQ(program.end(), 1);
    EXPECT_THAT(program.shown(), HasSubstr("LINE1\tSUB.JBI\tnot tried"));
    EXPECT_EQ(folder_.read("one/OWN.JBI"), "old");
}

TEST_F(TerminalTest, CtrlCAtAQuestionIsCancel) {
    folder_.write("one/OWN.JBI", "old");
    tests::TerminalProgram program(command({"get", "*.JBI", "--overwrite", "ask"}));
    EXPECT_TRUE(program.waitFor("[c] cancel"));
    EXPECT_TRUE(program.interrupt());
    EXPECT_EQ(program.end(), 130);
    EXPECT_THAT(program.shown(), HasSubstr("LINE1\tSUB.JBI\tnot tried"));
    EXPECT_EQ(folder_.read("one/OWN.JBI"), "old");
}

TEST_F(TerminalTest, CtrlCFinishesTheFileUnderWayAndSaysWhatIsLeft) {
    putSlowFiles();
    tests::TerminalProgram program(command({"get", "W*.JBI"}));
    EXPECT_TRUE(program.waitFor(nameOf(1)));
    EXPECT_TRUE(program.interrupt());
    EXPECT_EQ(program.end(), 130);
    int done = 0;
    for (int number = 0; number < count; ++number) {
        const std::string name = nameOf(number);
        const bool isDone = folder_.has("one/" + name + ".JBI");
        done += isDone ? 1 : 0;
        EXPECT_EQ(folder_.read("one/" + name + ".JBI"), isDone ? job(name, "slow") : std::string());
        EXPECT_THAT(program.shown(), HasSubstr("LINE1\t" + name + ".JBI\t" +
                                               (isDone ? "received" : "not tried") + "\r\n"));
    }
    EXPECT_GT(done, 0);
    EXPECT_LT(done, count);
}

TEST_F(TerminalTest, ASecondCtrlCEndsAtOnce) {
    putSlowFiles();
    simulated_.script("1=BscUpLoad 2+ slow 60000\n");
    tests::TerminalProgram program(command({"get", "W*.JBI"}));
    EXPECT_TRUE(program.waitFor(nameOf(1)));
    EXPECT_TRUE(program.interrupt());
    program.type("\x03");
    EXPECT_EQ(program.end(), 130);
    EXPECT_THAT(program.shown(), Not(HasSubstr("not tried")));
}

} // namespace
} // namespace vantrel
