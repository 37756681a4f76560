#pragma once

#include "base/Result.h"

#include <chrono>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace vantrel {

/// A program that runs beside this one and writes to it. Its messages go where this one's go, and
/// nobody types for it. It never outlives this program, however that ends, nor the object.
class ChildProcess {
  public:
    struct Start {
        std::string program; ///< its file, absolute
        std::vector<std::string> arguments{};
        std::string folder{}; ///< where it works, absolute; empty for this program's
    };

    static Result<ChildProcess> start(const Start& start);
    ChildProcess(ChildProcess&&) noexcept;
    ChildProcess& operator=(ChildProcess&&) noexcept;
    ~ChildProcess();

    /// Waits until one of them has written something or has closed its output, and no longer than
    /// this.
    static void wait(std::span<ChildProcess* const> children, std::chrono::milliseconds atMost);

    /// What it has written since, at most 64 KB of it; nothing more comes once `isAtEnd`.
    std::string read();
    bool isAtEnd() const;

    /// Asks it to end, where whoever interrupts this program does not reach it as well.
    void interrupt();
    /// Ends it at once.
    void kill();
    /// Waits for its end and gives its exit code; nothing when it has crashed or was ended.
    std::optional<int> exitCode();

  private:
    struct Running;

    explicit ChildProcess(std::unique_ptr<Running> running);

    std::unique_ptr<Running> running_;
};

} // namespace vantrel
