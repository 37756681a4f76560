#include "lang/LanguageChoice.h"

#include "base/ApplicationState.h"
#include "lang/FontSettings.h"
#include "lang/LanguageFiles.h"
#include "lang/MessageBoxes.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "platform/ProfileFile.h"

#include <optional>
#include <utility>

namespace vantrel {

namespace {

constexpr const char* lastResort = "System";
constexpr const char* section = "Language Info";
constexpr std::size_t nameBuffer = 101; ///< 100 characters and the end

/// The recorded language, empty where it is recorded as such; nothing when the key is missing.
std::optional<std::string> recordedLanguage(const ProfileFile& settings) {
    constexpr const char* missing = "\n"; // no value can hold a line end
    auto name = settings.text(section, "Language", missing, nameBuffer);
    if (name == missing)
        return std::nullopt;
    return name;
}

} // namespace

LanguageChoice::LanguageChoice(ApplicationState& state, MessageTable& table,
                               const LanguageFiles& files, MessageBoxes& boxes,
                               std::string localeLanguage)
    : state_(state), table_(table), files_(files), boxes_(boxes),
      localeLanguage_(std::move(localeLanguage)) {}

bool LanguageChoice::loadDefaultLanguage() {
    state_.LanguageName = localeLanguage_;
    if (files_.readInto(state_.LanguageName, table_))
        return true;
    state_.LanguageName = lastResort;
    if (files_.readInto(state_.LanguageName, table_))
        return true;
    boxes_.tell("Language File Read Error.(" + state_.LanguageName + ".lng)", BoxIcon::Exclamation);
    return false;
}

bool LanguageChoice::loadLanguagePreference(const std::string& settingsPath) {
    const ProfileFile settings(settingsPath);
    if (auto recorded = recordedLanguage(settings))
        state_.LanguageName = std::move(*recorded);
    state_.LangSelect = settings.shortInteger(section, "LangSelect", 1);
    if (state_.LanguageName.empty() || state_.LangSelect != 0)
        return false;
    if (files_.readInto(state_.LanguageName, table_))
        return true;
    boxes_.tell(
        table_.getMessageWithInsertion(message::languageFileMissing, state_.LanguageName + ".lng"),
        BoxIcon::None);
    state_.LanguageName.clear();
    return false;
}

void LanguageChoice::setDefaultFonts(const std::string& settingsPath) {
    setLocaleFont(localeLanguage_, state_);
    readFontSettings(settingsPath, state_);
}

} // namespace vantrel
