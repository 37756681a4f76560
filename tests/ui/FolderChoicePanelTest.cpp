#include "ui/dialogs/FolderChoicePanel.h"

#include "SettingWorld.h"

#include <wx/treectrl.h>

namespace vantrel::tests {
namespace {

/// The choice of a robot's folder, on the page of the robots.
class FolderChoicePanelTest : public SettingWorld {
  public:
    wxTreeCtrl& folders() { return control<wxTreeCtrl>(dialog(), "Dir1"); }
    FileNameList& files() { return control<FileNameList>(dialog(), "File1"); }
    wxTreeItemId child(const wxTreeItemId& parent, const std::string& text) {
        wxTreeItemIdValue cookie{};
        auto item = folders().GetFirstChild(parent, cookie);
        while (item.IsOk() && folders().GetItemText(item).utf8_string() != text)
            item = folders().GetNextSibling(item);
        return item;
    }
};

TEST_P(FolderChoicePanelTest, TheStoredFolderIsSelectedAndItsFilesAreThere) {
    EXPECT_EQ(folders().GetItemText(folders().GetSelection()), "weld");
    ASSERT_EQ(files().GetItemCount(), 1);
    EXPECT_EQ(files().GetItemText(0), "A.JBI");
    EXPECT_EQ(choice("Drive1").GetSelection(), 0);
}

TEST_P(FolderChoicePanelTest, AFolderThatIsChosenIsStoredAtOnce) {
    folders().SelectItem(child(folders().GetSelection(), "old"));
    EXPECT_EQ(edited().robots().selectedRobot().Path, disk.path("weld/old"));
    EXPECT_EQ(labelOf(dialog(), "lblDirName"), disk.path("weld/old"));
    EXPECT_EQ(files().GetItemCount(), 0);
    EXPECT_TRUE(canApply());
}

TEST_P(FolderChoicePanelTest, AFolderIsReadWhenItIsOpenedWhichChoosesNothing) {
    dialog();
    disk.makeFolder("pallet/deep");
    const auto pallet = child(folders().GetItemParent(folders().GetSelection()), "pallet");
    ASSERT_TRUE(pallet.IsOk());
    folders().Expand(pallet);
    EXPECT_TRUE(child(pallet, "deep").IsOk());
    EXPECT_FALSE(canApply());
}

TEST_P(FolderChoicePanelTest, ADriveThatIsChosenIsStoredAtOnce) {
    pick(choice("Drive1"), 1);
    EXPECT_EQ(edited().robots().selectedRobot().Path, disk.path("pallet"));
    EXPECT_EQ(folders().GetItemText(folders().GetSelection()), "STICK");
    EXPECT_TRUE(canApply());
}

TEST_P(FolderChoicePanelTest, AFolderThatCannotBeReachedIsShownAndKept) {
    pick(robots(), 1);
    pick(robots(), 0);
    pick(robots(), 1);
    EXPECT_EQ(labelOf(dialog(), "lblDirName"), disk.path("gone"));
    EXPECT_EQ(edited().robots().selectedRobot().Path, disk.path("gone"));
    confirm();
    ASSERT_EQ(taken.size(), 1U);
    EXPECT_EQ(taken[0].RobotList, state.RobotList);
}

INSTANTIATE_TEST_SUITE_P(In, FolderChoicePanelTest, bothLanguages, languageName);

} // namespace
} // namespace vantrel::tests
