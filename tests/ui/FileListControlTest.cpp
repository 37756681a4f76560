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

    std::optional<FileKind> selectedKind() {
        const auto row = list.selectedRow();
        return row ? std::optional(world.rows.kind(*row)) : std::nullopt;
    }
    void focusRow(long row) {
        list.native().SetItemState(row, wxLIST_STATE_FOCUSED, wxLIST_STATE_FOCUSED);
    }
    wxPoint placeOf(long row) {
        wxRect item;
        EXPECT_TRUE(list.native().GetItemRect(row, item, wxLIST_RECT_LABEL));
#ifdef __WXGTK__
        // The toolkit's own list counts the picture to the text, and no drag begins around it.
        const int below = GetParam() == ListView::LargeIcons ? 22 : 0;
#else
        const int below = 0;
#endif
        return list.native().ClientToScreen(item.GetPosition() + item.GetSize() / 2 +
                                            wxPoint(0, below));
    }

    wxFrame* frame = new wxFrame(nullptr, wxID_ANY, "lists");
    FileListControl& list = *new FileListControl(frame, "lsvPC");
    PaneWorld world{{"B.JBI", "A.JBI", "FOLDER/", "C.TXT"}};
    int changes = 0;
};

TEST_P(FileListControlTest, AnEmptyListSaysWhyInPlaceOfItems) {
    list.setHints({"Not read", "Nothing here", "All are filtered, all of them, by a long filter",
                   "None found"});
    EXPECT_EQ(list.hint(), "");
    const auto expectEmpty = [this](const wxString& hint) {
        list.show(world.rows);
        runEvents();
        EXPECT_EQ(list.hint(), hint);
        EXPECT_EQ(list.itemCount(), 0u);
        EXPECT_TRUE(list.selectedRows().empty());
    };
    world.fill({});
    expectEmpty("Not read");
    world.listing.isRead = true;
    expectEmpty("Nothing here");
    list.setView(ListView::LargeIcons, Appearance::Flat);
    EXPECT_EQ(list.hint(), "Nothing here");
    list.setHints({"1", "2", "3", "4"});
    EXPECT_EQ(list.hint(), "2");
    world.fill({"A.JBI"});
    list.show(world.rows);
    EXPECT_EQ(list.hint(), "");
    EXPECT_EQ(list.itemCount(), 1u);
    world.rows.fill([](std::string_view) { return false; });
    world.listing.isRead = true;
    expectEmpty("3");
}

TEST_P(FileListControlTest, ShowsTheRowsInTheirOrder) {
    ASSERT_EQ(list.itemCount(), 4u);
    EXPECT_EQ(list.native().GetItemText(0), "FOLDER");
    EXPECT_EQ(list.native().GetItemText(1), "A.JBI");
    EXPECT_EQ(list.native().GetItemText(3), "C.TXT");
}

TEST_P(FileListControlTest, TheHeaderPointsOutTheOrderOfTheRows) {
    list.setView(ListView::Details); // of the views the only one with a header
    EXPECT_EQ(list.native().GetSortIndicator(), 0);
    EXPECT_TRUE(list.native().IsAscendingSortIndicator());
    world.listing.SortType = sort_column::date;
    world.listing.SortDir = 1;
    list.show(world.rows);
    EXPECT_EQ(list.native().GetSortIndicator(), 2);
    EXPECT_FALSE(list.native().IsAscendingSortIndicator());
    list.setView(GetParam());
    list.setView(ListView::List);
    list.setView(ListView::Details);
    EXPECT_EQ(list.native().GetSortIndicator(), 2) << "after another view";
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
    EXPECT_EQ(list.selectedRow(), 0u);
    EXPECT_EQ(selectedKind(), FileKind::Folder);
}

TEST_P(FileListControlTest, ShowsNothingOfAnEmptyPane) {
    world.fill({});
    list.show(world.rows);
    EXPECT_EQ(list.itemCount(), 0u);
    EXPECT_TRUE(list.selectedRows().empty());
    EXPECT_EQ(list.selectedRow(), std::nullopt);
}

