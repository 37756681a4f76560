#include "app/CharacterWidth.h"

#include <algorithm>
#include <iterator>
#include <span>

namespace vantrel {
namespace {

struct Range {
    char32_t first, last;
};

// In rising order. Half-width forms (U+FF61 to U+FFDC) are in neither table.
constexpr Range marks[] = {{0x0300, 0x036F},  {0x0483, 0x0489}, {0x0591, 0x05BD}, {0x1AB0, 0x1AFF},
                           {0x1DC0, 0x1DFF},  {0x200B, 0x200D}, {0x20D0, 0x20FF}, {0x302A, 0x302D},
                           {0x3099, 0x309A},  {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}, {0xFEFF, 0xFEFF},
                           {0xE0100, 0xE01EF}};
constexpr Range wide[] = {
    {0x1100, 0x115F}, {0x2E80, 0x303E}, {0x3041, 0x33FF},   {0x3400, 0x4DBF},   {0x4E00, 0x9FFF},
    {0xA000, 0xA4CF}, {0xA960, 0xA97F}, {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},
    {0xFF01, 0xFF60}, {0xFFE0, 0xFFE6}, {0x1F300, 0x1F64F}, {0x1F900, 0x1F9FF}, {0x20000, 0x3FFFD}};

bool isIn(std::span<const Range> table, char32_t character) {
    const auto found = std::ranges::lower_bound(table, character, {}, &Range::last);
    return found != table.end() && found->first <= character;
}

} // namespace

int characterWidth(char32_t character) {
    if (character < marks[0].first)
        return 1;
    if (isIn(marks, character))
        return 0;
    return isIn(wide, character) ? 2 : 1;
}

} // namespace vantrel
