#include "ui/FileListControl.h"

#include "PaneWorld.h"
#include "support/Windows.h"

#include <gmock/gmock.h>
#include <wx/frame.h>
#include <wx/sizer.h>
#include <wx/utils.h>

namespace vantrel::tests {
namespace {

using testing::ElementsAre;

class FileListControlTest : public testing::TestWithParam<ListView> {
  protected:
    FileListControlTest() {
        list.onSelectionChanged = [this] { ++changes; };
        list.setColumnTitles({"Name", "Size", "Date"});
        auto* sizer = new wxBoxSizer(wxVERTICAL);
        sizer->Add(&list, 1, wxEXPAND);
        frame->SetSizer(sizer);
        frame->SetClientSize(400, 300);
        frame->Show();
        list.setView(GetParam());
        list.show(world.rows);
        runEvents();
    }
    ~FileListControlTest() override {
        frame->Destroy();
        runEvents();
    }

    wxFrame* frame = new wxFrame(nullptr, wxID_ANY, "lists");
    FileListControl& list = *new FileListControl(frame, "lsvPC");
    PaneWorld world{{"B.JBI", "A.JBI", "FOLDER/", "C.TXT"}};
    int changes = 0;
};

TEST_P(FileListControlTest, ShowsTheRowsInTheirOrder) {
    ASSERT_EQ(list.itemCount(), 4u);
    EXPECT_EQ(list.native().GetItemText(0), "FOLDER");
    EXPECT_EQ(list.native().GetItemText(1), "A.JBI");
    EXPECT_EQ(list.native().GetItemText(3), "C.TXT");
}

TEST_P(FileListControlTest, KeepsItsRowsWhenItsAppearanceChanges) {
    list.select({1, 2});
    for (const auto appearance : {Appearance::Flat, Appearance::ThreeDimensional}) {
        list.setView(GetParam(), appearance);
        EXPECT_EQ(list.appearance(), appearance);
        const bool fillsThePanel = list.native().GetSize() == list.GetClientSize();
        EXPECT_EQ(fillsThePanel, appearance == Appearance::Flat);
        EXPECT_EQ(list.view(), GetParam());
        EXPECT_THAT(list.selectedRows(), ElementsAre(1u, 2u));
    }
}

TEST_P(FileListControlTest, SelectsTheFirstRowAfterAFill) {
    EXPECT_THAT(list.selectedRows(), ElementsAre(0u));
    EXPECT_EQ(list.focusedRow(), 0);
    EXPECT_EQ(list.focusedKind(), FileKind::Folder);
}

TEST_P(FileListControlTest, ShowsNothingOfAnEmptyPane) {
    world.fill({});
    list.show(world.rows);
    EXPECT_EQ(list.itemCount(), 0u);
    EXPECT_TRUE(list.selectedRows().empty());
    EXPECT_EQ(list.focusedKind(), std::nullopt);
}

TEST_P(FileListControlTest, ShowsWhatChangedBetweenTwoFillsOfTheSameLength) {
    world.fill({"B.JBI", "A.JBI", "FOLDER/", "D.TXT"});
    list.show(world.rows);
    EXPECT_EQ(list.native().GetItemText(3), "D.TXT");
    EXPECT_EQ(list.native().GetItemText(1), "A.JBI");
    // A file that has become a folder of the same name keeps its place.
    world.fill({"B.JBI", "A.JBI/"});
    list.show(world.rows);
    EXPECT_EQ(list.focusedKind(), FileKind::Folder);
    world.fill({"A.JBI", "B.JBI"});
    list.show(world.rows);
    wxListItem first;
    first.SetId(0);
    first.SetMask(wxLIST_MASK_IMAGE);
    if (list.native().GetItem(first) && GetParam() != ListView::Details) {
        constexpr int jobImage = 1;
        EXPECT_EQ(first.GetImage(), jobImage);
    }
}

TEST_P(FileListControlTest, SelectsTheseRowsAndNoOthers) {
    list.select({1, 3});
    EXPECT_THAT(list.selectedRows(), ElementsAre(1u, 3u));
    EXPECT_EQ(list.focusedKind(), FileKind::JobFile);
    list.select({2});
    EXPECT_THAT(list.selectedRows(), ElementsAre(2u));
}

TEST_P(FileListControlTest, SelectsAll) {
    list.selectAll();
    EXPECT_THAT(list.selectedRows(), ElementsAre(0u, 1u, 2u, 3u));
    EXPECT_EQ(list.focusedKind(), FileKind::JobFile) << "the commands would be off";
}

TEST_P(FileListControlTest, ARightPressActivatesThePaneAndSelectsTheItemBeforeItsMenu) {
    std::vector<std::size_t> selected;
    list.onMenuRequested = [&](wxPoint) { selected = list.selectedRows(); };
    list.focus();
    runEvents();
    // A press activates the pane also when its list has the focus already.
    bool activated = false;
    list.onActivated = [&] { activated = true; };
    wxRect item;
    ASSERT_TRUE(list.native().GetItemRect(2, item, wxLIST_RECT_LABEL));
    wxUIActionSimulator mouse;
    mouse.MouseMove(list.native().ClientToScreen(item.GetPosition() + item.GetSize() / 2));
    runEvents();
    mouse.MouseClick(wxMOUSE_BTN_RIGHT);
    EXPECT_TRUE(waitFor([&] { return !selected.empty(); }));
    EXPECT_THAT(selected, ElementsAre(2u));
    EXPECT_TRUE(activated);
    // The release belongs to this window; it must not come to what follows it.
    waitFor([] { return !wxGetMouseState().RightIsDown(); });
    runEvents();
}

TEST_P(FileListControlTest, TheMenuKeyAsksForTheMenuAtTheFocusedItem) {
    wxPoint place;
    // The window manager may still move the window.
    list.onMenuRequested = [&](wxPoint asked) { place = list.native().ScreenToClient(asked); };
    list.select({1});
    // The toolkit may still be laying the list out.
    EXPECT_TRUE(waitFor([&] {
        wxContextMenuEvent key(wxEVT_CONTEXT_MENU, list.native().GetId(), wxDefaultPosition);
        list.native().HandleWindowEvent(key);
        wxRect item;
        return list.native().GetItemRect(1, item, wxLIST_RECT_LABEL) &&
               place == item.GetBottomLeft();
    }));
}

TEST_P(FileListControlTest, TellsOfManyChangesOnce) {
    changes = 0;
    list.selectAll();
    list.select({1});
    EXPECT_TRUE(waitFor([this] { return changes > 0; }));
    EXPECT_EQ(changes, 1);
}

TEST_P(FileListControlTest, KeepsTheSelectionWhenTheViewChanges) {
    list.select({1, 3});
    list.setView(GetParam() == ListView::Details ? ListView::List : ListView::Details);
    EXPECT_EQ(list.itemCount(), 4u);
    EXPECT_THAT(list.selectedRows(), ElementsAre(1u, 3u));
}

TEST_P(FileListControlTest, KeepsItsNameForEveryView) {
    EXPECT_EQ(list.native().GetName(), "lsvPC");
}

TEST_P(FileListControlTest, KeepsColumnWidthsInEveryView) {
    list.setColumnWidths({120, 0, 140});
    const int builtIn = list.columnWidths()[1];
    EXPECT_GT(builtIn, 0);
    EXPECT_THAT(list.columnWidths(), ElementsAre(120, builtIn, 140));
    list.setView(ListView::Details);
    list.setView(ListView::List);
    list.setView(ListView::Details);
    EXPECT_THAT(list.columnWidths(), ElementsAre(120, builtIn, 140));
}

TEST_P(FileListControlTest, OpensTheItemThatIsActivated) {
    long opened = -1;
    list.onOpen = [&](long row) { opened = row; };
    wxListEvent event(wxEVT_LIST_ITEM_ACTIVATED, list.native().GetId());
    event.m_itemIndex = 2;
    list.native().HandleWindowEvent(event);
    EXPECT_EQ(opened, 2);
}

TEST_P(FileListControlTest, OffersKeysToTheListenerFirst) {
    int offered = 0;
    list.onKey = [&](wxKeyEvent& event) { offered = event.GetKeyCode(); };
    wxKeyEvent event(wxEVT_KEY_DOWN);
    event.m_keyCode = WXK_DELETE;
    list.native().HandleWindowEvent(event);
    EXPECT_EQ(offered, WXK_DELETE);
}

std::string viewName(const testing::TestParamInfo<ListView>& info) {
    const char* const names[] = {"LargeIcons", "SmallIcons", "List", "Details"};
    return names[int(info.param)];
}

INSTANTIATE_TEST_SUITE_P(Views, FileListControlTest,
                         testing::Values(ListView::LargeIcons, ListView::SmallIcons, ListView::List,
                                         ListView::Details),
                         viewName);

class DetailsTest : public FileListControlTest {};

TEST_P(DetailsTest, HasThreeTitledColumns) {
    ASSERT_EQ(list.native().GetColumnCount(), 3);
    wxListItem column;
    column.SetMask(wxLIST_MASK_TEXT);
    list.native().GetColumn(2, column);
    EXPECT_EQ(column.GetText(), "Date");
    EXPECT_EQ(list.native().GetItemText(1, 1), "1234");
    EXPECT_EQ(list.native().GetItemText(1, 2), "2026/11/20 08:05:09");
    EXPECT_EQ(list.native().GetItemText(0, 1), "");
}

TEST_P(DetailsTest, AsksForVisibleRowsOnly) {
    EXPECT_TRUE(list.native().IsVirtual());
}

TEST_P(DetailsTest, NamesTheHeaderThatWasClicked) {
    int clicked = -1;
    list.onColumnClicked = [&](int column) { clicked = column; };
    wxListEvent event(wxEVT_LIST_COL_CLICK, list.native().GetId());
    event.m_col = 1;
    list.native().HandleWindowEvent(event);
    EXPECT_EQ(clicked, 1);
}

INSTANTIATE_TEST_SUITE_P(View, DetailsTest, testing::Values(ListView::Details));

TEST(ListViewTest, AnUnknownDisplayTypeShowsTheList) {
    EXPECT_EQ(listView(0), ListView::LargeIcons);
    EXPECT_EQ(listView(3), ListView::Details);
    EXPECT_EQ(listView(4), ListView::List);
    EXPECT_EQ(listView(-1), ListView::List);
}

} // namespace
} // namespace vantrel::tests
