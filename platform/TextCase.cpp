#include "platform/TextCase.h"

#include "base/Text.h"

namespace vantrel {

namespace {

/// From alpha to omega, but for the final sigma.
bool isPlainSmallGreek(char32_t character) {
    return character >= U'\u03B1' && character <= U'\u03C9' && character != U'\u03C2';
}

} // namespace

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
