#pragma once

#include "app/CommandStates.h"
#include "app/MainCommands.h"
#include "app/MainWindowView.h"
#include "app/ModeCommands.h"
#include "files/CommandFixture.h"

#include <optional>
#include <string>
#include <vector>

namespace vantrel::tests {

/// The main window without pixels: keeps what it was last told, and the order.
class RecordingView : public MainWindowView {
  public:
    void applyFont() override { log.push_back("font"); }
    void applyCaptions() override { log.push_back("captions"); }
    void place(const std::array<std::int32_t, 8>& positions) override {
        log.push_back("place " + std::to_string(positions[2]));
    }
    void showStates(const CommandStates& shown) override { states = shown; }
    void showMode(const ModeLook& look) override {
        mode = look;
        log.push_back("mode " + look.caption);
    }
    void showActiveSide(ActiveSide side) override { active = side; }
    void showSerialLine(const std::string& port, const std::string& format) override {
        log.push_back("serial " + port + " " + format);
    }
    void showAddress(const std::string& shown) override { address = shown; }
    void showFolder(const std::string& path) override { folder = path; }
    void showView(ActiveSide side, std::int16_t type) override {
        (side == ActiveSide::PC ? pcView : controllerView) = type;
    }
    void selectAll(ActiveSide side) override { selectedAll.push_back(side); }
    std::optional<FileKind> focusedKind() const override { return kind; }
    void closeWindow() override { ++closes; }

    std::vector<std::string> log;
    CommandStates states;
    ModeLook mode;
    ActiveSide active = ActiveSide::PC;
    std::string address;
    std::string folder;
    int pcView = -1;
    int controllerView = -1;
    std::vector<ActiveSide> selectedAll;
    std::optional<FileKind> kind = FileKind::JobFile;
    int closes = 0;
};

class MainCommandsTest : public CommandFixture {
  protected:
    MainCommandsTest() {
        state.StartupDone = true;
        robot(); // the controller is there, with an empty directory
    }

    RecordingView view;
    MainServices services{state,
                          session,
                          panes,
                          commands,
                          messages,
                          dialog,
                          window,
                          view,
                          [this](const std::string& path) {
                              edited.push_back(path);
                              return editorAnswer;
                          }};
    std::vector<std::string> edited;
    Outcome editorAnswer = Done{};
    MainCommands main{services};
};

} // namespace vantrel::tests
