#pragma once

#include "base/Connection.h"
#include "base/RobotRecord.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

namespace vantrel {

class MessageTable;
class PaneWindow;
class Snappy;
struct ApplicationState;
struct LinkTestStep;
struct RobotEntry;

/// The controller whose connection is tested: which of the two ways leads to it, says the mode.
struct TestedController {
    TransferMode mode = TransferMode::Bsc;
    SerialLine line;
    RobotRecord robot;
};

/// The one that the next operation would reach.
TestedController controllerInForce(const ApplicationState& state);
/// The one of a robot that is being edited, as it would be stored, in the mode in force.
TestedController controllerOf(const RobotEntry& robot, const SerialLine& line, TransferMode mode);

/// Says step by step what works of the way to a controller.
class ConnectionTest {
  public:
    enum Step : std::size_t { Library, Place, Link, Answer, End };
    static constexpr std::size_t stepCount = 5;

    /// What it works with; everything is borrowed and outlives it.
    struct Services {
        const ApplicationState& state;
        const MessageTable& messages;
        Snappy& session;
        PaneWindow& window;
        std::function<std::string()> libraryProblem; ///< why it cannot be used; empty when it can
    };

    ConnectionTest(Services services, TestedController tested);

    /// Runs the steps up to the first that fails, but closes what was opened; the main window is
    /// locked meanwhile. `changed` is called when a step begins and when all have ended. Nothing is
    /// done while an operation runs.
    void run(const std::function<void()>& changed);

    /// Which controller is tested: "LINE1 WELD (192.168.0.11)", or the serial line with its format.
    std::string heading() const;
    std::string caption(std::size_t step) const;
    /// What a step came to; empty for one that may still be tried, "..." for the one under way.
    std::string outcome(std::size_t step) const;
    /// Whether it is known what became of a step.
    bool hasEnded(std::size_t step) const {
        return states_.at(step) != State::Open && states_.at(step) != State::UnderWay;
    }
    /// Whether a step has ended, and well.
    bool isDone(std::size_t step) const { return states_.at(step) == State::Done; }
    /// The code of the link's step that has failed, or 0.
    std::int16_t linkFault() const { return linkFault_; }
    /// All of it, a line for each step.
    std::string text() const;

  private:
    enum class State { Open, UnderWay, Done, Failed, NotTried };

    void begin(std::size_t step);
    bool end(std::size_t step, std::string fault);
    void runSteps();
    std::string placeFault() const;
    void linkStepEnded(const LinkTestStep& step);

    Services with_;
    TestedController tested_;
    std::function<void()> changed_;
    std::array<State, stepCount> states_{};
    std::array<std::string, stepCount> faults_;
    std::int16_t linkFault_ = 0;
};

} // namespace vantrel
