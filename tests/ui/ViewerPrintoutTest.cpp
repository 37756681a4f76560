#include "DialogTest.h"
#include "ui/WxFilePrinter.h"

#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/image.h>

namespace vantrel::tests {
namespace {

/// Paper of A4's size as a picture, 100 pixels to the inch.
class ViewerPrintoutTest : public DialogTest {
  protected:
    static constexpr int resolution = 100, width = 827, height = 1169;

    ViewerPrintoutTest() {
        dc.SelectObject(paper);
        dc.SetBackground(*wxWHITE_BRUSH);
        dc.Clear();
    }

    ViewerPrintout& printout(std::string_view text, const std::string& name = "A.JBI") {
        printout_.emplace(PrintedFile{name, folder_, "2026/11/20 07:30:00"}, text,
                          "2026/11/21 08:05", messages);
        printout_->SetDC(&dc);
        printout_->SetPPIScreen(resolution, resolution);
        printout_->SetPPIPrinter(resolution, resolution);
        printout_->SetPageSizePixels(width, height);
        printout_->SetPageSizeMM(210, 297);
        printout_->OnPreparePrinting();
        return *printout_;
    }

    int pages() {
        int first = 0, last = 0, from = 0, to = 0;
        printout_->GetPageInfo(&first, &last, &from, &to);
        EXPECT_EQ(first, 1);
        EXPECT_EQ(to, last);
        return last;
    }

    wxImage drawn() {
        dc.SelectObject(wxNullBitmap);
        const wxImage picture = paper.ConvertToImage();
        dc.SelectObject(paper);
        return picture;
    }

    /// The smallest rectangle that holds everything drawn within a part of the paper, given in
    /// millimetres; empty when there is nothing.
    wxRect inkBetween(double top, double bottom) {
        const wxImage picture = drawn();
        const auto pixel = [](double millimetres) { return int(millimetres / 25.4 * resolution); };
        wxRect ink;
        for (int y = pixel(top); y < std::min(height, pixel(bottom)); ++y)
            for (int x = 0; x < width; ++x)
                if (picture.GetRed(x, y) < 128)
                    ink.Union(wxRect(x, y, 1, 1));
        return ink;
    }

    wxBitmap paper{width, height};
    wxMemoryDC dc;
    std::string folder_ = "/srv/jobs";
    std::optional<ViewerPrintout> printout_;
};

TEST_F(ViewerPrintoutTest, CarriesNameAndDateAboveTextAndPageNumberBelow) {
    ASSERT_TRUE(printout("NOP\r\n").OnPrintPage(1));
    EXPECT_EQ(pages(), 1);
    const auto heading = inkBetween(14, 19.2);
    EXPECT_LT(heading.GetLeft(), 100);        // the name begins at the left margin
    EXPECT_GT(heading.GetRight(), 827 - 100); // the date ends at the right one
    const auto second = inkBetween(19.5, 23.2);
    EXPECT_LT(second.GetLeft(), 100);             // the folder
    EXPECT_GT(second.GetRight(), 827 - 100);      // the file's date
    EXPECT_FALSE(inkBetween(27.2, 32).IsEmpty()); // the text
    EXPECT_TRUE(inkBetween(34, 270).IsEmpty());
    const auto number = inkBetween(270, 297);
    EXPECT_GT(number.GetLeft(), 300);
    EXPECT_LT(number.GetRight(), 527);
}

TEST_F(ViewerPrintoutTest, KeepsTheMargins) {
    std::string text;
    for (int line = 0; line < 200; ++line)
        text += std::string(300, 'W') + "開く\r\n";
    folder_ = '/' + std::string(300, 'F');
    ASSERT_TRUE(printout(text, std::string(300, 'N')).OnPrintPage(1));
    const auto ink = inkBetween(0, 297);
    constexpr int margin = 55; // pixels; 14 of the 15 millimetres
    EXPECT_GE(ink.GetLeft(), margin);
    EXPECT_GE(ink.GetTop(), margin);
    EXPECT_LE(ink.GetRight(), width - margin);
    EXPECT_LE(ink.GetBottom(), height - margin);
    EXPECT_GT(ink.GetRight(), width - 2 * margin);
}

TEST_F(ViewerPrintoutTest, CountsItsPagesFromThePaper) {
    std::string text;
    for (int line = 0; line < 150; ++line)
        text += "MOVJ C" + std::to_string(line) + "\r\n";
    printout(text);
    EXPECT_EQ(pages(), 3);
    EXPECT_TRUE(printout_->HasPage(3));
    EXPECT_FALSE(printout_->HasPage(0));
    EXPECT_FALSE(printout_->HasPage(4));
    EXPECT_FALSE(printout_->OnPrintPage(4));
}

TEST_F(ViewerPrintoutTest, AnEmptyTextIsOnePageWithItsHeading) {
    ASSERT_TRUE(printout("").OnPrintPage(1));
    EXPECT_EQ(pages(), 1);
    EXPECT_FALSE(inkBetween(14, 19.2).IsEmpty());
    EXPECT_TRUE(inkBetween(27.2, 270).IsEmpty());
}

TEST_F(ViewerPrintoutTest, EachPageHasItsOwnLines) {
    std::string text(60, '\n'); // more than the first page, which is empty but for its frame
    text += "\nNOP\n";
    printout(text);
    ASSERT_EQ(pages(), 2);
    ASSERT_TRUE(printout_->OnPrintPage(1));
    EXPECT_TRUE(inkBetween(27.2, 270).IsEmpty());
    ASSERT_TRUE(printout_->OnPrintPage(2));
    EXPECT_FALSE(inkBetween(27.2, 60).IsEmpty());
}

TEST_F(ViewerPrintoutTest, ATinyPaperIsNoHarm) {
    printout("NOP\r\n");
    printout_->SetPageSizePixels(1, 1);
    printout_->OnPreparePrinting();
    EXPECT_GE(pages(), 1);
    EXPECT_TRUE(printout_->OnPrintPage(1));
}

TEST_F(ViewerPrintoutTest, LooksFinished) {
    std::string text = "NOP\n'ハンド開 ｱｲｳ 12\n\tMOVJ\tC00000\tVJ=25.00\n";
    for (int line = 0; line < 100; ++line)
        text += "MOVL C" + std::to_string(10000 + line) + " V=120.0\n";
    text += std::string(200, 'x');
    ASSERT_TRUE(printout(text, "日本語の名前.JBI").OnPrintPage(1));
    const char* const folder = std::getenv("VANTREL_SCREENSHOTS");
    if (folder) {
        EXPECT_TRUE(drawn().SaveFile(wxString(folder) + "/printed-page.bmp", wxBITMAP_TYPE_BMP));
    }
}

} // namespace
} // namespace vantrel::tests
