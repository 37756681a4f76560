#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

/// A wildcard pattern, read once for many texts: "*" any run of characters, "?" one character, "#"
/// one digit, "[a-z]" one of a list with ranges, "[!a-z]" one that is not in it. An unclosed "[" is
/// a plain character. Patterns are UTF-8 and compared by character, letter case included.
class WildcardPattern {
  public:
    explicit WildcardPattern(std::string_view pattern);

    /// Whether the whole text matches. Time is bounded by the product of the two lengths, whatever
    /// the pattern; a text that is shorter than any match, or ends otherwise, costs next to none.
    bool matches(std::u32string_view text) const;
    /// The number of characters of the shortest text that could match.
    std::size_t shortestMatch() const { return shortestMatch_; }

  private:
    enum class Kind : std::uint8_t { Run, Any, Digit, Literal, List };
    /// One element of a pattern; of a list, where in `lists_` it stands without a leading "!".
    struct Element {
        Kind kind = Kind::Literal;
        bool excludes = false;
        char32_t literal = 0;
        std::uint32_t listStart = 0;
        std::uint32_t listLength = 0;
    };

    void add(char32_t character);
    void addList(std::u32string_view content);
    bool accepts(const Element& element, char32_t character) const;
    bool hasRun() const { return elements_.size() > shortestMatch_; }
    bool matchesUpTo(std::size_t count, std::u32string_view text) const;

    std::vector<Element> elements_; ///< no two runs in a row
    std::u32string lists_;
    std::size_t shortestMatch_ = 0;
};

/// The same for a single text in UTF-8.
bool matchesWildcard(std::string_view text, std::string_view pattern);

} // namespace vantrel
