#include "JobBatchFixture.h"

#include <filesystem>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct JobBatchLocalTest : tests::JobBatchFixture {};

TEST_F(JobBatchLocalTest, LocalJobsAreNeverSentAndTheOperatorLearnsHowMany) {
    addFiles({"A", "LOCAL1", "LOCAL2"});
    world.pc.write("LocalJob.lst", "LOCAL#\n");
    EXPECT_TRUE(world.session->JobListDownLoad());
    EXPECT_THAT(world.controller().names(), ElementsAre("A.JBI"));
    ASSERT_THAT(world.boxes.texts(), ElementsAre("2 skipped"));
    EXPECT_EQ(world.boxes.shown.front().icon, BoxIcon::None);
}

TEST_F(JobBatchLocalTest, SkippedEntriesAreToldOnceWhenTheListFailsToo) {
    addFiles({"LOCAL", "A"});
    world.pc.write("LocalJob.lst", "LOCAL");
    world.library.disturb({.function = "BscDownLoad", .code = 1400});
    EXPECT_FALSE(world.session->JobListDownLoad());
    EXPECT_EQ(world.error(), "BscDownLoad 1400 1");
    EXPECT_THAT(world.boxes.texts(), ElementsAre("1 skipped"));
}

TEST_F(JobBatchLocalTest, SkippedEntriesAreToldOnceWhenTheListIsCancelledToo) {
    addFiles({"LOCAL", "A", "B"});
    world.pc.write("LocalJob.lst", "LOCAL");
    pressCancelAtYield(3);
    EXPECT_FALSE(world.session->JobListDownLoad());
    EXPECT_EQ(world.error(), " 3 1");
    EXPECT_THAT(world.boxes.texts(), ElementsAre("1 skipped"));
}

TEST_F(JobBatchLocalTest, AnUnsetAddressIsTheOnlyThingTold) {
    world.pc.write("LocalJob.lst", "LOCAL");
    world.session->AddJobList("LOCAL.JBI");
    world.session->AddJobList("A.JBI");
    world.mode = TransferMode::HispeedLink;
    world.session->IPaddress = "0.0.0.0";
    EXPECT_FALSE(world.session->JobListUpLoad());
    EXPECT_THAT(world.boxes.texts(), ElementsAre("address unset"));
}

TEST_F(JobBatchLocalTest, LocalJobsAreNeverFetched) {
    addOlder({"A", "LOCAL"});
    world.session->AddJobList("A.JBI");
    world.session->AddJobList("LOCAL.JBI");
    world.pc.write("LocalJob.lst", "local");
    EXPECT_TRUE(world.session->JobListUpLoad());
    EXPECT_TRUE(world.pc.has("A.JBI"));
    EXPECT_FALSE(world.pc.has("LOCAL.JBI"));
}

TEST_F(JobBatchLocalTest, WithTheMonitorOffNobodyIsToldOfSkippedEntries) {
    addFiles({"LOCAL"});
    world.pc.write("LocalJob.lst", "LOCAL");
    world.session->DisplayMonitor = false;
    EXPECT_TRUE(world.session->JobListDownLoad());
    EXPECT_THAT(world.boxes.shown, IsEmpty());
}

TEST_F(JobBatchLocalTest, TheLocalListIsReadAnewByEveryTransfer) {
    addFiles({"A"});
    world.pc.write("LocalJob.lst", "A");
    EXPECT_TRUE(world.session->JobListDownLoad());
    EXPECT_FALSE(world.controller().has("A.JBI"));
    world.pc.write("LocalJob.lst", "B");
    EXPECT_TRUE(world.session->JobListDownLoad());
    EXPECT_TRUE(world.controller().has("A.JBI"));
}

TEST_F(JobBatchLocalTest, TheListFileBringsItsFoldersLocalListAlong) {
    addFiles({"A"});
    world.pc.write("LocalJob.lst", "LOCAL");
    world.pc.write("jobs.lst", "A.JBI\r\nLOCAL.JBI\r\n");
    EXPECT_TRUE(world.session->SetJobListFile("jobs.lst", true));
    std::filesystem::remove(world.pc.path("LocalJob.lst"));
    EXPECT_TRUE(world.session->JobListDownLoad());
    EXPECT_THAT(world.boxes.texts(), ElementsAre("1 skipped"));
}

/// Thousands of entries that are all passed over.
struct ManyLocalJobsTest : JobBatchLocalTest {
    static constexpr int count = 100'000;

    ManyLocalJobsTest() {
        world.pc.write("LocalJob.lst", "*");
        for (int i = 0; i < count; ++i)
            world.session->AddJobList("A" + std::to_string(i));
    }
};

TEST_F(ManyLocalJobsTest, CostNoRepaintEach) {
    EXPECT_TRUE(world.session->JobListDownLoad());
    EXPECT_LT(world.view.pictures.size(), count / 100u);
    EXPECT_LT(world.view.yields, count / 100);
    EXPECT_EQ(world.panel.item(), count - 1) << "the bar moves on";
}

TEST_F(ManyLocalJobsTest, EndAtAPressOfCancelAmongThem) {
    pressCancelAtYield(5);
    EXPECT_FALSE(world.session->JobListDownLoad());
    EXPECT_EQ(world.session->ErrorCode(), 3);
    EXPECT_GT(world.session->ErrorIndex(), 0);
    EXPECT_LT(world.session->ErrorIndex(), count / 10);
}

TEST_F(JobBatchLocalTest, APressBeforeTheFirstPassedOverEntryEndsTheListThere) {
    world.pc.write("LocalJob.lst", "LOCAL");
    addFiles({"LOCAL", "A"});
    pressCancelAtYield(1);
    EXPECT_FALSE(world.session->JobListDownLoad());
    EXPECT_EQ(world.error(), " 3 0");
    EXPECT_FALSE(world.controller().has("A.JBI"));
}

TEST_F(JobBatchLocalTest, APressIsSeenAfterPassedOverEntriesAtTheEnd) {
    world.pc.write("LocalJob.lst", "LOCAL#");
    addFiles({"A", "LOCAL1", "LOCAL2"});
    pressCancelAtYield(5); // directory, opened, A shown, after A
    EXPECT_FALSE(world.session->JobListDownLoad());
    EXPECT_EQ(world.error(), " 3 2");
}

} // namespace
} // namespace vantrel
