#include "app/RobotFileWriter.h"

#include "app/RegistryTokens.h"
#include "app/RobotList.h"
#include "app/RobotPaths.h"
#include "base/Text.h"
#include "platform/ProfileText.h"

#include <initializer_list>

namespace vantrel {
namespace {

bool isReadable(std::string_view value) {
    return value.find_first_of(registryDelimiters) == std::string_view::npos &&
           value.find('\0') == std::string_view::npos && isValidUtf8(value);
}

// What a value would be read back as, were it written as it stands.
std::string_view asToken(std::string_view value) {
    value = value.substr(0, value.find('\0'));
    return takeRegistryToken(value);
}

// Without all its enclosing quotes, one layer of which every reading of the boot name takes away.
std::string_view withoutAnyQuotes(std::string_view name) {
    std::string_view inner = withoutQuotes(name);
    while (inner.size() != name.size()) {
        name = trimmed(inner);
        inner = withoutQuotes(name);
    }
    return name;
}

// In a form from which a profile reading strips nothing that belongs to the value.
std::string asProfileValue(std::string_view value) {
    const std::string text(value);
    return withoutQuotes(trimmed(value)) == value ? text : '"' + text + '"';
}

void addLine(std::string& text, std::initializer_list<std::string_view> parts) {
    for (const std::string_view part : parts)
        text += part;
    text += "\r\n";
}

void addRobot(std::string& text, const RobotRecord& robot, const RobotPaths& paths) {
    addLine(text, {"[Robot]"});
    addLine(text, {"Name=", asToken(robot.Name)});
    addLine(text, {"IPaddr=", asToken(robot.IPaddr)});
    addLine(text, {"Path=", writableFolder(robot.Path, paths)});
    addLine(text, {});
}

} // namespace

std::string cleanName(std::string_view name) {
    const std::string_view kept = withoutAnyQuotes(trimmed(asToken(name)));
    return kept == endOfRobots ? std::string() : std::string(kept);
}

std::string writableFolder(std::string_view folder, const RobotPaths& paths) {
    if (isReadable(folder))
        return std::string(folder);
    const std::string relative = paths.relative(folder);
    return isReadable(relative) && !paths.isAbsolute(relative) ? relative : std::string();
}

std::string registryText(std::string_view bootName, const std::vector<RobotRecord>& robots,
                         const RobotPaths& paths) {
    std::string text;
    addLine(text, {"[Boot]"});
    addLine(text, {"Name=", asProfileValue(asToken(bootName))});
    addLine(text, {});
    const std::size_t count = robotCount(robots);
    for (std::size_t index = 0; index < count; ++index)
        addRobot(text, robots[index], paths);
    return text;
}

} // namespace vantrel
