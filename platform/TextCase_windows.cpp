#include "base/Text.h"
#include "platform/CaseRanges_windows.h"
#include "platform/TextCase.h"

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

} // namespace

/// The tables are part of the program: there is nothing to open.
struct UpperCaseMapping::Opened {};

UpperCaseMapping::UpperCaseMapping() = default;
UpperCaseMapping::~UpperCaseMapping() = default;

std::string UpperCaseMapping::of(std::string_view text) {
    return upperCase(text);
}

std::string upperCase(std::string_view text) {
    return mapOthers(asciiUpper(text), upperCaseOf);
}

std::string lowerCase(std::string_view text) {
    return mapOthers(asciiLower(text), lowerCaseOf);
}

} // namespace vantrel
