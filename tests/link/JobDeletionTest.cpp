#include "SessionWorld.h"
#include "link/JobSend.h"

namespace vantrel {
namespace {

using testing::ElementsAre;

struct JobDeletionTest : testing::Test {
    tests::SessionWorld world;

    JobDeletionTest() { world.controller().put("WELD.JBI", "x"); }

    /// A record whose index none of the deletion's own steps gives.
    void recordIndexNine() {
        for (int blank = 0; blank < 9; ++blank)
            world.session->AddVarList("");
        world.session->AddVarList("no entry");
        EXPECT_FALSE(world.session->VarListDownLoad());
        ASSERT_EQ(world.error(), " 22 9");
        world.view.pictures.clear();
    }
};

TEST_F(JobDeletionTest, SelectsTheJobByItsNormalisedNameAndDeletesIt) {
    EXPECT_TRUE(world.session->JobDelete("weld.jbi"));
    EXPECT_FALSE(world.controller().has("WELD.JBI"));
    EXPECT_EQ(world.library.trace(),
              tests::wholeLink(world, 1, {"BscSelectJob(1, WELD.JBI)", "BscDeleteJob(1)"}));
}

TEST_F(JobDeletionTest, GreekLettersKeepTheirCase) {
    world.controller().put("A\xCE\xB1.JBI", "x");
    EXPECT_TRUE(world.session->JobDelete("a\xCE\xB1.jbi"));
    EXPECT_EQ(world.library.trace()[3], "BscSelectJob(1, A\xCE\xB1.JBI)");
}

TEST_F(JobDeletionTest, ProgressNamesTheJobAndIsHiddenAtTheEnd) {
    EXPECT_TRUE(world.session->JobDelete("WELD.JBI"));
    EXPECT_THAT(world.view.messages(), ElementsAre("Deleting WELD.JBI"));
    for (const auto& picture : world.view.pictures)
        EXPECT_FALSE(picture.visible && picture.cancelButton)
            << "a single deletion cannot be cancelled";
    EXPECT_EQ(world.panel.waitingFor(), "waiting");
    EXPECT_EQ(world.view.yields, 1);
    EXPECT_FALSE(world.panel.isVisible());
}

TEST_F(JobDeletionTest, AFailedSelectionLeavesTheIndexAlone) {
    recordIndexNine();
    EXPECT_FALSE(world.session->JobDelete("OTHER.JBI"));
    EXPECT_EQ(world.error(), "BscSelectJob 1200 9");
    EXPECT_EQ(world.library.callCount("BscDeleteJob"), 0);
    EXPECT_EQ(world.library.openLinks(), 0);
}

TEST_F(JobDeletionTest, AFailedConnectHasIndexZero) {
    recordIndexNine();
    world.library.disturb({.function = "BscConnect", .code = 2010});
    EXPECT_FALSE(world.session->JobDelete("WELD.JBI"));
    EXPECT_EQ(world.error(), "BscConnect 2010 0");
}

TEST_F(JobDeletionTest, AFailedDeletionIsRecordedAfterTheClosing) {
    recordIndexNine();
    world.library.disturb({.function = "BscDeleteJob", .code = 1210});
    EXPECT_FALSE(world.session->JobDelete("WELD.JBI"));
    EXPECT_EQ(world.error(), "BscDeleteJob 1210 9");
    EXPECT_EQ(world.library.openLinks(), 0);
    EXPECT_FALSE(world.panel.isVisible());
}

TEST_F(JobDeletionTest, ALinkThatWillNotCloseIsRecordedButTheJobIsGone) {
    world.library.disturb({.function = "BscDisConnect", .code = -3});
    EXPECT_TRUE(world.session->JobDelete("WELD.JBI"));
    EXPECT_EQ(world.error(), "BscDisConnect -3 0");
    EXPECT_FALSE(world.controller().has("WELD.JBI"));
}

TEST_F(JobDeletionTest, NamesThatAreNotPlainReachNoCall) {
    EXPECT_FALSE(world.session->JobDelete("*.JBI"));
    EXPECT_EQ(world.error(), " 23 0");
    EXPECT_FALSE(world.session->JobDelete("\xED\x95\x9C.JBI"));
    EXPECT_EQ(world.error(), "BscSelectJob 20 0");
    EXPECT_EQ(world.library.callCount(), 0);
}

} // namespace
} // namespace vantrel
