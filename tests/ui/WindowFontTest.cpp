#include "ui/look/WindowFont.h"

#include "base/ApplicationState.h"
#include "support/NamedRow.h"
#include "support/Windows.h"
#include "ui/look/WindowHolder.h"

#include <wx/frame.h>
#include <wx/panel.h>
#include <wx/settings.h>

namespace vantrel::tests {
namespace {

wxFont systemFont() {
    return wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT);
}

struct SizeRow : NamedRow {
    int recorded;
    int shown; ///< 0 = the system's
};

class CaptionSize : public testing::TestWithParam<SizeRow> {};

TEST_P(CaptionSize, CanBeRead) {
    ApplicationState state;
    state.FontSize = std::int16_t(GetParam().recorded);
    const int wanted = GetParam().shown;
    EXPECT_EQ(captionFont(state).GetPointSize(), wanted ? wanted : systemFont().GetPointSize());
}

INSTANTIATE_TEST_SUITE_P(Sizes, CaptionSize,
                         testing::Values(SizeRow{{"Usual"}, 9, 9}, SizeRow{{"None"}, 0, 0},
                                         SizeRow{{"Negative"}, -5, 0}, SizeRow{{"Tiny"}, 1, 6},
                                         SizeRow{{"Huge"}, 32000, 24}),
                         rowName);

TEST(CaptionFontOf, TheStateIsTakenAsItIs) {
    ApplicationState state;
    state.FontName = "DejaVu Serif";
    state.FontSize = 11;
    state.FontBold = true;
    state.FontItalic = true;
    const auto font = captionFont(state);
    EXPECT_EQ(font.GetFaceName(), "DejaVu Serif");
    EXPECT_EQ(font.GetWeight(), wxFONTWEIGHT_BOLD);
    EXPECT_EQ(font.GetStyle(), wxFONTSTYLE_ITALIC);
}

TEST(CaptionFontOf, AFaceThatIsNotInstalledIsTheSystems) {
    ApplicationState state;
    state.FontName = "No Such Face At All";
    state.FontSize = 9;
    EXPECT_EQ(captionFont(state).GetFaceName(), systemFont().GetFaceName());
    EXPECT_EQ(captionFont(state).GetPointSize(), 9);
}

TEST(ApplyCaptionFont, ReachesEveryControlOfTheWindow) {
    const WindowHolder<wxFrame> frame(new wxFrame(nullptr, wxID_ANY, "frame"));
    auto* const panel = new wxPanel(frame.get());
    auto* const label = new wxStaticText(panel, wxID_ANY, "label");
    ApplicationState state;
    state.FontSize = 17;
    applyCaptionFont(*frame, state);
    EXPECT_EQ(label->GetFont().GetPointSize(), 17);
}

} // namespace
} // namespace vantrel::tests
