#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace vantrel {

/// From one place to another in a text as it is shown in slices: in characters from the start of
/// the text, a line feed after each line for one more.
struct ShownRange {
    std::size_t begin = 0, end = 0;

    bool operator==(const ShownRange&) const = default;
};

enum class SearchDirection { Next, Previous };

struct FoundText {
    ShownRange range;
    bool wentRound = false; ///< past the end of the text, or its start, and on from the other one

    bool operator==(const FoundText&) const = default;
};

/// Seeks `wanted` in one pass over a text that `TextSlices` would show, without regard to letter
/// case: the first place behind `from`, or the last one before it, and round at the end. A place
/// lies within one line of the text, also where that is shown on several. `rareWidth` is how many
/// places a character beyond U+FFFF takes, 1 or 2. Nothing when the text holds it nowhere.
std::optional<FoundText> findText(std::string_view text, std::string_view wanted, ShownRange from,
                                  SearchDirection direction, std::size_t rareWidth = 1);

} // namespace vantrel
