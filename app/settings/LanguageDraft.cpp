#include "app/settings/LanguageDraft.h"

#include "base/ApplicationState.h"
#include "base/PathRules.h"
#include "base/Text.h"
#include "lang/LanguageChoice.h"
#include "lang/LanguageFiles.h"
#include "lang/MessageBoxes.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "lang/SystemReasons.h"
#include "link/ShownText.h"
#include "platform/Files.h"
#include "platform/ProfileFile.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vantrel {
namespace {

constexpr const char* fallbackLanguage = "System";

std::string booleanText(bool value) {
    return value ? "True" : "False";
}

} // namespace

LanguageDraft::LanguageDraft(LanguageServices services)
    : services_(std::move(services)), languages_(services_.files.names()),
      languageBefore_(services_.state.LanguageName), fontBefore_(font()),
      ignoreAtStart_(services_.state.LangSelect == 0) {
    services_.state.LangCancelled = false;
    pickInitialLanguage();
    services_.choice.setDefaultFonts(services_.settingsPath);
}

void LanguageDraft::pickInitialLanguage() {
    auto& language = services_.state.LanguageName;
    if (language.empty())
        language = services_.localeLanguage;
    if (!services_.files.exists(language))
        language = fallbackLanguage;
    // Some language is always chosen, so that OK has one to take; and in the file's own spelling,
    // since the manual is chosen by it.
    if (!languages_.empty())
        select(selected().value_or(0));
}

std::optional<std::size_t> LanguageDraft::selected() const {
    const auto found = std::ranges::find_if(languages_, [this](const std::string& name) {
        return equalsIgnoringAsciiCase(name, services_.state.LanguageName);
    });
    if (found == languages_.end())
        return {};
    return std::size_t(found - languages_.begin());
}

void LanguageDraft::select(std::size_t index) {
    if (index < languages_.size())
        services_.state.LanguageName = languages_[index];
}

std::string LanguageDraft::iconPath() const {
    const auto index = selected();
    if (!index)
        return {};
    const auto name = findIgnoringCase(services_.programFolder, languages_[*index] + ".ico");
    return name.empty() ? name : PathRules().join(services_.programFolder, name);
}

CaptionFont LanguageDraft::font() const {
    const auto& state = services_.state;
    return {state.FontName, state.FontBold, state.FontItalic, state.FontSize};
}

void LanguageDraft::setFont(const CaptionFont& font) {
    auto& state = services_.state;
    state.FontName = font.name;
    state.FontBold = font.bold;
    state.FontItalic = font.italic;
    state.FontSize = font.size;
}

void LanguageDraft::edit() const {
    const auto path = services_.files.pathOf(services_.state.LanguageName);
    const auto opened = path.empty() ? Outcome(Failure{}) : services_.editTextFile(path);
    if (!opened)
        services_.boxes.tell(bracketed(services_.state.LanguageName + ".lng") +
                                 services_.messages.getMessage(message::editorNotStarted) + ' ' +
                                 reasonInLanguage(services_.messages, opened.reason()),
                             BoxIcon::Exclamation);
}

bool LanguageDraft::confirm() {
    auto& state = services_.state;
    const auto read = services_.files.readInto(state.LanguageName, services_.messages);
    if (!read) {
        services_.boxes.tell(services_.messages.getMessage(message::languageFileNotRead) +
                                 bracketed(state.LanguageName + ".lng") + ' ' +
                                 reasonInLanguage(services_.messages, read.reason()),
                             BoxIcon::Exclamation);
        return false;
    }
    state.LangSelect = ignoreAtStart_ ? 0 : 1;
    record();
    return true;
}

/// As everywhere, settings that cannot be written are not reported: the choice counts until the
/// program ends. A value that the file cannot express does not keep the others out of it.
void LanguageDraft::record() const {
    const auto& state = services_.state;
    ProfileFile settings(services_.settingsPath);
    settings.set("Language Info", "Language", state.LanguageName);
    settings.set("Language Info", "LangSelect", std::to_string(state.LangSelect));
    settings.set("Font Info", "FontName", state.FontName);
    settings.set("Font Info", "FontBOLD", booleanText(state.FontBold));
    settings.set("Font Info", "FontItalic", booleanText(state.FontItalic));
    settings.set("Font Info", "FontSize", std::to_string(state.FontSize));
    settings.save();
}

void LanguageDraft::abandon() {
    services_.state.LanguageName = languageBefore_;
    setFont(fontBefore_);
    services_.state.LangCancelled = true;
}

} // namespace vantrel
