#include "base/TextCase.h"

#include "base/Text.h"

namespace vantrel {

namespace {

using Mapping = char32_t (*)(char32_t);

/// `text` with its ASCII letters done, as it comes out with all the others done.
std::string mapOthers(std::string text, Mapping mapping) {
    if (isAscii(text))
        return text;
    std::u32string characters = codePoints(text);
    for (char32_t& character : characters)
        character = mapping(character);
    return utf8(characters);
}

/// From alpha to omega, but for the final sigma.
bool isPlainSmallGreek(char32_t character) {
    return character >= U'\u03B1' && character <= U'\u03C9' && character != U'\u03C2';
}

} // namespace

std::string upperCase(std::string_view utf8) {
    return mapOthers(asciiUpper(utf8), upperCaseOf);
}

std::string lowerCase(std::string_view utf8) {
    return mapOthers(asciiLower(utf8), lowerCaseOf);
}

std::string normalisedJobName(std::string_view name) {
    const std::u32string original = codePoints(name);
    std::u32string normalised = codePoints(upperCase(name));
    for (std::size_t i = 0; i < original.size(); ++i) {
        if (isPlainSmallGreek(original[i]))
            normalised[i] = original[i];
    }
    return utf8(normalised);
}

} // namespace vantrel
