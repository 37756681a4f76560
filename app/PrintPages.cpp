#include "app/PrintPages.h"

#include "app/CharacterWidth.h"
#include "base/Text.h"

#include <algorithm>

namespace vantrel {
namespace {

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
