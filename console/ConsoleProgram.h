#pragma once

#include "app/start/Engine.h"
#include "base/ApplicationState.h"
#include "console/ConsoleTalk.h"
#include "console/Desk.h"
#include "console/Doctor.h"
#include "console/TerminalProgress.h"
#include "lang/MessageTable.h"

namespace vantrel {

/// The engine with a terminal around it. It reads what the window program reads at its start, and
/// writes neither settings nor robots, so that both may run at once.
class ConsoleProgram {
  public:
    ConsoleProgram(const Request& request, const ConsoleWorld& world, Report& report);
    ConsoleProgram(const ConsoleProgram&) = delete;
    ConsoleProgram& operator=(const ConsoleProgram&) = delete;

    /// The program's exit code.
    int run();

  private:
    /// 0, or the exit code that ends the program.
    int start();
    int readLanguage();
    void placeFiles();
    void readSettings();
    int keepOwnRobot();
    void perform();
    void performOn(const Target& target);
    int concluded();
    void tellEnd(int code);

    const Request& request_;
    const ConsoleWorld& world_;
    Report& report_;
    ApplicationState state_;
    MessageTable messages_;
    ConsoleTalk talk_;
    Engine engine_;
    TerminalProgress progress_;
    Tally tally_;
    Desk desk_;
    Findings found_;
};

} // namespace vantrel
