#include "platform/LanguageNames.h"

#include "base/Text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vantrel {

namespace {

using Language = std::pair<std::string_view, std::string_view>;

/// ISO 639-1 codes and the names that the other system's locale functions give them.
constexpr std::array languages{
    Language{"af", "Afrikaans"},  Language{"ar", "Arabic"},     Language{"be", "Belarusian"},
    Language{"bg", "Bulgarian"},  Language{"bn", "Bangla"},     Language{"bs", "Bosnian"},
    Language{"ca", "Catalan"},    Language{"cs", "Czech"},      Language{"cy", "Welsh"},
    Language{"da", "Danish"},     Language{"de", "German"},     Language{"el", "Greek"},
    Language{"es", "Spanish"},    Language{"et", "Estonian"},   Language{"eu", "Basque"},
    Language{"fa", "Persian"},    Language{"fi", "Finnish"},    Language{"fr", "French"},
    Language{"ga", "Irish"},      Language{"gl", "Galician"},   Language{"he", "Hebrew"},
    Language{"hi", "Hindi"},      Language{"hr", "Croatian"},   Language{"hu", "Hungarian"},
    Language{"id", "Indonesian"}, Language{"is", "Icelandic"},  Language{"it", "Italian"},
    Language{"kk", "Kazakh"},     Language{"ko", "Korean"},     Language{"lt", "Lithuanian"},
    Language{"lv", "Latvian"},    Language{"mk", "Macedonian"}, Language{"mn", "Mongolian"},
    Language{"ms", "Malay"},      Language{"nb", "Norwegian"},  Language{"nl", "Dutch"},
    Language{"nn", "Norwegian"},  Language{"no", "Norwegian"},  Language{"pl", "Polish"},
    Language{"pt", "Portuguese"}, Language{"ro", "Romanian"},   Language{"ru", "Russian"},
    Language{"sk", "Slovak"},     Language{"sl", "Slovenian"},  Language{"sq", "Albanian"},
    Language{"sr", "Serbian"},    Language{"sv", "Swedish"},    Language{"ta", "Tamil"},
    Language{"te", "Telugu"},     Language{"th", "Thai"},       Language{"tr", "Turkish"},
    Language{"uk", "Ukrainian"},  Language{"ur", "Urdu"},       Language{"uz", "Uzbek"},
    Language{"vi", "Vietnamese"}, Language{"zh", "Chinese"},
};

} // namespace

std::string languageNameOfLocale(std::string_view localeName) {
    const std::string code = asciiLower(localeName.substr(0, localeName.find_first_of("_.@-")));
    // Also the long names that old systems use: "japanese", "ja_JP.eucJP", "jpn".
    if (code.starts_with("ja") || code == "jpn")
        return "Japanese";
    const auto found = std::ranges::find(languages, code, &Language::first);
    return std::string(found == languages.end() ? "English" : found->second);
}

} // namespace vantrel
