#include "base/Wildcard.h"

#include "base/Text.h"

namespace vantrel {

namespace {

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

} // namespace

WildcardPattern::WildcardPattern(std::string_view pattern) {
    const std::u32string characters = codePoints(pattern);
    const std::u32string_view all(characters);
    const auto lastClose = all.rfind(U']');
    for (std::size_t i = 0; i < all.size(); ++i) {
        const bool opens = all[i] == U'[' && lastClose != all.npos && i < lastClose;
        if (!opens) {
            add(all[i]);
            continue;
        }
        const auto close = all.find(U']', i);
        addList(all.substr(i + 1, close - i - 1));
        i = close;
    }
}

void WildcardPattern::add(char32_t character) {
    if (character == U'*') {
        if (elements_.empty() || elements_.back().kind != Kind::Run)
            elements_.push_back({.kind = Kind::Run});
        return;
    }
    const Kind kind = character == U'?'   ? Kind::Any
                      : character == U'#' ? Kind::Digit
                                          : Kind::Literal;
    elements_.push_back({.kind = kind, .literal = character});
    ++shortestMatch_;
}

void WildcardPattern::addList(std::u32string_view content) {
    const bool excludes = content.starts_with(U'!');
    content.remove_prefix(excludes ? 1 : 0);
    elements_.push_back({.kind = Kind::List,
                         .excludes = excludes,
                         .listStart = static_cast<std::uint32_t>(lists_.size()),
                         .listLength = static_cast<std::uint32_t>(content.size())});
    lists_ += content;
    ++shortestMatch_;
}

bool WildcardPattern::accepts(const Element& element, char32_t character) const {
    switch (element.kind) {
    case Kind::Any:
        return true;
    case Kind::Digit:
        return character >= U'0' && character <= U'9';
    case Kind::Literal:
        return character == element.literal;
    case Kind::List:
        return contains(std::u32string_view(lists_).substr(element.listStart, element.listLength),
                        character) != element.excludes;
    case Kind::Run:
        break;
    }
    return false;
}

// What stands behind the last "*" can only match the text's end, and most texts end otherwise.
bool WildcardPattern::matches(std::u32string_view text) const {
    if (text.size() < shortestMatch_ || (!hasRun() && text.size() > shortestMatch_))
        return false;
    std::size_t count = elements_.size();
    for (; hasRun() && elements_[count - 1].kind != Kind::Run; --count) {
        if (!accepts(elements_[count - 1], text.back()))
            return false;
        text.remove_suffix(1);
    }
    return matchesUpTo(count, text);
}

/// The first `count` elements. Going back to the latest "*" only is enough: what an earlier one
/// could take besides, the latest can take as well. That is what bounds the time.
bool WildcardPattern::matchesUpTo(std::size_t count, std::u32string_view text) const {
    constexpr auto none = static_cast<std::size_t>(-1);
    std::size_t at = 0, element = 0, latestRun = none, runEnd = 0;
    while (at < text.size()) {
        const bool more = element < count;
        if (more && elements_[element].kind == Kind::Run) {
            latestRun = element++;
            runEnd = at;
        } else if (more && accepts(elements_[element], text[at])) {
            ++element;
            ++at;
        } else if (latestRun != none) {
            element = latestRun + 1;
            at = ++runEnd;
        } else {
            return false;
        }
    }
    while (element < count && elements_[element].kind == Kind::Run)
        ++element;
    return element == count;
}

bool matchesWildcard(std::string_view text, std::string_view pattern) {
    return WildcardPattern(pattern).matches(codePoints(text));
}

} // namespace vantrel
