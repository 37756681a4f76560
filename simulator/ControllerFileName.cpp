#include "simulator/ControllerFileName.h"

#include "base/PathRules.h"
#include "base/Text.h"
#include "base/TextCase.h"
#include "platform/TextEncoding.h"

#include <algorithm>
#include <array>
#include <optional>

namespace vantrel::simulator {
namespace {

using Kind = ControllerFileName::Kind;

constexpr std::array<std::string_view, 5> dataExtensions = {"CND", "DAT", "SYS", "PRM", "LST"};

std::optional<Kind> kindOf(std::string_view extension) {
    if (extension == "JBI")
        return Kind::Job;
    if (extension == "JBR")
        return Kind::RelatedJobs;
    if (std::find(dataExtensions.begin(), dataExtensions.end(), extension) != dataExtensions.end())
        return Kind::Data;
    return std::nullopt;
}

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

std::string ControllerFileName::stored() const {
    return base + '.' + (kind == Kind::Data ? extension : "JBI");
}

CodeOr<ControllerFileName> controllerFileName(std::string_view name) {
    if (!PathRules::isPlainName(name) || !toCodePage(name))
        return code::nameInvalid;
    const auto point = name.rfind('.');
    if (point == std::string_view::npos)
        return code::unknownFileKind;
    // A job is told by its base alone, so that has to be a name as well.
    if (!PathRules::isPlainName(name.substr(0, point)))
        return code::nameInvalid;
    ControllerFileName result;
    result.base = normalisedJobName(name.substr(0, point));
    result.extension = asciiUpper(name.substr(point + 1));
    const auto kind = kindOf(result.extension);
    if (!kind)
        return code::unknownFileKind;
    result.kind = *kind;
    return result;
}

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
