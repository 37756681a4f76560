#pragma once

#include "base/RobotRecord.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

class MessageBoxes;
class RobotPaths;

/// How many robots stand before the sentinel; all of them when there is none.
std::size_t robotCount(const std::vector<RobotRecord>& robots);

/// The list that holds the sentinel only.
std::vector<RobotRecord> emptyRobotList();

/// The characters that part the tokens of a registry line.
inline constexpr std::string_view registryDelimiters = "\t\n\r,=";

/// Takes the next token off a line, together with the delimiters before it; empty when there is
/// none left.
std::string_view takeRegistryToken(std::string_view& rest);

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

/// A name without anything that a reader of the file may take off it: cut at the first delimiter,
/// without outer blanks and enclosing quotes. Empty for a name that cannot be kept at all, such as
/// the sentinel's.
std::string cleanName(std::string_view name);

/// A folder in a form that is read back as the same folder: as it stands, else the way from the
/// base folder, else empty, which is read as the program's folder.
std::string writableFolder(std::string_view folder, const RobotPaths& paths);

/// The whole file: the boot robot's name and one block per robot up to the sentinel; lines end in
/// CR LF. Names stay as they are, since " R1" and "R1" may be two robots; only the boot name, which
/// the profile functions read, stands in quotes where they would strip something off it.
std::string registryText(std::string_view bootName, const std::vector<RobotRecord>& robots,
                         const RobotPaths& paths);

} // namespace vantrel
