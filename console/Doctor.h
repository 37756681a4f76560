#pragma once

#include "console/Desk.h"

#include <string>

namespace vantrel {

class ConnectionTest;

/// What the program found when it began.
struct Findings {
    std::string settingsPath;
    std::string language; ///< the name of the one in force; empty when none could be read
    bool tableIsWhole = false;
};

/// `doctor`: a line for each thing that has to work, with what to do about one that does not.
class Doctor {
  public:
    Doctor(Desk& desk, Findings findings) : desk_(desk), found_(std::move(findings)) {}

    void lookAtProgram();
    void lookAtRobot(const Target& target);

  private:
    struct Check {
        const char* key;
        std::int32_t label;
        std::string subject; ///< which file or robot
        bool works = true;
        std::string detail{};
        std::int32_t advice = 0; ///< a message's number, or 0
    };

    void lookAtLibrary();
    void reportStep(const std::string& robot, const ConnectionTest& test, std::size_t step);
    void report(const Check& check, int cause = exit_code::nothingDone);
    std::string text(std::int32_t number) const;

    Desk& desk_;
    Findings found_;
};

} // namespace vantrel
