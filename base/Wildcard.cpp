#include "base/Wildcard.h"

#include "base/Text.h"

#include <string>
#include <vector>

namespace vantrel {

namespace {

/// One element of a pattern.
struct Element {
    enum class Kind { Run, Any, Digit, Literal, List } kind;
    char32_t literal = 0;
    std::u32string_view list; ///< between the brackets, without a leading "!"
    bool excludes = false;
};

Element listElement(std::u32string_view content) {
    const bool excludes = content.starts_with(U'!');
    return {Element::Kind::List, 0, content.substr(excludes ? 1 : 0), excludes};
}

Element plainElement(char32_t character) {
    switch (character) {
    case U'*':
        return {Element::Kind::Run, 0, {}, false};
    case U'?':
        return {Element::Kind::Any, 0, {}, false};
    case U'#':
        return {Element::Kind::Digit, 0, {}, false};
    default:
        return {Element::Kind::Literal, character, {}, false};
    }
}

std::vector<Element> elementsOf(std::u32string_view pattern) {
    std::vector<Element> elements;
    elements.reserve(pattern.size());
    const auto lastClose = pattern.rfind(U']');
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const bool opens = pattern[i] == U'[' && lastClose != pattern.npos && i < lastClose;
        if (!opens) {
            elements.push_back(plainElement(pattern[i]));
            continue;
        }
        const auto close = pattern.find(U']', i);
        elements.push_back(listElement(pattern.substr(i + 1, close - i - 1)));
        i = close;
    }
    return elements;
}

/// A "-" at either end of the list stands for itself; a range that runs backwards holds nothing.
bool contains(std::u32string_view list, char32_t character) {
    for (std::size_t i = 0; i < list.size(); ++i) {
        const bool isRange = i + 2 < list.size() && list[i + 1] == U'-';
        const char32_t last = isRange ? list[i + 2] : list[i];
        if (character >= list[i] && character <= last)
            return true;
        i += isRange ? 2 : 0;
    }
    return false;
}

bool accepts(const Element& element, char32_t character) {
    switch (element.kind) {
    case Element::Kind::Any:
        return true;
    case Element::Kind::Digit:
        return character >= U'0' && character <= U'9';
    case Element::Kind::Literal:
        return character == element.literal;
    case Element::Kind::List:
        return contains(element.list, character) != element.excludes;
    case Element::Kind::Run:
        break;
    }
    return false;
}

/// Going back to the latest "*" only is enough: what an earlier one could take besides, the latest
/// can take as well. That is what bounds the time.
bool matches(std::u32string_view text, const std::vector<Element>& pattern) {
    constexpr auto none = static_cast<std::size_t>(-1);
    std::size_t at = 0, element = 0, latestRun = none, runEnd = 0;
    while (at < text.size()) {
        const bool more = element < pattern.size();
        if (more && pattern[element].kind == Element::Kind::Run) {
            latestRun = element++;
            runEnd = at;
        } else if (more && accepts(pattern[element], text[at])) {
            ++element;
            ++at;
        } else if (latestRun != none) {
            element = latestRun + 1;
            at = ++runEnd;
        } else {
            return false;
        }
    }
    while (element < pattern.size() && pattern[element].kind == Element::Kind::Run)
        ++element;
    return element == pattern.size();
}

} // namespace

bool matchesWildcard(std::string_view text, std::string_view pattern) {
    const std::u32string patternCharacters = codePoints(pattern);
    return matches(codePoints(text), elementsOf(patternCharacters));
}

} // namespace vantrel
