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
    while (!rest_.empty() && slice.size() < size)
        takePiece(slice);
    return slice;
}

void TextSlices::takePiece(std::string& slice) {
    // Only as far as a piece can reach: a line of megabytes is not searched anew for each piece.
    const auto reach = rest_.substr(0, longestLine + 1);
    if (const auto end = reach.find_first_of("\r\n");
        end == reach.npos && reach.size() > longestLine) {
        const auto length = cut(reach);
        slice.append(reach.substr(0, length));
        rest_.remove_prefix(length);
    } else {
        slice.append(takeLine(rest_));
    }
    slice += '\n';
}

} // namespace vantrel
