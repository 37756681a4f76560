#pragma once

#include <string>
#include <string_view>

namespace vantrel {

struct ApplicationState;

/// The caption font that suits the user's language, given by its English name.
void setLocaleFont(std::string_view localeLanguage, ApplicationState& state);

/// Overrides the font fields for each [Font Info] key that is present and not empty. What is no
/// truth value or no usable font size leaves its field alone, so that the font can always be shown.
void readFontSettings(const std::string& settingsPath, ApplicationState& state);

} // namespace vantrel
