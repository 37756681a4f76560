#include "app/viewer/PrintPages.h"

#include "base/Text.h"

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

constexpr int tabColumns = 8;

/// One character at the start of a text, with its bytes.
struct Character {
    char32_t codePoint = 0;
    std::string_view bytes;
};

Character firstCharacter(std::string_view text) {
    std::size_t length = 1;
    while (length < text.size() && continuesCharacter(text[length]))
        ++length;
    const auto bytes = text.substr(0, length);
    if (length == 1)
        return {static_cast<unsigned char>(text.front()), bytes};
    return {codePoints(bytes).front(), bytes};
}

int widthAt(int column, char32_t character) {
    return character == '\t' ? tabColumns - column % tabColumns : characterWidth(character);
}

/// The part of a line that fits on one row, at least one character.
std::string_view takeRow(std::string_view& line, int columns) {
    const std::string_view whole = line;
    int column = 0;
    while (!line.empty()) {
        const auto next = firstCharacter(line);
        const int width = widthAt(column, next.codePoint);
        // A tab at the edge ends its row there instead of opening a row of blanks.
        const bool fits = column + width <= columns || (next.codePoint == '\t' && column < columns);
        if (!fits && line.size() < whole.size())
            break;
        column += width;
        line.remove_prefix(next.bytes.size());
    }
    return whole.substr(0, whole.size() - line.size());
}

std::string expanded(std::string_view row, int columns) {
    std::string text;
    int column = 0;
    while (!row.empty()) {
        const auto next = firstCharacter(row);
        const int width = widthAt(column, next.codePoint);
        if (next.codePoint == '\t')
            text.append(std::size_t(std::clamp(columns - column, 0, width)), ' ');
        else
            text.append(next.bytes);
        column += width;
        row.remove_prefix(next.bytes.size());
    }
    return text;
}

} // namespace

int characterWidth(char32_t character) {
    if (character < marks[0].first)
        return 1;
    if (isIn(marks, character))
        return 0;
    return isIn(wide, character) ? 2 : 1;
}

PrintPages::PrintPages(std::string_view text, PageSize size)
    : size_{std::max(1, size.columns), std::max(1, size.rows)} {
    while (!text.empty())
        cutLine(takeLine(text));
}

void PrintPages::cutLine(std::string_view line) {
    do
        rows_.push_back(takeRow(line, size_.columns));
    while (!line.empty());
}

std::size_t PrintPages::count() const {
    const auto perPage = std::size_t(size_.rows);
    return std::max<std::size_t>(1, (rows_.size() + perPage - 1) / perPage);
}

std::vector<std::string> PrintPages::rows(std::size_t page) const {
    std::vector<std::string> found;
    if (page >= count())
        return found;
    const auto perPage = std::size_t(size_.rows);
    const auto end = std::min(rows_.size(), (page + 1) * perPage);
    for (auto row = page * perPage; row < end; ++row)
        found.push_back(expanded(rows_[row], size_.columns));
    return found;
}

std::vector<PrintedRun> printedRuns(std::string_view row) {
    std::vector<PrintedRun> runs;
    int column = 0;
    bool wasAscii = false;
    while (!row.empty()) {
        const auto next = firstCharacter(row);
        const int width = characterWidth(next.codePoint);
        const bool isCharacterAscii = isAscii(next.bytes);
        if (runs.empty() || (width > 0 && !(wasAscii && isCharacterAscii)))
            runs.push_back({column, ""});
        runs.back().text.append(next.bytes);
        wasAscii = isCharacterAscii;
        column += width;
        row.remove_prefix(next.bytes.size());
    }
    return runs;
}

int columnsOf(std::string_view text) {
    int columns = 0;
    for (; !text.empty(); text.remove_prefix(firstCharacter(text).bytes.size()))
        columns += characterWidth(firstCharacter(text).codePoint);
    return columns;
}

std::string fittingColumns(std::string_view text, int columns) {
    if (columnsOf(text) <= columns)
        return std::string(text);
    if (columns < 1)
        return {};
    std::string_view rest = text;
    int used = 1; // the ellipsis
    while (!rest.empty()) {
        const auto next = firstCharacter(rest);
        used += characterWidth(next.codePoint);
        if (used > columns)
            break;
        rest.remove_prefix(next.bytes.size());
    }
    return std::string(text.substr(0, text.size() - rest.size())) + "\u2026";
}

} // namespace vantrel
