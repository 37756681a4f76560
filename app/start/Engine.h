#pragma once

#include "app/robots/RobotRegistry.h"
#include "app/settings/SettingsFile.h"
#include "base/ApplicationState.h"
#include "files/TransferTable.h"
#include "lang/LanguageChoice.h"
#include "lang/LanguageFiles.h"
#include "lang/MessageTable.h"
#include "link/MachineUse.h"
#include "link/OperatorTalk.h"
#include "link/ProgressPanel.h"
#include "link/Snappy.h"
#include "link/ZurolinkBinding.h"
#include "link/ZurolinkGate.h"

#include <functional>
#include <string>

namespace vantrel {

class MessageBoxes;
class QuestionWindow;
class Zurolink;

/// What the engine stands on: windows in one program, a terminal in another. Everything that is
/// borrowed outlives the engine.
struct EngineGround {
    ApplicationState& state;
    MessageTable& messages;
    MessageBoxes& boxes;
    QuestionWindow& questions;
    std::string executable;                   ///< the program's own file, absolute
    std::function<void()> beforeLibraryCall;  ///< each may take long
    std::function<void*()> dummyWindow;       ///< the handle that the library is given
    std::function<void()> unloadWindows = {}; ///< the session quits
    std::function<void()> modeChanged = {};   ///< the session was told another mode by name
    Zurolink* library = nullptr;              ///< in place of the one in the program's folder
    ProgressPanel::Clock clock = {};          ///< in place of the system's steady one
    /// What other programs are told of this one and of what it does while it works with a machine.
    std::string program = "Vantrel";
    std::string command = {};
    /// Nothing is done on a machine where nobody can tell whether it is in use.
    bool holdsMachines = false;
};

/// The program without its windows: texts, settings, registry, file table, library and session,
/// each built once, in the order in which they need each other. No file is read and no
/// library loaded yet.
class Engine {
  public:
    explicit Engine(EngineGround ground);
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    /// Whether the library is the stand-in of this program, so that no robot moves.
    bool isSimulation() { return library_.simulation().has_value(); }
    /// Why the library cannot be used, in the operator's language; empty when it can.
    std::string libraryProblem();

    const std::string executable;
    const std::string programFolder;
    ApplicationState& state;
    MessageTable& messages;
    MessageBoxes& boxes;
    const LanguageFiles languages;
    LanguageChoice language;
    const SettingsFile settings;
    RobotRegistry registry;
    TransferTable table;
    ProgressPanel progress;
    OperatorTalk talk;
    MachineUse use;

  private:
    std::string textOf(const LibraryProblem& problem) const;
    void tellLibraryProblem(const LibraryProblem& problem);

    ZurolinkBinding library_;
    const bool isLibraryGiven_; ///< in place of that of the program's folder
    ZurolinkGate gate_;

  public:
    Snappy session;
};

} // namespace vantrel
