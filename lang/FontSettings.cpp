#include "lang/FontSettings.h"

#include "base/ApplicationState.h"
#include "base/Numbers.h"
#include "platform/ProfileFile.h"

#include <utility>

namespace vantrel {

namespace {

constexpr std::string_view section = "Font Info";
constexpr std::size_t valueBuffer = 100;

void readTruthValue(const ProfileFile& settings, std::string_view key, bool& field) {
    field = truthValue(settings.text(section, key, "", valueBuffer)).value_or(field);
}

} // namespace

void setLocaleFont(std::string_view localeLanguage, ApplicationState& state) {
    const bool japanese = localeLanguage == "Japanese";
    state.FontName = japanese ? "ＭＳ Ｐゴシック" : "MS Sans Serif";
    state.FontBold = !japanese;
    state.FontItalic = false;
    state.FontSize = japanese ? 9 : 8;
}

void readFontSettings(const std::string& settingsPath, ApplicationState& state) {
    const ProfileFile settings(settingsPath);
    if (auto name = settings.text(section, "FontName", "", valueBuffer); !name.empty())
        state.FontName = std::move(name);
    readTruthValue(settings, "FontBOLD", state.FontBold);
    readTruthValue(settings, "FontItalic", state.FontItalic);
    if (const auto size = settings.text(section, "FontSize", "", valueBuffer); !size.empty())
        state.FontSize = leadingInteger16(size);
}

} // namespace vantrel
