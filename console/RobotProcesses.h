#pragma once

#include "console/Desk.h"
#include "console/Relay.h"
#include "platform/ChildProcess.h"

#include <chrono>
#include <functional>
#include <list>
#include <string>
#include <string_view>

namespace vantrel {

/// The work of a command on each of its robots in a process of its own, several at a time: the
/// communication library is made for one robot after another, and one that hangs or crashes takes
/// its process with it and nothing else. What the processes say comes out as they say it, a line at
/// a time, and counts as if it had been done here.
class RobotProcesses {
  public:
    /// `work` does it in this process; it is used for robots whose work was called off.
    RobotProcesses(Desk& desk, std::function<void(const Target&)> work);

    void run();

  private:
    using Clock = std::chrono::steady_clock;

    struct Running {
        const Target* target;
        ChildProcess child;
        Clock::time_point deadline;
        std::string rest{}; ///< a line that has not come to its end
        bool hasEnded = false;
        bool isLate = false;
        std::size_t items = 0;
    };

    void callOff();
    void startMore();
    void start(const Target& target);
    bool wouldMeet(const Target& one, const Target& other) const;
    void listen();
    void take(Running& running, std::string_view text);
    void takeLine(Running& running, std::string_view line);
    void end(Running& running, int code);
    void endLate();
    void conclude(Running& running);
    void reportFailure(const Target& target, const std::string& reason);

    Desk& desk_;
    std::function<void(const Target&)> work_;
    std::list<const Target*> open_;
    std::list<Running> running_;
    bool isCalledOff_ = false;
};

} // namespace vantrel
