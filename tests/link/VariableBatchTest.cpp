#include "SessionWorld.h"
#include "link/VariableTransfer.h"

#include <limits>

namespace vantrel {
namespace {

using testing::ElementsAre;

struct VariableBatchTest : testing::Test {
    tests::SessionWorld world;

    void add(const std::vector<std::string>& entries) {
        for (const std::string& entry : entries)
            world.session->AddVarList(entry);
    }
    std::vector<std::string> list() const {
        std::vector<std::string> all;
        for (std::int32_t i = 0; i < world.session->VarListCount(); ++i)
            all.push_back(world.session->VarList(i));
        return all;
    }
    void pressCancelAtYield(int yield) {
        world.view.onYield = [this, yield](int at) {
            if (at == yield)
                world.panel.pressCancel();
        };
    }
};

TEST_F(VariableBatchTest, EveryEntryIsWritten) {
    add({"B1=5", "I2=-6"});
    EXPECT_TRUE(world.session->VarListDownLoad());
    EXPECT_EQ((world.controller().variables[{0, 1}][0]), 5);
    EXPECT_EQ((world.controller().variables[{1, 2}][0]), -6);
    EXPECT_EQ(world.library.callCount("BscOpen"), 2);
    EXPECT_THAT(list(), ElementsAre("B1=5", "I2=-6"));
}

TEST_F(VariableBatchTest, EveryEntryIsReplacedByItsRefreshedText) {
    world.controller().variables[{0, 1}] = {7};
    add({"b1=0", "", "  ", "D3=1"});
    EXPECT_TRUE(world.session->VarListUpLoad());
    EXPECT_THAT(list(), ElementsAre("B001=7", "", "  ", "D003=0"));
    EXPECT_EQ(world.library.callCount("BscOpen"), 2);
}

TEST_F(VariableBatchTest, ALineThatIsNoEntryEndsTheListThere) {
    add({"B1=5", "what?", "B2=6"});
    EXPECT_FALSE(world.session->VarListDownLoad());
    EXPECT_EQ(world.error(), " 22 1");
    EXPECT_EQ(world.session->VarList(world.session->ErrorIndex()), "what?");
    EXPECT_EQ(world.library.callCount("BscOpen"), 1);
    EXPECT_FALSE(world.panel.isVisible());
}

TEST_F(VariableBatchTest, ALibraryFailureEndsTheListWithItsIndex) {
    add({"B1=5", "", "B2=6"});
    world.library.disturb({.function = "BscPutVarData", .call = 2, .code = 1510});
    EXPECT_FALSE(world.session->VarListDownLoad());
    EXPECT_EQ(world.error(), "BscPutVarData 1510 2");
}

TEST_F(VariableBatchTest, AValueThatIsNoNumberEndsTheListWithItsIndexAndLeavesTheEntry) {
    world.controller().variables[{0, 1}] = {7};
    world.controller().variables[{3, 2}] = {std::numeric_limits<double>::quiet_NaN()};
    add({"B1=0", "", "R2=5", "B1=1"});
    EXPECT_FALSE(world.session->VarListUpLoad());
    EXPECT_EQ(world.error(), "BscGetVarData 34 2");
    EXPECT_THAT(list(), ElementsAre("B001=7", "", "R2=5", "B1=1"));
    EXPECT_EQ(world.library.openLinks(), 0);
}

TEST_F(VariableBatchTest, AListThatIsChangedMeanwhileIsWorkedThroughAsItWas) {
    add({"B1=5", "B2=6", "B3=7"});
    world.view.onYield = [this](int at) {
        if (at == 2)
            world.session->RemoveVarList(0);
        if (at == 4)
            world.session->VarListClear();
    };
    EXPECT_TRUE(world.session->VarListDownLoad());
    EXPECT_THAT(list(), testing::IsEmpty());
    EXPECT_EQ((world.controller().variables[{0, 2}][0]), 6);
    EXPECT_EQ((world.controller().variables[{0, 3}][0]), 7);
    EXPECT_EQ(world.library.callCount("BscPutVarData"), 3);
}

TEST_F(VariableBatchTest, RefreshedEntriesOnlyReplaceTheTextThatWasRead) {
    world.controller().variables[{0, 1}] = {7};
    world.controller().variables[{0, 2}] = {8};
    world.controller().variables[{0, 3}] = {9};
    add({"B1=0", "B2=0", "B3=0"});
    world.view.onYield = [this](int at) {
        if (at == 2) { // after B1
            world.session->RemoveVarList(1);
            world.session->AddVarList("D9=1");
        }
    };
    EXPECT_TRUE(world.session->VarListUpLoad());
    EXPECT_THAT(list(), ElementsAre("B001=7", "B3=0", "D9=1"));
}

TEST_F(VariableBatchTest, ManyBlankLinesCostNoRepaintEachAndEndAtAPress) {
    constexpr int count = 100'000;
    world.pc.write("vars.lst", std::string(count, '\n'));
    world.session->SetVarListFile("vars.lst");
    ASSERT_TRUE(world.session->ReadVarListFile());
    EXPECT_TRUE(world.session->VarListDownLoad());
    EXPECT_LT(world.view.pictures.size(), count / 100u);
    pressCancelAtYield(world.view.yields + 5);
    EXPECT_FALSE(world.session->VarListDownLoad());
    EXPECT_EQ(world.session->ErrorCode(), 3);
    EXPECT_GT(world.session->ErrorIndex(), 0);
    EXPECT_LT(world.session->ErrorIndex(), count / 10);
}

TEST_F(VariableBatchTest, AnotherRobotChosenMeanwhileEndsTheListBeforeItsNextEntry) {
    auto& other = world.library.at("COM2");
    add({"B1=5", "I2=-6"});
    world.view.onYield = [this](int) {
        if (world.library.callCount("BscPutVarData") > 0)
            world.session->port = 2;
    };
    EXPECT_FALSE(world.session->VarListDownLoad());
    EXPECT_EQ(world.error(), " 29 1");
    EXPECT_EQ(world.library.callCount("BscOpen"), 1);
    EXPECT_TRUE(other.variables.empty());
}

TEST_F(VariableBatchTest, APressIsSeenAfterBlankLinesAtTheEnd) {
    add({"B1=5", "", ""});
    pressCancelAtYield(3); // opened, after B1
    EXPECT_FALSE(world.session->VarListDownLoad());
    EXPECT_EQ(world.error(), " 3 2");
}

TEST_F(VariableBatchTest, APressEndsTheListAfterTheEntry) {
    add({"B1=5", "B2=6"});
    pressCancelAtYield(2);
    EXPECT_FALSE(world.session->VarListDownLoad());
    EXPECT_EQ(world.error(), " 3 0");
    EXPECT_EQ(world.library.callCount("BscOpen"), 1);
    EXPECT_FALSE(world.panel.isVisible());
}

TEST_F(VariableBatchTest, ACancelledReadKeepsWhatWasNotReached) {
    world.controller().variables[{0, 1}] = {7};
    world.controller().variables[{0, 2}] = {8};
    add({"B1=0", "B2=0"});
    pressCancelAtYield(2);
    EXPECT_FALSE(world.session->VarListUpLoad());
    EXPECT_THAT(list(), ElementsAre("B001=7", "B2=0"));
}

TEST_F(VariableBatchTest, WithTheMonitorOffNothingIsShownOrConsulted) {
    add({"B1=5"});
    world.session->DisplayMonitor = false;
    world.panel.pressCancel();
    EXPECT_TRUE(world.session->VarListDownLoad());
    EXPECT_TRUE(world.view.pictures.empty());
    EXPECT_EQ(world.view.yields, 0);
}

TEST_F(VariableBatchTest, ProgressShowsEachItemWithCancelAndBar) {
    add({"B1=5", "B2=6"});
    EXPECT_TRUE(world.session->VarListDownLoad());
    EXPECT_THAT(world.view.messages(),
                ElementsAre("Transferring ", "Transferring B1=5", "Transferring B2=6"));
    const auto& last = world.view.pictures[world.view.pictures.size() - 2];
    EXPECT_EQ(last.waitingFor, "item 2 of 2  waiting");
    EXPECT_TRUE(last.cancelButton && last.bar);
}

TEST_F(VariableBatchTest, VeryLongEntriesAreShownShortened) {
    add({std::string(100'000, 'x')});
    EXPECT_FALSE(world.session->VarListDownLoad());
    EXPECT_FALSE(world.session->VarDownLoad(std::string(100'000, 'x')));
    for (const auto& picture : world.view.pictures)
        EXPECT_LT(picture.message.size(), 250u);
}

TEST_F(VariableBatchTest, AnUnsetAddressLeavesTheRecordAlone) {
    add({"", "B1=5"});
    world.mode = TransferMode::HispeedLink;
    world.session->IPaddress = "0.0.0.0";
    EXPECT_FALSE(world.session->VarListDownLoad());
    EXPECT_EQ(world.error(), " 0 0");
    EXPECT_TRUE(world.session->operatorIsTold());
}

} // namespace
} // namespace vantrel
