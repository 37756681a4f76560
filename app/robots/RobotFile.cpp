#include "app/robots/RobotFile.h"

#include "app/robots/RobotPaths.h"
#include "base/Text.h"
#include "lang/MessageBoxes.h"
#include "platform/ProfileText.h"

#include <algorithm>
#include <exception>
#include <initializer_list>
#include <system_error>
#include <utility>

namespace vantrel {
namespace {

/// The first two tokens of a line; no more are ever used.
struct LineTokens {
    std::string_view first;
    std::string_view second; ///< empty when there is none: a token is never empty
    std::string_view rest;   ///< all that follows the first equals sign behind the first token
};

LineTokens tokens(std::string_view line) {
    const std::string_view first = takeRegistryToken(line);
    const std::size_t sign = line.find('=');
    const std::string_view rest = sign == line.npos ? std::string_view() : line.substr(sign + 1);
    return {first, takeRegistryToken(line), rest};
}

std::optional<std::string> blockName(std::string_view token) {
    if (token.size() < 2 || token.front() != '[' || token.back() != ']')
        return {};
    return std::string(token.substr(1, token.size() - 2));
}

void takeValue(RobotRecord& record, const LineTokens& line) {
    // Of a later version than the others: whole, whatever they hold.
    if (line.first == "Colour")
        record.Colour = line.rest;
    else if (line.first == "Label")
        record.Label = line.rest;
    else if (line.second.empty())
        return;
    else if (line.first == "Name")
        record.Name = line.second;
    else if (line.first == "IPaddr")
        setAddress(record, line.second);
    else if (line.first == "Path")
        record.Path = line.second;
}

int errorNumber(const std::exception& error) {
    const auto* system = dynamic_cast<const std::system_error*>(&error);
    constexpr int outOfMemory = 7;
    return system != nullptr ? system->code().value() : outOfMemory;
}

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

// A key of which a robot may have none is left out then, so that the file is as it always was.
void addMark(std::string& text, std::string_view key, std::string_view value) {
    const std::string_view line =
        value.substr(0, value.find_first_of(std::string_view("\r\n\0", 3)));
    if (!line.empty())
        addLine(text, {key, line});
}

void addRobot(std::string& text, const RobotRecord& robot, const RobotPaths& paths) {
    addLine(text, {"[Robot]"});
    addLine(text, {"Name=", asToken(robot.Name)});
    addLine(text, {"IPaddr=", asToken(robot.IPaddr)});
    addLine(text, {"Path=", writableFolder(robot.Path, paths)});
    addMark(text, "Colour=", robot.Colour);
    addMark(text, "Label=", robot.Label);
    addLine(text, {});
}

} // namespace

std::size_t robotCount(const std::vector<RobotRecord>& robots) {
    const auto end = std::ranges::find(robots, endOfRobots, &RobotRecord::Name);
    return static_cast<std::size_t>(end - robots.begin());
}

std::vector<RobotRecord> emptyRobotList() {
    std::vector<RobotRecord> robots(1);
    robots.front().Name = endOfRobots;
    return robots;
}

std::string_view takeRegistryToken(std::string_view& rest) {
    rest.remove_prefix(std::min(rest.find_first_not_of(registryDelimiters), rest.size()));
    const std::string_view token = rest.substr(0, rest.find_first_of(registryDelimiters));
    rest.remove_prefix(token.size());
    return token;
}

std::optional<std::string_view> TextLines::next() {
    if (rest_.empty())
        return {};
    return takeLine(rest_);
}

void setAddress(RobotRecord& record, std::string_view address) {
    record.IPaddr = address;
    for (std::string* part : {&record.IP1, &record.IP2, &record.IP3}) {
        const std::size_t point = address.find('.');
        *part = address.substr(0, point);
        address.remove_prefix(point == std::string_view::npos ? address.size() : point + 1);
    }
    record.IP4 = address;
}

RobotFileReader::RobotFileReader(LineSource& lines, MessageBoxes& boxes, std::string defaultFolder)
    : lines_(lines), boxes_(boxes), defaultFolder_(std::move(defaultFolder)) {}

std::optional<std::string> RobotFileReader::reportError(std::string_view text,
                                                        std::string_view where, int number) {
    endedEarly_ = true;
    boxes_.tell("Error(" + std::to_string(number) + std::string(text) + std::string(where),
                BoxIcon::None);
    return {};
}

std::optional<std::string> RobotFileReader::FindFirstBlock() {
    try {
        while (const auto line = lines_.next()) {
            if (auto name = blockName(tokens(*line).first))
                return name;
        }
        return {};
    } catch (const std::exception& error) {
        return reportError(") & at ", "FindFirstBlock", errorNumber(error));
    }
}

std::optional<std::string> RobotFileReader::ReadBlock_Robot(RobotRecord& record) {
    try {
        while (const auto line = lines_.next()) {
            const LineTokens found = tokens(*line);
            if (auto name = blockName(found.first))
                return name;
            takeValue(record, found);
        }
        return {};
    } catch (const std::exception& error) {
        return reportError(") at ", "ReadBlock_Robot", errorNumber(error));
    }
}

std::vector<RobotRecord> RobotFileReader::readList() {
    std::vector<RobotRecord> robots;
    std::optional<std::string> name = FindFirstBlock();
    while (name) {
        if (*name != "Robot") {
            name = FindFirstBlock();
            continue;
        }
        RobotRecord record;
        record.Name = "DEFAULT";
        record.Path = defaultFolder_;
        name = ReadBlock_Robot(record);
        if (record.Name != endOfRobots)
            robots.push_back(std::move(record));
    }
    robots.emplace_back().Name = endOfRobots;
    return robots;
}

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
