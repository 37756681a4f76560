#include "app/commands/CommandRunner.h"

#include "MainCommandsFixture.h"

#include <algorithm>
#include <vector>

#include <gmock/gmock.h>

namespace vantrel::tests {
namespace {

using enum CommandPlace;

/// The table with one more command, as CONTRIBUTING tells how to write one.
class InventedCommandTest : public MainCommandsTest {
  protected:
    static std::vector<CommandRow> tableWithOneMore() {
        std::vector<CommandRow> table(commandTable().begin(), commandTable().end());
        table.push_back({.caption = 102,
                         .tip = 140,
                         .icon = "FileDisp",
                         .key = "F9",
                         .listKey = {'N', true, true},
                         .offers = {{mnuFileMain, 1, "mnuInvented"}, {tlbPC}},
                         .isAvailable = [](const CommandInput& input,
                                           CommandPlace) { return !input.viewerShown; },
                         .run = [](const CommandTargets& to) { to.main.mnuSort(2); }});
        return table;
    }
    const CommandRow& invented() const { return table.back(); }

    const std::vector<CommandRow> table = tableWithOneMore();
    CommandRunner runner{table, {main, files, lists, help, windows}};
};

TEST_F(InventedCommandTest, StandsWhereItsRowPutsIt) {
    const auto entries = commandsAt(table, mnuFileMain);
    const auto found = std::ranges::find(entries, &invented());
    ASSERT_NE(found, entries.end());
    EXPECT_EQ(offerAt(**(found - 1), mnuFileMain)->name, "mnuFile(6)");
    EXPECT_EQ(*(found + 1), nullptr) << "the end of its group";
    EXPECT_EQ(commandsAt(table, tlbPC).back(), &invented());
}

TEST_F(InventedCommandTest, IsOfferedByItsOwnRule) {
    EXPECT_TRUE(commandState(invented(), mnuFileMain, {}).enabled);
    EXPECT_FALSE(commandState(invented(), tlbPC, {.viewerShown = true}).enabled);
}

TEST_F(InventedCommandTest, RunsWhenItIsChosen) {
    runner.run(invented(), mnuFileMain);
    EXPECT_EQ(state.PCListing.SortType, 2);
}

TEST_F(InventedCommandTest, RunsByItsKeyInTheLists) {
    EXPECT_FALSE(runner.listKey(ActiveSide::Controller, 'N', true)) << "on the PC only";
    EXPECT_FALSE(runner.listKey(ActiveSide::PC, 'N', false));
    EXPECT_EQ(state.PCListing.SortType, 0);
    EXPECT_TRUE(runner.listKey(ActiveSide::PC, 'N', true));
    EXPECT_EQ(state.PCListing.SortType, 2);
}

TEST_F(InventedCommandTest, ItsKeyDoesNothingWhileItIsNotOffered) {
    state.ViewerShown = true;
    EXPECT_FALSE(runner.listKey(ActiveSide::PC, 'N', true));
    EXPECT_EQ(state.PCListing.SortType, 0);
}

TEST_F(MainCommandsTest, AButtonOfTheControllerPaneWorksInThatPane) {
    run("tlbFile AllSelect");
    EXPECT_EQ(state.Active, ActiveSide::Controller);
    EXPECT_THAT(view.selectedAll, testing::ElementsAre(ActiveSide::Controller));
}

} // namespace
} // namespace vantrel::tests
