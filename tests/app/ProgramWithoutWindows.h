#pragma once

#include "MainCommandsFixture.h"
#include "app/start/Engine.h"
#include "app/start/MainProgram.h"

#include <chrono>
#include <string>

namespace vantrel::tests {

/// Robots' names as the box shows them.
class BoxOfRobots : public RobotBox {
  public:
    void clear() override { names.clear(); }
    void add(const std::string& name) override { names.push_back(name); }
    void select(int index) override { selected = index; }

    std::vector<std::string> names;
    int selected = -1;
};

/// The whole program but its windows: the real engine and what works in the main window, in the
/// folder of `executable`, with its library there.
class ProgramWithoutWindows : private ShutdownWindows {
  public:
    explicit ProgramWithoutWindows(const std::string& executable)
        : engine({.state = state,
                  .messages = messages,
                  .boxes = boxes,
                  .questions = question,
                  .executable = executable,
                  .beforeLibraryCall = [this] { ++libraryCalls; },
                  .dummyWindow = [] { return nullptr; },
                  .clock = [this] { return now; }}),
          program(engine, {.panes = window,
                           .view = view,
                           .robots = box,
                           .viewer = viewer,
                           .tree = tree,
                           .printer = printer,
                           .listFiles = windows,
                           .shutdown = *this,
                           .folders = {},
                           .editTextFile = [](const std::string&) { return Done{}; },
                           .openDocument = [](const std::string&) { return Done{}; },
                           .prompts = prompts}),
          runner(commandTable(),
                 {program.main, program.files, program.lists, program.help, windows}) {}

    std::chrono::milliseconds now{0}; ///< by the engine's clock
    ApplicationState state;
    MessageTable messages;
    FakeMessageBoxes boxes;
    ScriptedQuestionWindow question;
    FakePaneWindow window;
    RecordingView view;
    BoxOfRobots box;
    RecordingViewerPane viewer;
    RecordingTreeView tree;
    RecordingPrinter printer;
    RecordingWindows windows;
    ScriptedPrompts prompts;
    int libraryCalls = 0;
    Engine engine;
    MainProgram program;
    CommandRunner runner;

  private:
    bool isLocked() const override { return state.Busy; }
    void unloadOtherWindows() override {}
    WindowPlacement placement() const override { return {}; }
};

} // namespace vantrel::tests
