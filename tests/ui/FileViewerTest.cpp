#include "ui/FileViewer.h"

#include "support/Windows.h"

#include <wx/frame.h>
#include <wx/menu.h>
#include <wx/panel.h>
#include <wx/sizer.h>

namespace vantrel::tests {
namespace {

class FileViewerTest : public testing::Test {
  protected:
    FileViewerTest() {
        auto* sizer = new wxBoxSizer(wxVERTICAL);
        sizer->Add(&before, 0);
        sizer->Add(&viewer, 1, wxEXPAND);
        sizer->Add(&after, 0);
        panel.SetSizer(sizer);
        frame.SetClientSize(400, 300);
        frame.Show();
        waitFor([this] { return frame.IsShownOnScreen() && frame.IsActive(); });
        viewer.SetFocus();
        waitFor([this] { return viewer.HasFocus(); });
    }
    ~FileViewerTest() override {
        frame.Destroy();
        runEvents();
    }

    void showWhole(const std::string& text) {
        text_ = text;
        viewer.showText(text_);
        ASSERT_TRUE(waitFor([this] { return viewer.isWhole(); }));
    }
    std::string shown() const { return viewer.GetValue().utf8_string(); }

    wxFrame& frame = *new wxFrame(nullptr, wxID_ANY, "viewer");
    wxPanel& panel = *new wxPanel(&frame);
    wxTextCtrl& before = *new wxTextCtrl(&panel, wxID_ANY);
    FileViewer& viewer = *new FileViewer(&panel, "rtxFileDisp");
    wxTextCtrl& after = *new wxTextCtrl(&panel, wxID_ANY);
    std::string text_;
};

/// Numbered lines, more than one slice of them.
std::string manyLines(int count) {
    std::string text;
    for (int line = 0; line < count; ++line)
        text += "MOVL C" + std::to_string(100000 + line) + " '\u958B\r\n";
    return text;
}

TEST_F(FileViewerTest, TypingChangesNothing) {
    showWhole("NOP\r\nEND\r\n");
    for (const int key : {int('A'), int('1'), int(WXK_RETURN), int(WXK_DELETE), int(WXK_BACK)}) {
        pressKey(key);
        runEvents();
    }
    pressKey(WXK_RIGHT); // what was pressed before it has arrived too
    ASSERT_TRUE(waitFor([this] { return viewer.GetInsertionPoint() > 0; }));
    EXPECT_EQ(shown(), "NOP\nEND\n");
}

TEST_F(FileViewerTest, TheArrowKeysMoveTheCaret) {
    showWhole("NOP\r\nEND\r\n");
    EXPECT_EQ(viewer.GetInsertionPoint(), 0);
    const auto moves = [this](int key, long to) {
        pressKey(key);
        return waitFor([this, to] { return viewer.GetInsertionPoint() == to; });
    };
    EXPECT_TRUE(moves(WXK_RIGHT, 1));
    EXPECT_TRUE(moves(WXK_DOWN, 5));
    EXPECT_TRUE(moves(WXK_UP, 1));
    EXPECT_TRUE(moves(WXK_LEFT, 0));
}

TEST_F(FileViewerTest, OtherKeysThatWouldMoveTheCaretOrSelectDoNot) {
    showWhole("NOP\r\nEND\r\n");
    pressKey(WXK_END);
    pressKey(WXK_PAGEDOWN);
    pressKey('A', wxMOD_CONTROL);
    pressKey(WXK_RIGHT);
    ASSERT_TRUE(waitFor([this] { return viewer.GetInsertionPoint() > 0; }));
    EXPECT_EQ(viewer.GetInsertionPoint(), 1);
    EXPECT_EQ(viewer.GetStringSelection(), "");
}

TEST_F(FileViewerTest, ArrowsWithShiftSelect) {
    showWhole("NOP\r\nEND\r\n");
    pressKey(WXK_RIGHT, wxMOD_SHIFT);
    EXPECT_TRUE(waitFor([this] { return viewer.GetStringSelection() == "N"; }));
}

TEST_F(FileViewerTest, TabLeadsOutInBothDirections) {
    showWhole("NOP\r\n");
    pressKey(WXK_TAB);
    EXPECT_TRUE(waitFor([this] { return after.HasFocus(); }));
    viewer.SetFocus();
    waitFor([this] { return viewer.HasFocus(); });
    pressKey(WXK_TAB, wxMOD_SHIFT);
    EXPECT_TRUE(waitFor([this] { return before.HasFocus(); }));
    EXPECT_EQ(shown(), "NOP\n");
}

TEST_F(FileViewerTest, KeysOfTheWindowReachIt) {
    int seen = 0;
    frame.Bind(
        wxEVT_MENU, [&](wxCommandEvent&) { ++seen; }, wxID_REFRESH);
    auto* menu = new wxMenu;
    menu->Append(wxID_REFRESH, "Refresh\tF5");
    auto* bar = new wxMenuBar;
    bar->Append(menu, "File");
    frame.SetMenuBar(bar);
    runEvents();
    pressKey(WXK_F5);
    EXPECT_TRUE(waitFor([&] { return seen == 1; }));
}

TEST_F(FileViewerTest, ALargeTextIsShownAtOnceAndCompletedWhenThereIsTime) {
    text_ = manyLines(20000);
    viewer.showText(text_);
    EXPECT_EQ(shown().substr(0, 17), "MOVL C100000 '\u958B");
    EXPECT_FALSE(viewer.isWhole());
    ASSERT_TRUE(waitFor([this] { return viewer.isWhole(); }));
    wxString expected = wxString::FromUTF8(text_);
    expected.Replace("\r\n", "\n");
    EXPECT_EQ(viewer.GetValue(), expected);
}

TEST_F(FileViewerTest, WhatIsAppendedLeavesCaretSelectionAndScrollingAlone) {
    text_ = manyLines(20000);
    viewer.showText(text_);
    viewer.SetSelection(2, 5);
    long column = -1, line = -1;
    viewer.HitTest(wxPoint(5, 5), &column, &line);
    ASSERT_TRUE(waitFor([this] { return viewer.isWhole(); }));
    EXPECT_EQ(viewer.GetStringSelection(), "VL ");
    long columnAfter = -1, lineAfter = -1;
    viewer.HitTest(wxPoint(5, 5), &columnAfter, &lineAfter);
    EXPECT_EQ(lineAfter, line);
}

TEST_F(FileViewerTest, AnotherTextEndsTheAppendingOfTheFirst) {
    const auto first = manyLines(20000);
    viewer.showText(first);
    showWhole("SECOND\r\n");
    runEvents();
    EXPECT_EQ(shown(), "SECOND\n");
}

TEST_F(FileViewerTest, ClearingEndsTheAppending) {
    const auto first = manyLines(20000);
    viewer.showText(first);
    viewer.clear();
    runEvents();
    EXPECT_TRUE(viewer.isWhole());
    EXPECT_EQ(shown(), "");
}

TEST_F(FileViewerTest, BytesThatAreNoTextAreNoHarm) {
    std::string bytes(200000, '\xFF');
    showWhole(bytes);
    EXPECT_FALSE(shown().empty());
}

TEST_F(FileViewerTest, AnAmpersandIsShown) {
    showWhole("A && B\r\n");
    EXPECT_EQ(shown(), "A && B\n");
}

} // namespace
} // namespace vantrel::tests
