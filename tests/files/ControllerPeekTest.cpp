#include "files/ControllerPeek.h"

#include "CommandFixture.h"
#include "platform/Files.h"

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class ControllerPeekTest : public tests::CommandTest {
  protected:
    ControllerPeekTest() { state.Headder = true; }

    /// The names in a folder, one behind the other.
    static std::string namesIn(const std::string& folder) {
        std::string names;
        (void)visitNames(folder, [&names](std::string_view name) { names += name; });
        return names;
    }
};

TEST_F(ControllerPeekTest, GivesTheTextAndTouchesNoFileOfThePC) {
    robotJob("A", "on the robot");
    pcJob("A", "on the PC");
    showPanes();
    const std::string before = session.path;
    const auto text = commands.peek("A.JBI");
    ASSERT_TRUE(text);
    EXPECT_EQ(*text, "/JOB\r\n//NAME A\r\nVERSION on the robot\r\n");
    EXPECT_EQ(pc.read("A.JBI"), job("A", "on the PC"));
    EXPECT_EQ(namesIn(pc.path()), "A.JBI");
    EXPECT_EQ(session.path, before);
    EXPECT_EQ(robot().names(), std::vector<std::string>{"A.JBI"});
    EXPECT_EQ(library.callCount("BscDeleteJob"), 0);
    EXPECT_THAT(question.questions, IsEmpty());
}

TEST_F(ControllerPeekTest, ItsPlaceIsGoneAfterwards) {
    robotJob("A");
    showPanes();
    std::string place;
    progressView.onYield = [&](int) { place = session.path; };
    ASSERT_TRUE(commands.peek("A.JBI"));
    ASSERT_NE(place, "");
    EXPECT_NE(place, pc.path());
    EXPECT_FALSE(isFolder(place));
}

TEST_F(ControllerPeekTest, AFailureIsToldAsThatOfATransfer) {
    robotJob("A");
    showPanes();
    library.disturb({.function = "BscUpLoad", .call = 1, .code = 2000});
    EXPECT_FALSE(commands.peek("A.JBI"));
    EXPECT_THAT(boxes.texts(), ElementsAre(HasSubstr("line broken")));
    EXPECT_EQ(session.path, pc.path());
}

TEST_F(ControllerPeekTest, AJobThatIsGoneIsTold) {
    robotJob("A");
    showPanes();
    robot().erase("A.JBI");
    EXPECT_FALSE(commands.peek("A.JBI"));
    EXPECT_EQ(boxes.texts().size(), 1U);
}

TEST_F(ControllerPeekTest, OfTwoJobsThatDifferInLetterCaseNeitherIsShown) {
    robotJob("WELD");
    robotJob("weld");
    showPanes();
    EXPECT_FALSE(commands.peek("WELD.JBI"));
    EXPECT_EQ(library.callCount("BscUpLoad"), 0);
    EXPECT_EQ(boxes.texts().size(), 1U);
}

TEST_F(ControllerPeekTest, CancelBeforeTheFetchAsksNobody) {
    robotJob("A");
    showPanes();
    pressCancelAtYield(1);
    EXPECT_FALSE(commands.peek("A.JBI"));
    EXPECT_EQ(library.callCount("BscUpLoad"), 0);
    EXPECT_THAT(boxes.texts(), IsEmpty());
}

} // namespace
} // namespace vantrel
