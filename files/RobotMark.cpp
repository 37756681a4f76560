#include "files/RobotMark.h"

#include "base/ApplicationState.h"
#include "base/Text.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace vantrel {
namespace {

constexpr MarkColour colours[] = {
    {"Red", message::colourRed, 0xD00000},       {"Orange", message::colourOrange, 0xF08000},
    {"Yellow", message::colourYellow, 0xF5D000}, {"Green", message::colourGreen, 0x00A040},
    {"Blue", message::colourBlue, 0x0060D0},     {"Purple", message::colourPurple, 0x9030B0},
    {"Grey", message::colourGrey, 0x808080}};

} // namespace

std::span<const MarkColour> markColours() {
    return colours;
}

std::optional<std::size_t> markColourOf(const RobotRecord& robot) {
    const auto* const found = std::ranges::find(colours, trimmed(robot.Colour), &MarkColour::key);
    if (found == std::end(colours))
        return std::nullopt;
    return static_cast<std::size_t>(found - std::begin(colours));
}

/// Without a width: a label of those alone would hide the colour's name and be none.
static bool isInvisible(char32_t character) {
    return character == 0xAD || character == 0x61C || character == 0x180E ||
           (character >= 0x200B && character <= 0x200D) ||
           (character >= 0x2060 && character <= 0x2065) || character == 0x3164 ||
           character == 0xFEFF;
}

std::string cleanLabel(std::string_view label) {
    std::u32string shown = codePoints(label);
    std::erase_if(shown, [](char32_t character) {
        return isUnshowable(character) || isInvisible(character);
    });
    const std::string text = utf8(shown);
    return std::string(trimmed(firstCharacters(trimmed(text), longestLabel)));
}

PlaceMark robotMark(const MessageTable& messages, const RobotRecord& robot) {
    PlaceMark mark{.text = cleanLabel(robot.Label)};
    if (const auto place = markColourOf(robot)) {
        const MarkColour& colour = colours[*place];
        mark.colour = colour.redGreenBlue;
        mark.colourName = messages.getMessage(colour.name);
    }
    if (mark.text.empty())
        mark.text = mark.colourName;
    return mark;
}

PlaceMark markInForce(const MessageTable& messages, const ApplicationState& state) {
    if (state.TransMode == TransferMode::Bsc)
        return {};
    return robotMark(messages, state.CurrentRobot);
}

RobotMarkDraft::RobotMarkDraft(RobotRecord robot) : robot_(std::move(robot)) {}

void RobotMarkDraft::chooseColour(std::optional<std::size_t> chosen) {
    if (chosen != colour())
        robot_.Colour = chosen ? std::string(colours[*chosen].key) : std::string();
}

void RobotMarkDraft::setLabel(const std::string& text) {
    if (cleanLabel(text) != label())
        robot_.Label = cleanLabel(text);
}

} // namespace vantrel
