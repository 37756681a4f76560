#include "app/start/Engine.h"

#include "base/PathRules.h"
#include "files/ControllerPlace.h"
#include "files/RobotMark.h"
#include "lang/MessageNumbers.h"
#include "lang/SystemReasons.h"
#include "platform/Environment.h"

#include <chrono>
#include <utility>

namespace vantrel {
namespace {

std::chrono::milliseconds steadyTime() {
    return std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::steady_clock::now().time_since_epoch());
}

} // namespace

Engine::Engine(EngineGround ground)
    : executable(std::move(ground.executable)), programFolder(PathRules().parent(executable)),
      state(ground.state), messages(ground.messages), boxes(ground.boxes), languages(programFolder),
      language(state, messages, languages, boxes, localeLanguageName()),
      settings(programFolder, settingsFileName(executable)),
      registry(state, messages, boxes, programFolder), talk(progress, ground.questions, boxes),
      use(programFolder, std::move(ground.program), std::move(ground.command),
          ground.holdsMachines),
      library_(programFolder,
               [this](const LibraryProblem& problem) { tellLibraryProblem(problem); }),
      isLibraryGiven_(ground.library != nullptr),
      gate_(ground.library ? *ground.library : library_, std::move(ground.beforeLibraryCall)),
      session({.library = gate_,
               .TransMode = state.TransMode,
               .messages = messages,
               .languages = languages,
               .progress = progress,
               .talk = talk,
               .programFolder = programFolder,
               .dummyWindow = std::move(ground.dummyWindow),
               .unloadWindows = std::move(ground.unloadWindows),
               .modeChanged = std::move(ground.modeChanged),
               .use = &use}) {
    progress.setUsualPlace([this] { return fromController(state); });
    progress.setClock(ground.clock ? std::move(ground.clock) : steadyTime);
    progress.setMark([this] { return markInForce(messages, state); });
}

std::string Engine::libraryProblem() {
    if (isLibraryGiven_ || !library_.problem())
        return {};
    return textOf(*library_.problem());
}

std::string Engine::textOf(const LibraryProblem& problem) const {
    std::string text = messages.getMessage(message::libraryUnusable) + problem.path;
    if (!problem.reason.empty())
        text += "\n" + reasonInLanguage(messages, problem.reason);
    if (!problem.missing.empty())
        text += "\n" + messages.getMessage(message::libraryFunctionsMissing);
    for (const auto& name : problem.missing)
        text += "\n" + name;
    return text;
}

void Engine::tellLibraryProblem(const LibraryProblem& problem) {
    talk.tell(textOf(problem), BoxIcon::Exclamation);
    session.noteOperatorTold();
}

} // namespace vantrel
