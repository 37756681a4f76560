#include "app/viewer/TextSlices.h"

#include "base/Text.h"

namespace vantrel {
namespace {

/// Where to cut a line that is too long: before a character, not within one.
std::size_t cut(std::string_view line) {
    std::size_t end = TextSlices::longestLine;
    while (end > 0 && continuesCharacter(line[end]))
        --end;
    return end > 0 ? end : TextSlices::longestLine;
}

} // namespace

std::string TextSlices::next(std::size_t size) {
    std::string slice;
    while (!rest_.empty() && slice.size() < size) {
        slice.append(nextPiece().text);
        slice += '\n';
    }
    return slice;
}

TextSlices::Piece TextSlices::nextPiece() {
    // Only as far as a piece can reach: a line of megabytes is not searched anew for each piece.
    const auto reach = rest_.substr(0, longestLine + 1);
    if (reach.size() <= longestLine || reach.find_first_of("\r\n") != reach.npos)
        return {takeLine(rest_)};
    const auto length = cut(reach);
    rest_.remove_prefix(length);
    return {reach.substr(0, length), false};
}

} // namespace vantrel
