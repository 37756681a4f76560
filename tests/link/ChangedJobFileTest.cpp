#include "SessionWorld.h"
#include "link/JobSend.h"
#include "support/NamedRow.h"

#include <filesystem>

namespace vantrel {
namespace {

using testing::SizeIs;
using tests::SessionWorld;

struct ChangeRow : tests::NamedRow {
    void (*change)(SessionWorld&);
    const char* error;
};

/// The question stays open as long as the operator likes, and somebody else saves the file.
class ChangedJobFileTest : public testing::TestWithParam<ChangeRow> {
  protected:
    ChangedJobFileTest() {
        world.controller().put("WELD.JBI", older);
        world.controller().put("OTHER.JBI", SessionWorld::job("OTHER"));
        world.question.whileOpen = [this] { GetParam().change(world); };
    }
    void expectNothingTouched() {
        EXPECT_THAT(world.question.questions, SizeIs(1));
        EXPECT_EQ(world.controller().bytes("WELD.JBI"), older);
        EXPECT_TRUE(world.controller().has("OTHER.JBI"));
        EXPECT_EQ(world.library.callCount("BscSelectJob"), 0);
        EXPECT_EQ(world.library.callCount("BscDownLoad"), 0);
    }

    SessionWorld world;
    const std::string older = SessionWorld::job("WELD", "OLD");
};

TEST_P(ChangedJobFileTest, CostsTheControllerNothing) {
    for (const Answer answer : {Answer::Yes, Answer::All}) {
        world.pc.write("WELD.JBI", SessionWorld::job("WELD"));
        world.question.questions.clear();
        world.question.answers = {answer};
        EXPECT_FALSE(world.session->JobDownLoad("WELD.JBI"));
        EXPECT_EQ(world.error(), GetParam().error + std::string(" 0"));
        expectNothingTouched();
    }
}

INSTANTIATE_TEST_SUITE_P(
    Changes, ChangedJobFileTest,
    testing::Values(
        ChangeRow{
            {"AnotherName"},
            [](SessionWorld& world) { world.pc.write("WELD.JBI", SessionWorld::job("OTHER")); },
            " 36"},
        ChangeRow{{"HalfSaved"},
                  [](SessionWorld& world) { world.pc.write("WELD.JBI", "/JOB\r\n//NA"); },
                  " 36"},
        ChangeRow{{"Gone"},
                  [](SessionWorld& world) { std::filesystem::remove(world.pc.path("WELD.JBI")); },
                  " 21"}),
    tests::rowName);

struct SavedJobFileTest : testing::Test {
    SessionWorld world;
};

TEST_F(SavedJobFileTest, ARelatedJobThatNamesAnotherJobNowIsNotSentOverIt) {
    world.controller().put("WELD.JBI", SessionWorld::job("WELD", "OLD"));
    world.pc.write("WELD.JBR", SessionWorld::job("WELD"));
    world.question.answers = {Answer::Yes};
    world.question.whileOpen = [this] { world.pc.write("WELD.JBR", SessionWorld::job("OTHER")); };
    EXPECT_FALSE(world.session->JobDownLoad("WELD.JBR"));
    EXPECT_EQ(world.error(), " 36 0");
    EXPECT_EQ(world.library.callCount("BscDownLoad"), 0);
}

TEST_F(SavedJobFileTest, ANewVersionUnderTheSameNameIsSent) {
    world.controller().put("WELD.JBI", SessionWorld::job("WELD", "OLD"));
    world.pc.write("WELD.JBI", SessionWorld::job("WELD", "1"));
    world.question.answers = {Answer::Yes};
    world.question.whileOpen = [this] {
        world.pc.write("WELD.JBI", SessionWorld::job("WELD", "2"));
    };
    EXPECT_TRUE(world.session->JobDownLoad("WELD.JBI"));
    EXPECT_EQ(world.controller().bytes("WELD.JBI"), SessionWorld::job("WELD", "2"));
}

} // namespace
} // namespace vantrel
