#include "app/RobotAddress.h"

#include "base/Numbers.h"

#include <algorithm>

namespace vantrel {
namespace {

constexpr std::string_view digits = "0123456789";
constexpr int highestPart = 255;

std::string withoutLeadingZeros(std::string_view number) {
    const auto first = number.find_first_not_of('0');
    return std::string(first == number.npos ? "0" : number.substr(first));
}

} // namespace

TypedPart typedAddressPart(std::string_view text) {
    if (!wholeNumber(text))
        return {};
    const bool endsInPoint = text.ends_with('.');
    if (endsInPoint)
        text.remove_suffix(1);
    return {std::string(text), endsInPoint};
}

bool hasEmptyAddress(const RobotRecord& robot) {
    return std::ranges::all_of(addressParts, [&](auto part) { return (robot.*part).empty(); });
}

std::string joinedAddress(const RobotRecord& robot) {
    if (hasEmptyAddress(robot))
        return {};
    return robot.IP1 + "." + robot.IP2 + "." + robot.IP3 + "." + robot.IP4;
}

bool isAddressPart(std::string_view text) {
    if (text.empty() || text.find_first_not_of(digits) != text.npos)
        return false;
    const auto number = withoutLeadingZeros(text);
    return number.size() <= 3 && leadingInteger16(number) <= highestPart;
}

void tidyAddress(RobotRecord& robot) {
    for (const auto part : addressParts)
        robot.*part = withoutLeadingZeros(robot.*part);
    robot.IPaddr = joinedAddress(robot);
}

} // namespace vantrel
