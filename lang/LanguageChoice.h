#pragma once

#include "lang/FontSettings.h"

#include <string>

namespace vantrel {

struct ApplicationState;
class LanguageFiles;
class MessageBoxes;
class MessageTable;

/// Chooses the language and the caption font at start, into the application state.
class LanguageChoice {
  public:
    /// `localeLanguage` is the English name of the user's language.
    LanguageChoice(ApplicationState& state, MessageTable& table, const LanguageFiles& files,
                   MessageBoxes& boxes, std::string localeLanguage);

    /// The locale's language, else "System"; false, after a message, when neither file can be read.
    bool loadDefaultLanguage();
    /// The language recorded in the settings file, read in; false when the language dialog has to
    /// be shown.
    bool loadLanguagePreference(const std::string& settingsPath);
    /// The locale's default font, then whatever [Font Info] of the settings file says.
    void setDefaultFonts(const std::string& settingsPath);

  private:
    ApplicationState& state_;
    MessageTable& table_;
    const LanguageFiles& files_;
    MessageBoxes& boxes_;
    std::string localeLanguage_;
};

} // namespace vantrel
