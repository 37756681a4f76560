#include "app/folders/PCFolder.h"

#include "MainCommandsFixture.h"
#include "base/PathRules.h"

#include <gmock/gmock.h>

namespace vantrel::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using PCFolderTest = MainCommandsTest;

TEST_F(PCFolderTest, ShowsTheNewFolderEverywhereAndHidesTheTree) {
    const std::string inner = pc.makeFolder("inner");
    pc.write("inner/A.JBI", job("A"));
    showPanes();
    tree.isDown = true;
    EXPECT_TRUE(folder.enter(inner, FolderTree::folderOnly(inner)));
    EXPECT_EQ(state.PCPath, inner);
    EXPECT_EQ(view.folder, inner);
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI"));
    EXPECT_EQ(window.pcStatus, "PC: 1 items");
    EXPECT_THAT(tree.nodes, ElementsAre(inner + " open"));
    EXPECT_FALSE(tree.isDown);
}

TEST_F(PCFolderTest, AFolderThatCannotBeOpenedChangesNothing) {
    pcJob("A");
    showPanes();
    folder.showTree(FolderTree::folderOnly("before"));
    tree.isDown = true;
    view.folder = "before";
    EXPECT_FALSE(folder.enter(pc.path("missing"), FolderTree::folderOnly("missing")));
    EXPECT_EQ(state.PCPath, pc.path());
    EXPECT_EQ(view.folder, "before");
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI"));
    EXPECT_THAT(tree.nodes, ElementsAre("before open"));
    EXPECT_TRUE(tree.isDown);
    EXPECT_THAT(boxes.texts(), IsEmpty());
}

TEST_F(PCFolderTest, UpShowsTheDriveAndTheFolderBelowIt) {
    state.PCPath = pc.makeFolder("inner");
    main.upFolder();
    const PathRules rules;
    const std::string drive = rules.drive(pc.path());
    const std::string way = pc.path().substr(rules.withSeparator(drive).size());
    EXPECT_THAT(tree.nodes, ElementsAre("+" + drive + " drive", way + " open"));
}

TEST_F(PCFolderTest, ADoubleClickShowsTheFolderAlone) {
    pc.makeFolder("inner");
    showPanes();
    main.openItem(ActiveSide::PC, 0);
    EXPECT_THAT(tree.nodes, ElementsAre(pc.path("inner") + " open"));
}

TEST_F(PCFolderTest, AnotherFolderIsShownWithoutTheQuickFilterOfTheLastOne) {
    const std::string inner = pc.makeFolder("inner");
    pc.write("inner/A.JBI", job("A"));
    showPanes();
    main.filterNames(ActiveSide::PC, "x");
    EXPECT_TRUE(folder.enter(inner, FolderTree::folderOnly(inner)));
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI"));
    EXPECT_THAT(view.closedQuickFilters, ElementsAre(ActiveSide::PC));
}

} // namespace
} // namespace vantrel::tests
