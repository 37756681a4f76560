#include "SessionWorld.h"
#include "link/JobLists.h"
#include "support/SystemReasons.h"

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct JobListStoreTest : testing::Test {
    tests::SessionWorld world;

    void writeList(std::string_view content) { world.pc.write("jobs.lst", content); }

    std::vector<std::string> list() const {
        std::vector<std::string> all;
        for (std::int32_t i = 0; i < world.session->JobListCount(); ++i)
            all.push_back(world.session->JobList(i));
        return all;
    }
};

TEST_F(JobListStoreTest, EntriesAreAddedRemovedAndCleared) {
    world.session->AddJobList("A.JBI");
    world.session->AddJobList("");
    world.session->AddJobList("B.JBI");
    world.session->RemoveJobList(1);
    world.session->RemoveJobList(7);
    world.session->RemoveJobList(-1);
    EXPECT_THAT(list(), ElementsAre("A.JBI", "B.JBI"));
    EXPECT_EQ(world.session->JobList(-1), "");
    EXPECT_EQ(world.session->JobList(2), "");
    world.session->JobListClear();
    EXPECT_EQ(world.session->JobListCount(), 0);
}

TEST_F(JobListStoreTest, UncheckedTakesEveryTrimmedLine) {
    writeList("\r\n A.JBI \r\n\r\nB.JBI\n\t\n");
    world.session->AddJobList("OLD.JBI");
    EXPECT_TRUE(world.session->SetJobListFile("jobs.lst", true));
    EXPECT_THAT(list(), ElementsAre("A.JBI", "B.JBI"));
    EXPECT_THAT(world.boxes.shown, IsEmpty());
}

TEST_F(JobListStoreTest, CheckedNamesWhatIsMissingAndLeavesItOut) {
    world.pc.write("B.JBI", "x");
    writeList("A.JBI\nB.JBI\n");
    world.boxes.answers = {true};
    EXPECT_TRUE(world.session->SetJobListFile("jobs.lst"));
    EXPECT_THAT(list(), ElementsAre("B.JBI"));
    using Box = tests::FakeMessageBoxes;
    EXPECT_THAT(world.boxes.shown,
                ElementsAre(Box::Box{Box::Kind::OkCancel, "job file [A.JBI] is missing",
                                     BoxIcon::Exclamation}));
}

TEST_F(JobListStoreTest, CancelAtAMissingFileStopsWithAnEmptyList) {
    world.pc.write("A.JBI", "x");
    writeList("A.JBI\nB.JBI\nC.JBI\n");
    world.boxes.answers = {false};
    EXPECT_FALSE(world.session->SetJobListFile("jobs.lst"));
    EXPECT_EQ(world.boxes.shown.size(), 1u);
    EXPECT_THAT(list(), IsEmpty());
    EXPECT_EQ(world.error(), " 3 0");
}

TEST_F(JobListStoreTest, WithTheMonitorOffMissingFilesAreLeftOutSilently) {
    world.pc.write("B.JBI", "x");
    writeList("A.JBI\nB.JBI\n");
    world.session->DisplayMonitor = false;
    EXPECT_TRUE(world.session->SetJobListFile("jobs.lst"));
    EXPECT_THAT(list(), ElementsAre("B.JBI"));
    EXPECT_THAT(world.boxes.shown, IsEmpty());
}

TEST_F(JobListStoreTest, FoldersAndPathsAreNoFilesOfTheFolder) {
    world.pc.makeFolder("A.JBI");
    world.pc.write("sub/B.JBI", "x");
    writeList("A.JBI\nsub/B.JBI\n");
    world.boxes.answers = {true, true};
    EXPECT_TRUE(world.session->SetJobListFile("jobs.lst"));
    EXPECT_THAT(list(), IsEmpty());
    EXPECT_EQ(world.boxes.shown.size(), 2u);
}

TEST_F(JobListStoreTest, AListThatCannotBeOpenedKeepsTheOldOne) {
    world.session->AddJobList("OLD.JBI");
    EXPECT_FALSE(world.session->SetJobListFile("none.lst"));
    EXPECT_EQ(world.error(), " 6 0");
    EXPECT_THAT(world.session->systemReason(), testing::HasSubstr(tests::noSuchFile()));
    EXPECT_THAT(list(), ElementsAre("OLD.JBI"));
}

TEST_F(JobListStoreTest, ListFilesWhoseNamesAreNotPlainAreNotRead) {
    world.pc.write("sub/jobs.lst", "A.JBI\n");
    const std::string absolute = world.pc.write("jobs.lst", "A.JBI\n");
    world.pc.write("LocalJob.lst", "LOCAL\n");
    for (const std::string& name :
         {std::string(), std::string("sub/jobs.lst"), std::string("../jobs.lst"), absolute}) {
        EXPECT_FALSE(world.session->SetJobListFile(name, true));
        EXPECT_EQ(world.error(), " 23 0");
        EXPECT_THAT(list(), IsEmpty());
    }
}

TEST_F(JobListStoreTest, LoadingIsAnOperationThatHidesTheProgress) {
    writeList("A.JBI\n");
    for (const char* name : {"jobs.lst", "none.lst", "../jobs.lst"}) {
        world.panel.show("command");
        world.session->SetJobListFile(name);
        EXPECT_FALSE(world.panel.isVisible()) << name;
    }
}

TEST_F(JobListStoreTest, AVeryLongMissingNameIsNamedShortened) {
    writeList(std::string(1'000'000, 'x') + "\n");
    world.boxes.answers = {true};
    EXPECT_TRUE(world.session->SetJobListFile("jobs.lst"));
    ASSERT_EQ(world.boxes.shown.size(), 1u);
    EXPECT_LT(world.boxes.shown[0].text.size(), 250u);
}

TEST_F(JobListStoreTest, TheFolderMayEndInASeparator) {
    writeList("A.JBI");
    world.session->path += "/";
    EXPECT_TRUE(world.session->SetJobListFile("jobs.lst", true));
    EXPECT_THAT(list(), ElementsAre("A.JBI"));
}

TEST_F(JobListStoreTest, NamesAreReadInTheCodePageAndInUtf8) {
    writeList("\x83\x5C.JBI\n");
    EXPECT_TRUE(world.session->SetJobListFile("jobs.lst", true));
    EXPECT_THAT(list(), ElementsAre("\xE3\x82\xBD.JBI"));
    writeList("\xEF\xBB\xBF\xE3\x82\xBD.JBI\n");
    EXPECT_TRUE(world.session->SetJobListFile("jobs.lst", true));
    EXPECT_THAT(list(), ElementsAre("\xE3\x82\xBD.JBI"));
}

TEST_F(JobListStoreTest, GarbageIsTakenWithoutHarm) {
    writeList(std::string("\0\xFF\n..\n", 6) + std::string(10'000'000, 'x'));
    world.boxes.answers = {true, true, true};
    EXPECT_TRUE(world.session->SetJobListFile("jobs.lst"));
    EXPECT_THAT(list(), IsEmpty());
}

} // namespace
} // namespace vantrel
