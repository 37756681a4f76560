#include "simulator/JobText.h"

#include "base/Text.h"
#include "platform/TextCase.h"
#include "platform/TextEncoding.h"
#include "simulator/ControllerFileName.h"
#include "simulator/ResultCodes.h"

#include <algorithm>
#include <optional>

namespace vantrel::simulator {

namespace {

constexpr std::string_view marker = "//NAME";

bool isNameLine(std::string_view line) {
    return startsWith(line, marker) && line.size() > marker.size() &&
           (line[marker.size()] == ' ' || line[marker.size()] == '\t');
}

std::optional<std::string_view> nameLineIn(std::string_view text) {
    for (std::size_t start = 0; start < text.size();) {
        const auto end = std::min(text.find_first_of("\r\n", start), text.size());
        const auto line = text.substr(start, end - start);
        if (isNameLine(line))
            return trimmed(line.substr(marker.size()));
        start = end + 1;
    }
    return std::nullopt;
}

} // namespace

CodeOr<std::string> jobNameIn(std::string_view bytes) {
    // The whole file decides on the encoding: a short name alone may look like another one.
    const auto decoded = decodeText(bytes);
    if (bytes.empty() || decoded.encoding == TextEncoding::Utf16LittleEndian)
        return code::formatError;
    const auto found = nameLineIn(decoded.text);
    if (!found)
        return code::headerMissing;
    auto name = normalisedJobName(*found);
    const auto asFile = controllerFileName(name + ".JBI");
    if (!asFile)
        return asFile.code();
    return name;
}

} // namespace vantrel::simulator
