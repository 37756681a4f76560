#include "simulator/ControllerFileName.h"

#include "base/PathRules.h"
#include "base/Text.h"
#include "base/TextCase.h"
#include "platform/TextEncoding.h"
#include "simulator/ResultCodes.h"

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

} // namespace vantrel::simulator
