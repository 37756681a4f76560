#pragma once

#include "base/Result.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

/// The arguments of a program without windows, its own name left out, as UTF-8.
std::vector<std::string> programArguments(int count, char** values);

/// One of the program's standard streams, for UTF-8 text. Where it is a console of the system it
/// shows every character that its font has, whatever its code page; a file or a pipe gets the
/// bytes.
class TextStream {
  public:
    enum class Kind { Output, Messages };

    explicit TextStream(Kind kind) : kind_(kind) {}

    bool isTerminal() const;
    /// What was written is out of this program afterwards.
    Outcome write(std::string_view text);

  private:
    Kind kind_;
};

/// Whether somebody can type an answer.
bool canReadTerminal();
/// The next line that is typed, without its end; nothing when there is no more, or when a
/// signal, or Ctrl+C, calls the waiting off; one that came before is asked for by `isCalledOff`.
std::optional<std::string> readTerminalLine(const std::function<bool()>& isCalledOff);

/// A window that nobody sees, made by the first call, where the system has windows: the
/// communication library wants the handle of one. Else null.
void* unseenWindow();

} // namespace vantrel
