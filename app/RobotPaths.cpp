#include "app/RobotPaths.h"

#include <algorithm>
#include <utility>

namespace vantrel {

RobotPaths::RobotPaths(std::string baseFolder, PathStyle style)
    : baseFolder_(std::move(baseFolder)), rules_(style) {}

bool RobotPaths::isAbsolute(std::string_view path) const {
    return PathRules(PathStyle::Windows).isAbsolute(path) || rules_.isAbsolute(path);
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