TEST_P(FileListControlTest, ShowsWhatChangedBetweenTwoFillsOfTheSameLength) {
    world.fill({"B.JBI", "A.JBI", "FOLDER/", "D.TXT"});
    list.show(world.rows);
    EXPECT_EQ(list.native().GetItemText(3), "D.TXT");
    EXPECT_EQ(list.native().GetItemText(1), "A.JBI");
    // A file that has become a folder of the same name keeps its place.
    world.fill({"B.JBI", "A.JBI/"});
    list.show(world.rows);
    EXPECT_EQ(selectedKind(), FileKind::Folder);
    world.fill({"A.JBI", "B.JBI"});
    list.show(world.rows);
    wxListItem first;
    first.SetId(0);
    first.SetMask(wxLIST_MASK_IMAGE);
    ASSERT_TRUE(list.native().GetItem(first));
    constexpr int jobImage = 1;
    EXPECT_EQ(first.GetImage(), jobImage);
}

TEST_P(FileListControlTest, SelectsTheseRowsAndNoOthers) {
    list.select({1, 3});
    EXPECT_THAT(list.selectedRows(), ElementsAre(1u, 3u));
    EXPECT_EQ(selectedKind(), FileKind::JobFile);
    list.select({2});
    EXPECT_THAT(list.selectedRows(), ElementsAre(2u));
}

TEST_P(FileListControlTest, SelectsAll) {
    list.selectAll();
    EXPECT_THAT(list.selectedRows(), ElementsAre(0u, 1u, 2u, 3u));
    EXPECT_EQ(selectedKind(), FileKind::JobFile) << "the commands would be off";
}

TEST_P(FileListControlTest, TheFocusedRowIsMeantOnlyAsLongAsItIsSelected) {
    list.select({1, 3});
    focusRow(3);
    EXPECT_EQ(list.selectedRow(), 3u);
    focusRow(2);
    EXPECT_EQ(list.selectedRow(), 1u);
    list.native().Select(1, false);
    list.native().Select(3, false);
    EXPECT_EQ(list.selectedRow(), std::nullopt) << "the focus alone selects nothing";
}

TEST_P(FileListControlTest, EveryRowHasThePictureOfItsKind) {
    // Folder, job and plain file, as the list of pictures has them.
    const int expected[] = {0, 1, 1, 2};
    for (long row = 0; row < 4; ++row) {
        wxListItem item;
        item.SetId(row);
        item.SetMask(wxLIST_MASK_IMAGE);
        ASSERT_TRUE(list.native().GetItem(item));
        EXPECT_EQ(item.GetImage(), expected[row]) << row;
    }
}

TEST_P(FileListControlTest, AnUpdateLeavesWhatIsSeenAtItsPlace) {
    std::vector<std::string> names;
    for (int file = 100; file < 200; ++file)
        names.push_back("F" + std::to_string(file) + ".JBI");
    world.fill(names);
    list.show(world.rows);
    list.native().EnsureVisible(99);
    runEvents();
    const bool isDetails = list.view() == ListView::Details;
    const long top = isDetails ? list.native().GetTopItem() : 0;
    names.push_back("F200.JBI");
    world.fill(names);
    list.update(world.rows, {50, 51}, 51);
    runEvents();
    EXPECT_EQ(list.itemCount(), 101u);
    if (isDetails)
        EXPECT_EQ(list.native().GetTopItem(), top);
    EXPECT_THAT(list.selectedRows(), ElementsAre(50u, 51u));
    EXPECT_EQ(list.selectedRow(), 51u);
    list.update(world.rows, {}, std::nullopt);
    EXPECT_TRUE(list.selectedRows().empty());
}

TEST_P(FileListControlTest, ADragOfSeveralTakesThemAll) {
    std::vector<std::size_t> dragged;
    list.onDragBegun = [&] { dragged = list.selectedRows(); };
    list.focus();
    list.select({1, 2});
    runEvents();
    wxUIActionSimulator mouse;
    const wxPoint from = placeOf(2);
    mouse.MouseMove(from);
    runEvents();
    mouse.MouseDown();
    runEvents();
    for (int step = 1; step <= 10 && dragged.empty(); ++step) {
        mouse.MouseMove(from + wxPoint(4 * step, 4 * step));
        runEvents();
    }
    EXPECT_TRUE(waitFor([&] { return !dragged.empty(); }));
    mouse.MouseUp();
    EXPECT_THAT(dragged, ElementsAre(1u, 2u));
    EXPECT_TRUE(waitFor([] { return !wxGetMouseState().LeftIsDown(); }));
    runEvents();
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
