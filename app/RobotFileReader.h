#pragma once

#include "base/RobotRecord.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

class MessageBoxes;

/// The lines of a registry file, one after the other.
class LineSource {
  public:
    virtual ~LineSource() = default;
    /// Nothing at the end. The view holds until the next call.
    virtual std::optional<std::string_view> next() = 0;
};

/// The lines of a text that is in memory, one at a time; the text is borrowed.
class TextLines final : public LineSource {
  public:
    explicit TextLines(std::string_view text) : rest_(text) {}
    std::optional<std::string_view> next() override;

  private:
    std::string_view rest_;
};

/// The registry's own grammar. It looks like an INI file but is read line by line: a line is cut
/// into tokens at tabs, line ends, "," and "=", runs of them counting once; blanks belong to the
/// tokens. A block starts at a line whose first token stands in brackets.
class RobotFileReader {
  public:
    /// A robot without a folder of its own has `defaultFolder`.
    RobotFileReader(LineSource& lines, MessageBoxes& boxes, std::string defaultFolder);

    /// Reads on to the next block header and returns its name, which may be empty; nothing at the
    /// end of the file. An unexpected error is told and counts as the end.
    std::optional<std::string> FindFirstBlock();

    /// Reads a robot's keys until the next block header, which it returns as FindFirstBlock does.
    std::optional<std::string> ReadBlock_Robot(RobotRecord& record);

    /// All robots, and the sentinel after them. A robot that has the sentinel's name is passed
    /// over: it would hide those after it, and they would be lost at the next write.
    std::vector<RobotRecord> readList();

    /// Whether an unexpected error ended the reading, so that robots may be missing.
    bool endedEarly() const { return endedEarly_; }

  private:
    std::optional<std::string> reportError(std::string_view text, std::string_view where,
                                           int number);

    LineSource& lines_;
    MessageBoxes& boxes_;
    std::string defaultFolder_;
    bool endedEarly_ = false;
};

/// The parts of an address between its points, from the left; a fourth part holds the rest.
void setAddress(RobotRecord& record, std::string_view address);

} // namespace vantrel
