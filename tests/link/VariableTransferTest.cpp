#include "link/VariableTransfer.h"

#include "SessionWorld.h"

#include <limits>

namespace vantrel {
namespace {

using testing::ElementsAre;

struct VariableTransferTest : testing::Test {
    tests::SessionWorld world;

    std::array<double, 10>& variable(std::int16_t kind, std::int16_t number) {
        return world.controller().variables[{kind, number}];
    }
};

TEST_F(VariableTransferTest, WritingHandsOverKindNumberAndAllValues) {
    EXPECT_TRUE(world.session->VarDownLoad("bp3=1,2,3"));
    EXPECT_EQ(variable(5, 3), (std::array<double, 10>{1, 2, 3}));
    EXPECT_EQ(world.library.trace(), tests::wholeLink(world, 1, {"BscPutVarData(1, 5, 3)"}));
}

TEST_F(VariableTransferTest, ReadingRebuildsTheEntry) {
    variable(0, 5) = {42};
    std::string entry = "b5=";
    EXPECT_TRUE(world.session->VarUpLoad(entry));
    EXPECT_EQ(entry, "B005=42");
    EXPECT_EQ(world.library.trace(), tests::wholeLink(world, 1, {"BscGetVarData(1, 0, 5)"}));
}

TEST_F(VariableTransferTest, ALibraryThatGoesBehindTheTenValuesHurtsNothing) {
    variable(5, 3) = {1, 2, 3};
    world.library.overrun = 54;
    std::string entry = "BP3=";
    EXPECT_TRUE(world.session->VarUpLoad(entry));
    EXPECT_EQ(entry, "BP003=1,2,3,0,0,0,0,0,0");
    EXPECT_TRUE(world.session->VarDownLoad(entry));
    EXPECT_EQ(world.error(), " 0 0");
}

TEST_F(VariableTransferTest, OldValuesDoNotShineThrough) {
    std::string entry = "P1=1,2,3,4,5,6,7,8,9";
    EXPECT_TRUE(world.session->VarUpLoad(entry));
    EXPECT_EQ(entry, "P001=0,0,0,0,0,0,0,0,0");
}

TEST_F(VariableTransferTest, ALineThatIsNoEntryOpensNoLink) {
    std::string entry = "X1=1";
    EXPECT_FALSE(world.session->VarUpLoad(entry));
    EXPECT_EQ(world.error(), " 22 0");
    EXPECT_FALSE(world.session->VarDownLoad("B001"));
    EXPECT_EQ(entry, "X1=1");
    EXPECT_EQ(world.library.callCount(), 0);
}

TEST_F(VariableTransferTest, FailuresAreRecordedWithTheirCode) {
    std::string entry = "B1=5";
    world.library.disturb({.function = "BscGetVarData", .code = 1500});
    EXPECT_FALSE(world.session->VarUpLoad(entry));
    EXPECT_EQ(world.error(), "BscGetVarData 1500 0");
    EXPECT_EQ(entry, "B1=5");
    world.library.disturb({.function = "BscPutVarData", .code = 1510});
    EXPECT_FALSE(world.session->VarDownLoad(entry));
    EXPECT_EQ(world.error(), "BscPutVarData 1510 0");
    EXPECT_EQ(world.library.openLinks(), 0);
}

TEST_F(VariableTransferTest, AValueThatIsNoNumberIsAFailureAndLeavesTheEntry) {
    const double odd[] = {std::numeric_limits<double>::quiet_NaN(),
                          std::numeric_limits<double>::infinity(),
                          -std::numeric_limits<double>::infinity()};
    for (const double value : odd) {
        variable(4, 1) = {1, 2, value};
        std::string entry = "P1=5";
        EXPECT_FALSE(world.session->VarUpLoad(entry));
        EXPECT_EQ(world.error(), "BscGetVarData 34 0");
        EXPECT_EQ(entry, "P1=5");
        EXPECT_EQ(world.library.openLinks(), 0);
    }
}

TEST_F(VariableTransferTest, ALinkThatWillNotCloseCountsAsAFailure) {
    variable(0, 1) = {7};
    std::string entry = "B1=5";
    world.library.disturb({.function = "BscDisConnect", .code = 0});
    EXPECT_FALSE(world.session->VarUpLoad(entry));
    EXPECT_EQ(world.error(), "BscDisConnect 0 0");
    EXPECT_EQ(entry, "B1=5");
}

TEST_F(VariableTransferTest, ProgressShowsTheEntryAndIsHiddenAtTheEnd) {
    EXPECT_TRUE(world.session->VarDownLoad("B1=5"));
    EXPECT_THAT(world.view.messages(), ElementsAre("Transferring B1=5"));
    EXPECT_FALSE(world.panel.isVisible());
    EXPECT_FALSE(world.session->VarDownLoad("?"));
    EXPECT_FALSE(world.panel.isVisible());
}

} // namespace
} // namespace vantrel
