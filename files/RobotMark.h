#pragma once

#include "base/RobotRecord.h"
#include "link/ProgressPanel.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace vantrel {

class MessageTable;
struct ApplicationState;

/// A colour that a robot can be marked with.
struct MarkColour {
    std::string_view key;  ///< as the registry names it
    std::int32_t name = 0; ///< message of its name
    std::uint32_t redGreenBlue = 0;
};

std::span<const MarkColour> markColours();

/// The place of a robot's colour among those; nothing for a robot without one, or with a word that
/// names none.
std::optional<std::size_t> markColourOf(const RobotRecord& robot);

/// Characters of a label.
inline constexpr std::size_t longestLabel = 16;

/// A label as it can be shown: on one line, without outer blanks and what cannot be seen, and no
/// longer than that.
std::string cleanLabel(std::string_view label);

/// How a robot is marked: its label, or the name of its colour where it has none.
PlaceMark robotMark(const MessageTable& messages, const RobotRecord& robot);

/// The mark of the controller that the next operation reaches. A serial line has none: nobody knows
/// which robot is at its end.
PlaceMark markInForce(const MessageTable& messages, const ApplicationState& state);

/// What an operator makes of a robot's mark. What he leaves alone stays as the file has it, be it
/// nothing that can be shown.
class RobotMarkDraft {
  public:
    explicit RobotMarkDraft(RobotRecord robot);

    const RobotRecord& robot() const { return robot_; }
    std::optional<std::size_t> colour() const { return markColourOf(robot_); }
    void chooseColour(std::optional<std::size_t> colour);
    std::string label() const { return cleanLabel(robot_.Label); }
    void setLabel(const std::string& label);

  private:
    RobotRecord robot_;
};

} // namespace vantrel
