#include "JobBatchFixture.h"

namespace vantrel {
namespace {

using testing::ElementsAre;

struct JobBatchFetchTest : tests::JobBatchFixture {};

TEST_F(JobBatchFetchTest, FetchingListsTheFolderOnceAndNeverTheController) {
    addOlder({"A", "B"});
    world.session->AddJobList("A.JBI");
    world.session->AddJobList("B.JBI");
    EXPECT_TRUE(world.session->JobListUpLoad());
    EXPECT_EQ(world.library.callCount("BscFindFirst"), 0);
    EXPECT_EQ(world.library.trace(),
              tests::inOrder({tests::wholeLink(world, 1, {"BscUpLoad(1, A.JBI)"}),
                              tests::wholeLink(world, 2, {"BscUpLoad(2, B.JBI)"})}));
    EXPECT_TRUE(world.pc.has("B.JBI"));
}

TEST_F(JobBatchFetchTest, FetchingAsksAndAnswersLikeSending) {
    addOlder({"A", "B", "C"});
    for (const char* name : {"A.JBI", "B.JBI", "C.JBI"}) {
        world.pc.write(name, "mine");
        world.session->AddJobList(name);
    }
    world.question.answers = {Answer::No, Answer::All};
    EXPECT_TRUE(world.session->JobListUpLoad());
    EXPECT_EQ(world.question.questions.size(), 2u);
    EXPECT_EQ(world.pc.read("A.JBI"), "mine");
    EXPECT_NE(world.pc.read("B.JBI"), "mine");
    EXPECT_NE(world.pc.read("C.JBI"), "mine");
}

TEST_F(JobBatchFetchTest, AFailedFetchEndsTheListWithItsIndex) {
    addOlder({"A"});
    world.session->AddJobList("A.JBI");
    world.session->AddJobList("GONE.JBI");
    EXPECT_FALSE(world.session->JobListUpLoad());
    EXPECT_EQ(world.error(), "BscUpLoad 1200 1");
}

/// The press comes while the library fetches the second file, which is still brought whole.
TEST_F(JobBatchFetchTest, CancelEndsTheListBehindTheFileThatIsBeingFetched) {
    addOlder({"A", "B", "C"});
    for (const char* name : {"A.JBI", "B.JBI", "C.JBI"})
        world.session->AddJobList(name);
    world.library.onCall = [this](const std::string& function) {
        if (function == "BscUpLoad" && world.library.callCount("BscUpLoad") == 2)
            world.panel.pressCancel();
    };
    EXPECT_FALSE(world.session->JobListUpLoad());
    EXPECT_EQ(world.error(), " 3 1");
    EXPECT_EQ(world.library.callCount("BscUpLoad"), 2);
    EXPECT_EQ(world.pc.read("B.JBI"), world.controller().bytes("B.JBI"));
    EXPECT_FALSE(world.pc.has("C.JBI"));
    EXPECT_FALSE(world.panel.isVisible());
}

TEST_F(JobBatchFetchTest, TheProgressOfAReceivingListHasACancelButtonAtEveryFile) {
    addOlder({"A", "B"});
    for (const char* name : {"A.JBI", "B.JBI"})
        world.session->AddJobList(name);
    bool offered = true;
    world.library.onCall = [&](const std::string&) {
        offered = offered && world.panel.isVisible() && world.panel.cancelButtonShown();
    };
    EXPECT_TRUE(world.session->JobListUpLoad());
    EXPECT_TRUE(offered);
}

TEST_F(JobBatchFetchTest, AFileThatThisListJustBroughtIsNotOverwrittenSilently) {
    addOlder({"A"});
    world.session->AddJobList("A.JBI");
    world.session->AddJobList("a.jbi");
    world.question.answers = {Answer::No};
    EXPECT_TRUE(world.session->JobListUpLoad());
    EXPECT_EQ(world.question.questions.size(), 1u);
}

TEST_F(JobBatchFetchTest, AnUnsetAddressEndsTheListWithOneBoxAndTheRecordAsItWas) {
    world.session->AddJobList("A.JBI");
    world.session->AddJobList("B.JBI");
    world.mode = TransferMode::HispeedLink;
    world.session->IPaddress = "0.0.0.0";
    EXPECT_FALSE(world.session->JobListUpLoad());
    EXPECT_TRUE(world.session->operatorIsTold());
    EXPECT_THAT(world.boxes.texts(), ElementsAre("address unset"));
    EXPECT_EQ(world.error(), " 0 0");
}

} // namespace
} // namespace vantrel
