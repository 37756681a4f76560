#include "SessionWorld.h"
#include "link/FetchMark.h"
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

/// What becomes of the file while the link for the deletion is made.
class FileChangedAtTheDeletionTest : public testing::TestWithParam<ChangeRow> {
  protected:
    FileChangedAtTheDeletionTest() {
        world.controller().put("WELD.JBI", older);
        world.pc.write("WELD.JBI", SessionWorld::job("WELD"));
        world.library.onCall = [this](const std::string& function) {
            if (function == "BscConnect" && world.library.callCount("BscConnect") == 2)
                GetParam().change(world);
        };
    }

    SessionWorld world;
    const std::string older = SessionWorld::job("WELD", "OLD");
};

TEST_P(FileChangedAtTheDeletionTest, CostsTheControllerNothing) {
    EXPECT_FALSE(world.session->JobDownLoad("WELD.JBI", true));
    EXPECT_EQ(world.error(), GetParam().error + std::string(" 0"));
    EXPECT_EQ(world.controller().bytes("WELD.JBI"), older);
    EXPECT_EQ(world.library.callCount("BscSelectJob"), 0);
    EXPECT_EQ(world.library.callCount("BscDownLoad"), 0);
    EXPECT_EQ(world.library.openLinks(), 0);
    EXPECT_TRUE(world.session->unreplacedJobs().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Changes, FileChangedAtTheDeletionTest,
    testing::Values(ChangeRow{{"AnotherName"},
                              [](SessionWorld& world) {
                                  world.pc.write("WELD.JBI", SessionWorld::job("OTHER"));
                              },
                              " 36"},
                    ChangeRow{{"Gone"},
                              [](SessionWorld& world) {
                                  std::filesystem::remove(world.pc.path("WELD.JBI"));
                              },
                              " 21"},
                    ChangeRow{{"NoFileAnyMore"},
                              [](SessionWorld& world) {
                                  std::filesystem::remove(world.pc.path("WELD.JBI"));
                                  world.pc.makeFolder("WELD.JBI");
                              },
                              " 21"},
                    ChangeRow{{"BeingFetched"},
                              [](SessionWorld& world) {
                                  world.pc.write(FetchMark::fileNameFor("WELD.JBI"),
                                                 FetchMark{.name = "WELD.JBI"}.format());
                              },
                              " 21"}),
    tests::rowName);

TEST_F(SavedJobFileTest, WhyNothingIsDeletedIsRecordedEvenWhenTheLinkThenStaysOpen) {
    world.controller().put("WELD.JBI", SessionWorld::job("WELD", "OLD"));
    world.pc.write("WELD.JBI", SessionWorld::job("WELD"));
    world.library.onCall = [this](const std::string& function) {
        if (function == "BscConnect" && world.library.callCount("BscConnect") == 2) {
            std::filesystem::remove(world.pc.path("WELD.JBI"));
            world.library.disturb({.function = "BscDisConnect", .code = -3});
        }
    };
    EXPECT_FALSE(world.session->JobDownLoad("WELD.JBI", true));
    EXPECT_EQ(world.error(), " 21 0");
    EXPECT_TRUE(world.controller().has("WELD.JBI"));
}

TEST_F(SavedJobFileTest, AFileThatIsGoneAfterTheFirstDeletionCostsNoSecondJob) {
    world.controller().put("WELD.JBI", SessionWorld::job("WELD", "OLD"));
    world.controller().put("INNER.JBI", SessionWorld::job("INNER", "OLD"));
    world.pc.write("WELD.JBI", SessionWorld::job("INNER"));
    world.library.onCall = [this](const std::string& function) {
        if (function == "BscConnect" && world.library.callCount("BscConnect") == 3)
            std::filesystem::remove(world.pc.path("WELD.JBI"));
    };
    EXPECT_FALSE(world.session->JobDownLoad("WELD.JBI", true));
    EXPECT_EQ(world.error(), " 21 0");
    EXPECT_TRUE(world.controller().has("INNER.JBI"));
    EXPECT_THAT(world.session->unreplacedJobs(), testing::ElementsAre("WELD.JBI"));
}

} // namespace
} // namespace vantrel
