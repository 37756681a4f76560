#pragma once

#include "files/CommandResult.h"

#include <array>
#include <cstddef>
#include <functional>
#include <set>

namespace vantrel {

/// What the program says to whoever has started it. Numbers that are not here may come; they are
/// failures.
namespace exit_code {
inline constexpr int allDone = 0;
inline constexpr int nothingDone = 1;
inline constexpr int wrongUsage = 2;
inline constexpr int partlyDone = 3;
inline constexpr int noLibrary = 10;
inline constexpr int inUse = 11; ///< another program works with the machine
inline constexpr int noConnection = 12;
inline constexpr int unexpected = 70; ///< an error that nobody has foreseen
inline constexpr int interrupted = 130;
} // namespace exit_code

/// What of all that was asked for has been done.
class Tally {
  public:
    /// `cause` is the exit code that says best why it was not done.
    void add(ItemEnd end, int cause = exit_code::nothingDone);
    void interrupt() { interrupted_ = true; }
    /// Called with each item that is added.
    std::function<void(ItemEnd end, int cause)> onAdded;

    std::size_t count(ItemEnd end) const { return counts_[static_cast<std::size_t>(end)]; }
    int exitCode() const;

  private:
    std::array<std::size_t, 4> counts_{};
    std::set<int> causes_; ///< those that say more than that nothing was done
    bool interrupted_ = false;
};

} // namespace vantrel
