#pragma once

#include <string>
#include <string_view>

namespace vantrel {

struct ApplicationState;

/// The caption font that suits the user's language, given by its English name.
void setLocaleFont(std::string_view localeLanguage, ApplicationState& state);

/// Overrides the font fields for each [Font Info] key that is present and not empty. A size is
/// taken as it stands, in range or not: the windows choose the nearest one that can be read. What
/// is no truth value leaves its field alone.
void readFontSettings(const std::string& settingsPath, ApplicationState& state);

} // namespace vantrel
