#include "app/robots/RobotPaths.h"

#include "base/Text.h"

#include <algorithm>
#include <utility>

namespace vantrel {

RobotPaths::RobotPaths(std::string baseFolder, PathStyle style)
    : baseFolder_(std::move(baseFolder)), rules_(style) {}

bool RobotPaths::isAbsolute(std::string_view path) const {
    if (path.empty())
        return false;
    const auto behindFirst = path.substr(firstCharacters(path, 1).size());
    return path.front() == '\\' || path.front() == rules_.separator() ||
           behindFirst.starts_with(':');
}

std::string RobotPaths::absolute(std::string_view path) const {
    if (isAbsolute(path))
        return std::string(path);
    std::string native(path);
    std::ranges::replace(native, '\\', rules_.separator());
    return rules_.join(baseFolder_, native);
}

std::string RobotPaths::relative(std::string_view path) const {
    const std::string start = rules_.withSeparator(baseFolder_);
    return path.starts_with(start) ? std::string(path.substr(start.size())) : std::string();
}

} // namespace vantrel
