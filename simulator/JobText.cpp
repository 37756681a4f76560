#include "simulator/JobText.h"

#include "base/Text.h"
#include "base/TextCase.h"
#include "platform/TextEncoding.h"
#include "simulator/ControllerFileName.h"
#include "simulator/ResultCodes.h"

#include <algorithm>

namespace vantrel::simulator {

namespace {

constexpr std::string_view marker = "//NAME";

/// What stands after the marker, or an empty text when the line is another one.
std::string_view nameOnLine(std::string_view line) {
    if (!line.starts_with(marker))
        return {};
    const auto rest = line.substr(marker.size());
    const bool markerEnds = rest.starts_with(' ') || rest.starts_with('\t');
    return markerEnds ? trimmed(rest) : std::string_view();
}

std::string_view nameInText(std::string_view text) {
    for (std::size_t start = 0; start < text.size();) {
        const auto end = std::min(text.find_first_of("\r\n", start), text.size());
        const auto name = nameOnLine(text.substr(start, end - start));
        if (!name.empty())
            return name;
        start = end + 1;
    }
    return {};
}

} // namespace

CodeOr<std::string> jobNameIn(std::string_view bytes) {
    // The whole file decides on the encoding: a short name alone may look like another one.
    const auto decoded = decodeText(bytes);
    if (bytes.empty() || decoded.encoding == TextEncoding::Utf16LittleEndian)
        return code::formatError;
    const auto found = nameInText(decoded.text);
    if (found.empty())
        return code::headerMissing;
    auto name = normalisedJobName(found);
    const auto asFile = controllerFileName(name + ".JBI");
    if (!asFile)
        return asFile.code();
    return name;
}

} // namespace vantrel::simulator
