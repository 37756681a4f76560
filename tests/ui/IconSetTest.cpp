#include "ui/look/IconSet.h"

#include "support/Windows.h"

#include <set>

#include <wx/dcmemory.h>
#include <wx/iconbndl.h>
#include <wx/image.h>

namespace vantrel::tests {
namespace {

constexpr const char* requiredKeys[] = {
    "FileCopy",  "FileMove", "FileDelete", "AllSelect",     "Refresh",    "modeHiSpeed",
    "modeBsc",   "DispBig",  "DispSmall",  "DispList",      "DispDetail", "FileDisp",
    "UpFolder",  "Print",    "PCButton",   "CTRLButton",    "folder",     "file",
    "filejob",   "drive",    "dropDown",   "open",          "vantrel",    "arrowToController",
    "arrowToPC", "close",    "searchNext", "searchPrevious"};

/// How many pixels of an icon differ clearly from a tool bar of this grey.
int visiblePixels(const wxBitmap& bitmap, unsigned char grey) {
    wxBitmap canvas(bitmap.GetSize());
    {
        wxMemoryDC dc(canvas);
        dc.SetBackground(wxBrush(wxColour(grey, grey, grey)));
        dc.Clear();
        dc.DrawBitmap(bitmap, 0, 0, true);
    }
    const wxImage image = canvas.ConvertToImage();
    int visible = 0;
    for (int pixel = 0; pixel < image.GetWidth() * image.GetHeight(); ++pixel) {
        const auto* const rgb = image.GetData() + 3 * pixel;
        for (int channel = 0; channel < 3; ++channel)
            if (std::abs(rgb[channel] - grey) > 60) {
                ++visible;
                break;
            }
    }
    return visible;
}

class IconTest : public testing::TestWithParam<const char*> {};

TEST_P(IconTest, IsDrawnAtEverySize) {
    const auto bundle = icon(GetParam(), wxSize(16, 16));
    ASSERT_TRUE(bundle.IsOk());
    for (const int size : {16, 24, 32, 48})
        EXPECT_EQ(bundle.GetBitmap(wxSize(size, size)).GetSize(), wxSize(size, size));
}

TEST_P(IconTest, CanBeSeenOnLightAndDarkToolBars) {
    const auto bitmap = icon(GetParam(), wxSize(16, 16)).GetBitmap(wxSize(16, 16));
    EXPECT_GE(visiblePixels(bitmap, 0xF0), 24);
    EXPECT_GE(visiblePixels(bitmap, 0x2B), 24);
}

INSTANTIATE_TEST_SUITE_P(Keys, IconTest, testing::ValuesIn(requiredKeys),
                         [](const auto& each) { return std::string(each.param); });

TEST(IconSet, AnUnknownKeyGivesNoPicture) {
    EXPECT_FALSE(icon("unknown", wxSize(16, 16)).IsOk());
    EXPECT_FALSE(icon("", wxSize(16, 16)).IsOk());
}

TEST(IconSet, NoDrawingIsSuperfluous) {
    for (const auto& drawing : iconDrawings())
        EXPECT_NE(std::ranges::find(requiredKeys, drawing.key), std::end(requiredKeys))
            << drawing.key;
}

TEST(IconSet, EveryKeyHasItsOwnPicture) {
    std::set<std::string> pictures;
    for (const char* const key : requiredKeys) {
        const wxImage image = icon(key, wxSize(32, 32)).GetBitmap(wxSize(32, 32)).ConvertToImage();
        const std::size_t pixels = 32 * 32;
        pictures.insert(std::string(reinterpret_cast<const char*>(image.GetData()), 3 * pixels) +
                        std::string(reinterpret_cast<const char*>(image.GetAlpha()), pixels));
    }
    EXPECT_EQ(pictures.size(), std::size(requiredKeys));
}

TEST(IconSet, TheProgramHasItsIconInAllUsualSizes) {
    const auto icons = programIcons();
    for (const int size : {16, 32, 48, 256})
        EXPECT_EQ(icons.GetIcon(wxSize(size, size), wxIconBundle::FALLBACK_NONE).GetWidth(), size);
}

/// A picture of all icons at four sizes, for whoever changes a drawing.
TEST(IconSet, FitTogetherOnOneSheet) {
    constexpr int sizes[] = {16, 24, 32, 48};
    const int rows = int(std::size(requiredKeys)), rowHeight = 56, half = 180;
    wxBitmap sheet(2 * half, rows * rowHeight);
    {
        wxMemoryDC dc(sheet);
        dc.SetPen(*wxTRANSPARENT_PEN);
        for (int side = 0; side < 2; ++side) {
            const unsigned char grey = side == 0 ? 0xF0 : 0x2B;
            dc.SetBrush(wxBrush(wxColour(grey, grey, grey)));
            dc.DrawRectangle(side * half, 0, half, rows * rowHeight);
            for (int row = 0; row < rows; ++row)
                for (int x = side * half + 8; const int size : sizes) {
                    const wxSize square(size, size);
                    dc.DrawBitmap(icon(requiredKeys[row], square).GetBitmap(square), x,
                                  row * rowHeight + 4, true);
                    x += size + 10;
                }
        }
    }
    const wxImage image = sheet.ConvertToImage();
    EXPECT_TRUE(image.IsOk());
    if (const char* const folder = std::getenv("VANTREL_SCREENSHOTS")) {
        EXPECT_TRUE(image.SaveFile(wxString(folder) + "/icons.bmp", wxBITMAP_TYPE_BMP));
    }
}

} // namespace
} // namespace vantrel::tests
