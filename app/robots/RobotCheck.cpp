#include "app/robots/RobotCheck.h"

#include "app/robots/RobotFile.h"
#include "app/robots/RobotListDraft.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "base/TextCase.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/ShownText.h"

#include <algorithm>
#include <unordered_map>

namespace vantrel {
namespace {

constexpr std::string_view digits = "0123456789";
constexpr int highestPart = 255;

std::string withoutLeadingZeros(std::string_view number) {
    const auto first = number.find_first_not_of('0');
    return std::string(first == number.npos ? "0" : number.substr(first));
}

using Kind = RobotFault::Kind;

bool isControl(char character) {
    return static_cast<unsigned char>(character) < 0x20 || character == 0x7F;
}

/// Both readers of the registry have to give a name back as it was typed. Quotation marks are
/// refused anywhere: whether one of them is stripped depends on the other end of the name.
bool isStorableName(std::string_view name) {
    return name == cleanName(name) && name.find('"') == name.npos && !name.starts_with('\'') &&
           !name.ends_with('\'') && isValidUtf8(name) && std::ranges::none_of(name, isControl);
}

/// How often each name stands in the list, without regard to letter case and to what surrounds it:
/// an old file may hold names with blanks around them, which look the same in every list.
class NameCount {
  public:
    explicit NameCount(std::span<const RobotEntry> robots) {
        for (const RobotEntry& entry : robots)
            ++times_[key(entry.robot.Name)];
    }
    bool isTaken(const std::string& name) { return times_[key(name)] > 1; }

  private:
    static std::string key(const std::string& name) { return upperCase(cleanName(name)); }

    std::unordered_map<std::string, int> times_;
};

std::optional<Kind> nameFault(const std::string& name, NameCount& names) {
    if (trimmed(name).empty())
        return Kind::NoName;
    if (!isStorableName(name))
        return Kind::NameRefused;
    if (names.isTaken(name))
        return Kind::NameTaken;
    return std::nullopt;
}

std::optional<std::size_t> refusedAddressPart(const RobotRecord& robot) {
    if (hasEmptyAddress(robot))
        return std::nullopt;
    const auto refused = std::ranges::find_if_not(
        addressParts, [&robot](auto part) { return isAddressPart(robot.*part); });
    if (refused == addressParts.end())
        return std::nullopt;
    return static_cast<std::size_t>(refused - addressParts.begin());
}

bool isFolderRefused(const RobotEntry& entry) {
    const std::string& folder = entry.robot.Path;
    return folder != entry.stored.Path &&
           (folder.find_first_of(registryDelimiters) != folder.npos || !isValidUtf8(folder));
}

std::optional<RobotFault> faultOf(const RobotEntry& entry, std::size_t place, NameCount& names) {
    // A name that came with the list is no reason to refuse another field of its robot.
    const bool isNamed = entry.isNew || entry.robot.Name != entry.stored.Name;
    if (const auto kind = isNamed ? nameFault(entry.robot.Name, names) : std::nullopt)
        return RobotFault{*kind, place};
    if (const auto part = refusedAddressPart(entry.robot))
        return RobotFault{Kind::AddressRefused, place, *part};
    if (isFolderRefused(entry))
        return RobotFault{Kind::FolderRefused, place};
    return std::nullopt;
}

std::int32_t messageOf(Kind kind) {
    switch (kind) {
    case Kind::NoName:
        break;
    case Kind::NameTaken:
        return message::robotNameTaken;
    case Kind::NameRefused:
        return message::robotNameRefused;
    case Kind::AddressRefused:
        return message::robotAddressRefused;
    case Kind::FolderRefused:
        return message::robotFolderRefused;
    }
    return message::robotWithoutName;
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

bool isAddress(const RobotRecord& robot) {
    return std::ranges::all_of(addressParts,
                               [&robot](auto part) { return isAddressPart(robot.*part); });
}

void tidyAddress(RobotRecord& robot) {
    for (const auto part : addressParts)
        robot.*part = withoutLeadingZeros(robot.*part);
    robot.IPaddr = joinedAddress(robot);
}

std::optional<RobotFault> findRobotFault(std::span<const RobotEntry> robots) {
    NameCount names(robots);
    for (std::size_t place = 0; place < robots.size(); ++place)
        if (robots[place].isEdited())
            if (const auto fault = faultOf(robots[place], place, names))
                return fault;
    return std::nullopt;
}

std::string faultText(const RobotFault& fault, std::span<const RobotEntry> robots,
                      const MessageTable& messages) {
    std::string text = messages.getMessage(messageOf(fault.kind));
    if (fault.kind == Kind::NoName)
        return text;
    return bracketed(robots[fault.robot].robot.Name) + text;
}

} // namespace vantrel
