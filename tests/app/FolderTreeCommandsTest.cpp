#include "app/folders/FolderTreeCommands.h"

#include "MainCommandsFixture.h"

#include <gmock/gmock.h>

namespace vantrel::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A disk whose one drive is the test's PC folder, and a folder "gone" that only the tree shows.
class FolderTreeCommandsTest : public MainCommandsTest {
  protected:
    FolderTreeCommandsTest() {
        messages.replace({text(12, "cannot be opened."), text(14, "PC: "), text(16, " items")});
        pc.write("inner/A.JBI", job("A"));
        showPanes();
        commands_.drop();
    }

    std::vector<std::string> subfolders(const std::string& path) {
        read.push_back(path);
        if (path == pc.path())
            return {"gone", "inner"};
        return {};
    }
    FolderTree::Id idOf(const std::string& text) {
        for (FolderTree::Id id = 0; commands_.tree().has(id); ++id)
            if (commands_.tree().node(id).text == text)
                return id;
        return FolderTree::none;
    }

    std::vector<std::string> read;
    FolderTreeCommands commands_{services,
                                 main,
                                 tree,
                                 {[this] {
                                      return std::vector<Drive>{{pc.path(), "DISK [jobs]"}};
                                  },
                                  [this](const std::string& path) { return subfolders(path); }}};
};

TEST_F(FolderTreeCommandsTest, TheTreeDropsDownForThePCFolder) {
    EXPECT_TRUE(tree.isDown);
    EXPECT_THAT(tree.nodes, ElementsAre("+DISK [jobs] drive", "gone open", "inner open"));
    EXPECT_THAT(read, ElementsAre(pc.path()));
}

TEST_F(FolderTreeCommandsTest, KeysInItNeverActOnTheController) {
    main.activate(ActiveSide::Controller);
    commands_.drop();
    EXPECT_EQ(state.Active, ActiveSide::PC);
}

TEST_F(FolderTreeCommandsTest, EachTimeItIsBuiltAnew) {
    ASSERT_TRUE(folder.enter(pc.path("inner"), FolderTree::folderOnly("inner")));
    commands_.drop();
    EXPECT_THAT(tree.nodes, ElementsAre("+DISK [jobs] drive", "gone open", "+inner open"));
    EXPECT_EQ(commands_.tree().selected(), idOf("inner"));
}

TEST_F(FolderTreeCommandsTest, OpeningANodeReadsItOnceAndListsNothing) {
    EXPECT_THAT(commands_.open(idOf("DISK [jobs]")), ElementsAre(idOf("gone"), idOf("inner")));
    EXPECT_THAT(commands_.open(idOf("inner")), IsEmpty());
    EXPECT_THAT(commands_.open(idOf("inner")), IsEmpty());
    EXPECT_THAT(commands_.open(FolderTree::none), IsEmpty());
    EXPECT_THAT(read, ElementsAre(pc.path(), pc.path("inner")));
    EXPECT_EQ(state.PCPath, pc.path());
}

TEST_F(FolderTreeCommandsTest, AChosenFolderIsListedAndTheTreeShowsItAlone) {
    const int focuses = window.pc.focuses;
    commands_.choose(idOf("inner"));
    EXPECT_EQ(state.PCPath, pc.path("inner"));
    EXPECT_EQ(view.folder, pc.path("inner"));
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI"));
    EXPECT_EQ(window.pcStatus, "PC: 1 items");
    EXPECT_THAT(tree.nodes, ElementsAre("inner open"));
    EXPECT_FALSE(tree.isDown);
    EXPECT_EQ(window.pc.focuses, focuses + 1);
}

TEST_F(FolderTreeCommandsTest, AChosenDriveKeepsItsTextAndImage) {
    commands_.choose(idOf("DISK [jobs]"));
    EXPECT_EQ(state.PCPath, pc.path());
    EXPECT_THAT(tree.nodes, ElementsAre("DISK [jobs] drive"));
}

TEST_F(FolderTreeCommandsTest, AFolderThatCannotBeOpenedIsNamedAndAllStaysAsItWas) {
    const auto before = tree.nodes;
    const auto names = window.pc.names;
    commands_.choose(idOf("gone"));
    EXPECT_THAT(boxes.texts(), ElementsAre("cannot be opened.\n[" + pc.path("gone") + "]"));
    EXPECT_EQ(state.PCPath, pc.path());
    EXPECT_EQ(window.pc.names, names);
    EXPECT_EQ(tree.nodes, before);
    EXPECT_TRUE(tree.isDown);
}

TEST_F(FolderTreeCommandsTest, ANodeThatIsNoneIsNotChosen) {
    commands_.choose(FolderTree::none);
    EXPECT_TRUE(tree.isDown);
    EXPECT_THAT(boxes.texts(), IsEmpty());
}

} // namespace
} // namespace vantrel::tests
