#include "SessionWorld.h"
#include "support/NamedRow.h"

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using tests::SessionWorld;

struct NestedOperationTest : testing::Test {
    SessionWorld world;

    NestedOperationTest() {
        for (const char* name : {"A", "B", "C"}) {
            world.pc.write(std::string(name) + ".JBI", SessionWorld::job(name));
            world.session->AddJobList(std::string(name) + ".JBI");
        }
        world.pc.write("list.lst", "B1=1\n");
        world.session->SetVarListFile("list.lst");
        world.session->AddVarList("B1=1");
    }
    /// Has somebody call the session once, while the list lets events run after its first file.
    void afterFirstFile(std::function<void()> call) {
        world.view.onYield = [this, call = std::move(call), called = false](int) mutable {
            if (world.library.callCount("BscDownLoad") > 0 && !std::exchange(called, true))
                call();
        };
    }
};

struct OperationRow : tests::NamedRow {
    bool (*call)(Snappy&);
};

class RefusedOperationTest : public NestedOperationTest,
                             public testing::WithParamInterface<OperationRow> {};

TEST_P(RefusedOperationTest, DoesNothingAndTheListGoesOn) {
    bool refused = false;
    afterFirstFile([&] {
        const int calls = world.library.callCount();
        refused = !GetParam().call(*world.session);
        EXPECT_EQ(world.session->ErrorCode(), 37);
        EXPECT_EQ(world.session->ErrorFunction(), "");
        EXPECT_EQ(world.library.callCount(), calls);
        EXPECT_TRUE(world.panel.isVisible());
    });
    EXPECT_TRUE(world.session->JobListDownLoad());
    EXPECT_TRUE(refused);
    EXPECT_THAT(world.controller().names(), ElementsAre("A.JBI", "B.JBI", "C.JBI"));
    EXPECT_FALSE(world.panel.isVisible());
    EXPECT_THAT(world.boxes.texts(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Operations, RefusedOperationTest,
    testing::Values(
        OperationRow{{"ReadDirectory"},
                     [](Snappy& session) {
                         std::vector<std::string> list{"old"};
                         const bool read = session.ReadDirectory(list);
                         EXPECT_TRUE(list.empty());
                         return read;
                     }},
        OperationRow{{"JobDownLoad"}, [](Snappy& session) { return session.JobDownLoad("A.JBI"); }},
        OperationRow{{"JobDelete"}, [](Snappy& session) { return session.JobDelete("A.JBI"); }},
        OperationRow{{"JobUpLoad"}, [](Snappy& session) { return session.JobUpLoad("A.JBI"); }},
        OperationRow{{"JobListDownLoad"},
                     [](Snappy& session) { return session.JobListDownLoad(); }},
        OperationRow{{"JobListUpLoad"}, [](Snappy& session) { return session.JobListUpLoad(); }},
        OperationRow{{"SetJobListFile"},
                     [](Snappy& session) { return session.SetJobListFile("list.lst", true); }},
        OperationRow{{"ReadVarListFile"},
                     [](Snappy& session) { return session.ReadVarListFile(); }},
        OperationRow{{"VarDownLoad"}, [](Snappy& session) { return session.VarDownLoad("B1=1"); }},
        OperationRow{{"VarUpLoad"},
                     [](Snappy& session) {
                         std::string entry = "B1=1";
                         return session.VarUpLoad(entry);
                     }},
        OperationRow{{"VarListDownLoad"},
                     [](Snappy& session) { return session.VarListDownLoad(); }},
        OperationRow{{"VarListUpLoad"}, [](Snappy& session) { return session.VarListUpLoad(); }},
        OperationRow{{"WriteVarListFile"},
                     [](Snappy& session) { return session.WriteVarListFile("list.lst"); }}),
    tests::rowName);

TEST_F(NestedOperationTest, TheListDoesNotGoOnToTheRobotThatTheInnerOneWasMeantFor) {
    world.mode = TransferMode::HispeedLink;
    auto& first = world.library.at("10.0.0.1");
    auto& second = world.library.at("10.0.0.2");
    world.session->IPaddress = "10.0.0.1";
    afterFirstFile([this] {
        world.session->IPaddress = "10.0.0.2";
        std::vector<std::string> list;
        EXPECT_FALSE(world.session->ReadDirectory(list));
    });
    EXPECT_FALSE(world.session->JobListDownLoad());
    EXPECT_EQ(world.error(), " 29 1");
    EXPECT_THAT(first.names(), ElementsAre("A.JBI"));
    EXPECT_THAT(second.names(), IsEmpty());
}

TEST_F(NestedOperationTest, APressOfCancelIsNotLostByIt) {
    afterFirstFile([this] {
        world.panel.pressCancel();
        EXPECT_FALSE(world.session->JobDelete("A.JBI"));
    });
    EXPECT_FALSE(world.session->JobListDownLoad());
    EXPECT_EQ(world.error(), " 3 0");
}

TEST_F(NestedOperationTest, TheNextOperationIsNotRefused) {
    afterFirstFile([this] { EXPECT_FALSE(world.session->JobDelete("A.JBI")); });
    EXPECT_TRUE(world.session->JobListDownLoad());
    EXPECT_TRUE(world.session->JobDelete("A.JBI"));
}

} // namespace
} // namespace vantrel
