#include "base/Text.h"
#include "platform/TextCase.h"

#include <optional>

// The calls with a locale of their own are POSIX; the C++ headers do not promise them.
#include <locale.h> // NOLINT(modernize-deprecated-headers)
#include <wctype.h> // NOLINT(modernize-deprecated-headers)

namespace vantrel {

namespace {

/// The system's character tables without a language's own rules (in Turkish "i" has another
/// capital), and without touching the program's locale.
class CharacterTables {
  public:
    CharacterTables() : locale_(::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr)) {}
    ~CharacterTables() {
        if (locale_)
            ::freelocale(locale_);
    }
    CharacterTables(const CharacterTables&) = delete;
    CharacterTables& operator=(const CharacterTables&) = delete;

    using Mapping = wint_t (*)(wint_t, locale_t);
    char32_t map(char32_t character, Mapping mapping) const {
        return locale_ ? static_cast<char32_t>(mapping(static_cast<wint_t>(character), locale_))
                       : character;
    }

  private:
    locale_t locale_; ///< null on a system without these tables: then only ASCII is mapped
};

/// ASCII, which is mapped already, and the characters of Japanese names, which have no case. They
/// are kept from the tables, whose opening costs more than all the rest.
bool needsNoTables(char32_t character) {
    return character < 0x80 || (character >= 0x3000 && character <= 0x9FFF) ||
           (character >= 0xFF61 && character <= 0xFF9F);
}

/// `text` with its ASCII letters done, as it comes out with all the others done.
std::string mapOthers(std::string text, CharacterTables::Mapping mapping,
                      std::optional<CharacterTables>& tables) {
    if (isAscii(text))
        return text;
    std::u32string characters = codePoints(text);
    for (char32_t& character : characters) {
        if (needsNoTables(character))
            continue;
        if (!tables)
            tables.emplace();
        character = tables->map(character, mapping);
    }
    return utf8(characters);
}

} // namespace

struct UpperCaseMapping::Opened {
    std::optional<CharacterTables> tables;
};

UpperCaseMapping::UpperCaseMapping() : opened_(std::make_unique<Opened>()) {}
UpperCaseMapping::~UpperCaseMapping() = default;

std::string UpperCaseMapping::of(std::string_view text) {
    return mapOthers(asciiUpper(text), ::towupper_l, opened_->tables);
}

std::string upperCase(std::string_view text) {
    std::optional<CharacterTables> tables;
    return mapOthers(asciiUpper(text), ::towupper_l, tables);
}

std::string lowerCase(std::string_view text) {
    std::optional<CharacterTables> tables;
    return mapOthers(asciiLower(text), ::towlower_l, tables);
}

} // namespace vantrel
