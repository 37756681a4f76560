#include "app/RobotFileReader.h"

#include "app/RegistryTokens.h"
#include "base/Text.h"
#include "lang/MessageBoxes.h"

#include <exception>
#include <system_error>
#include <utility>

namespace vantrel {
namespace {

/// The first two tokens of a line; no more are ever used.
struct LineTokens {
    std::string_view first;
    std::string_view second; ///< empty when there is none: a token is never empty
};

LineTokens tokens(std::string_view line) {
    const std::string_view first = takeRegistryToken(line);
    return {first, takeRegistryToken(line)};
}

std::optional<std::string> blockName(std::string_view token) {
    if (token.size() < 2 || token.front() != '[' || token.back() != ']')
        return {};
    return std::string(token.substr(1, token.size() - 2));
}

void takeValue(RobotRecord& record, const LineTokens& line) {
    if (line.second.empty())
        return;
    if (line.first == "Name")
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

} // namespace

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

} // namespace vantrel
