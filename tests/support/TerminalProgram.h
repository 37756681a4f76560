#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <sys/types.h>

namespace vantrel::tests {

/// A program that somebody sits before: it runs on a terminal of its own, and what it writes there
/// is read like a screen. Nothing here waits for a time, only for what the program does; should it
/// do nothing for a long time the waiting fails.
class TerminalProgram {
  public:
    /// The program's file and its arguments.
    explicit TerminalProgram(const std::vector<std::string>& command);
    ~TerminalProgram();
    TerminalProgram(const TerminalProgram&) = delete;
    TerminalProgram& operator=(const TerminalProgram&) = delete;

    /// Reads until the text is there, behind what was waited for before; false when the program
    /// ends without it.
    bool waitFor(std::string_view text);
    void type(std::string_view keys) const;
    /// Ctrl+C; returns when the program has taken the signal.
    bool interrupt();
    /// Reads to the program's end; its exit code, or the negative number of the signal that ended
    /// it.
    int end();

    /// All that was on the screen, control characters included.
    const std::string& shown() const { return shown_; }

  private:
    bool readMore();
    bool hasSignalPending() const;

    int terminal_ = -1;
    pid_t process_ = -1;
    std::string shown_;
    std::size_t seen_ = 0;
};

} // namespace vantrel::tests
