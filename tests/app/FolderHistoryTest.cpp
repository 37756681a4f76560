#include "app/folders/FolderHistory.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

FolderHistory historyOf(std::initializer_list<const char*> folders) {
    FolderHistory history;
    for (const char* folder : folders)
        history.visited(folder);
    return history;
}

TEST(FolderHistory, BeginsWithNothing) {
    const FolderHistory history;
    EXPECT_FALSE(history.hasBack());
    EXPECT_FALSE(history.hasForward());
}

TEST(FolderHistory, GoesBackAndForwardAgain) {
    FolderHistory history = historyOf({"a", "b", "c"});
    EXPECT_FALSE(history.hasForward());
    EXPECT_EQ(history.neighbour(-1), "b");
    history.step(-1);
    EXPECT_EQ(history.neighbour(-1), "a");
    EXPECT_EQ(history.neighbour(1), "c");
    history.step(-1);
    EXPECT_FALSE(history.hasBack());
    history.step(1);
    EXPECT_EQ(history.neighbour(1), "c");
}

TEST(FolderHistory, TheFolderShownIsNotEnteredTwice) {
    FolderHistory history = historyOf({"a", "b", "b"});
    EXPECT_EQ(history.neighbour(-1), "a");
    history.step(-1);
    history.visited("a");
    EXPECT_TRUE(history.hasForward()) << "nobody went anywhere";
}

TEST(FolderHistory, AnotherFolderEndsTheWayForward) {
    FolderHistory history = historyOf({"a", "b", "c"});
    history.step(-1);
    history.step(-1);
    history.visited("d");
    EXPECT_FALSE(history.hasForward());
    EXPECT_EQ(history.neighbour(-1), "a");
}

TEST(FolderHistory, AFolderThatIsNoMoreIsForgottenOnEitherSide) {
    FolderHistory history = historyOf({"a", "b", "c", "d"});
    history.step(-1);
    history.forgetNeighbour(-1);
    EXPECT_EQ(history.neighbour(-1), "a");
    EXPECT_EQ(history.neighbour(1), "d");
    history.forgetNeighbour(1);
    EXPECT_FALSE(history.hasForward());
    EXPECT_EQ(history.neighbour(-1), "a");
}

TEST(FolderHistory, NoStepLeadsFromAFolderToItself) {
    FolderHistory history = historyOf({"a", "b", "a"});
    history.forgetNeighbour(-1);
    EXPECT_FALSE(history.hasBack());
    EXPECT_FALSE(history.hasForward());
}

TEST(FolderHistory, RemembersTheLastHundred) {
    FolderHistory history;
    for (int folder = 0; folder < 150; ++folder)
        history.visited(std::to_string(folder));
    int steps = 0;
    for (; history.hasBack(); ++steps)
        history.step(-1);
    EXPECT_EQ(steps, 99);
    EXPECT_EQ(history.neighbour(1), "51");
}

} // namespace
} // namespace vantrel
