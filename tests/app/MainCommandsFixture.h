#pragma once

#include "app/commands/CommandRunner.h"
#include "app/commands/HelpCommands.h"
#include "app/commands/MainCommands.h"
#include "app/commands/MainServices.h"
#include "app/commands/ModeCommands.h"
#include "app/folders/FolderTreeCommands.h"
#include "app/folders/PCFileCommands.h"
#include "app/folders/PCFolder.h"
#include "app/lists/ListTransferCommands.h"
#include "app/viewer/ViewerCommands.h"
#include "files/CommandFixture.h"
#include "files/FolderScan.h"
#include "support/NamedCommands.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>
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
    void showStates(const CommandInput& shown) override { input = shown; }
    void showMode(const ModeLook& look) override {
        mode = look;
        log.push_back("mode " + look.caption);
    }
    void showActiveSide(ActiveSide side) override { active = side; }
    void showSerialLine(const std::string& port, const std::string& format) override {
        log.push_back("serial " + port + " " + format);
    }
    void showAddress(const std::string& shown) override { address = shown; }
    void showRobotMark(const PlaceMark& shown) override { mark = shown; }
    void showFolder(const std::string& path) override { folder = path; }
    void showView(ActiveSide side, std::int16_t type) override {
        (side == ActiveSide::PC ? pcView : controllerView) = type;
    }
    void selectAll(ActiveSide side) override { selectedAll.push_back(side); }
    void openQuickFilter(ActiveSide side) override { quickFilters.push_back(side); }
    void closeQuickFilter(ActiveSide side) override { closedQuickFilters.push_back(side); }
    void closeWindow() override { ++closes; }

    std::vector<std::string> log;
    CommandInput input; ///< what menus and buttons were last shown for
    ModeLook mode;
    ActiveSide active = ActiveSide::PC;
    std::string address;
    PlaceMark mark;
    std::string folder;
    int pcView = -1;
    int controllerView = -1;
    std::vector<ActiveSide> selectedAll;
    std::vector<ActiveSide> quickFilters, closedQuickFilters;
    int closes = 0;
};

/// The folder tree without pixels: the texts of its nodes, "+" before those that are opened.
class RecordingTreeView : public FolderTreeView {
  public:
    void showTree(const FolderTree& shown) override {
        nodes.clear();
        for (const auto root : shown.roots())
            keep(shown, root);
        ++shows;
    }
    void dropDown(bool down) override { isDown = down; }

    std::vector<std::string> nodes;
    bool isDown = false;
    int shows = 0;

  private:
    void keep(const FolderTree& shown, FolderTree::Id id) {
        const auto& node = shown.node(id);
        nodes.push_back((node.expanded ? "+" : "") + node.text + " " + std::string(node.image));
        for (const auto child : node.children)
            keep(shown, child);
    }
};

class RecordingViewerPane : public ViewerPane {
  public:
    void showFile(const std::string& shownName, std::string_view shownText) override {
        isShown = true;
        name = shownName;
        text = shownText;
        ++shows;
    }
    void hideFile() override { isShown = false; }

    bool isShown = false;
    std::string name, text;
    int shows = 0;
};

/// A printer that prints into memory.
class RecordingPrinter : public FilePrinter {
  public:
    Outcome print(const PrintedFile& file, std::string_view text) override {
        printed.push_back(file.name + ":" + std::string(text));
        files.push_back(file);
        if (whilePrinting)
            whilePrinting();
        return answer;
    }

    std::vector<std::string> printed;
    std::vector<PrintedFile> files;
    std::function<void()> whilePrinting;
    Outcome answer = Done{};
};

/// Windows that open and close at once.
class RecordingWindows : public CommandWindows, public ListFileWindow {
  public:
    void openSettings() override { opened.emplace_back("settings"); }
    void changeLanguage() override { opened.emplace_back("language"); }
    void openVersionWindow() override { opened.emplace_back("version"); }
    void openResult() override { opened.emplace_back("result"); }
    void testConnection() override { opened.emplace_back("test"); }
    void editRobotMark() override { opened.emplace_back("mark"); }
    bool readList(std::string_view mode) override {
        opened.push_back("list " + std::string(mode));
        return false;
    }
    std::optional<std::string> askNewList(const std::string& inFolder,
                                          const std::string& name) override {
        opened.push_back("new list " + name);
        folder = inFolder;
        if (newLists.empty())
            return std::nullopt;
        const std::string path = newLists.front();
        newLists.pop_front();
        return path;
    }

    std::string folder;               ///< that the dialog for a new list began in
    std::deque<std::string> newLists; ///< the paths that the operator chooses there
    std::vector<std::string> opened;
};

/// An operator who types what the script has; as in the real window a text with something wrong is
/// not taken, and unscripted prompts are left.
class ScriptedPrompts : public PromptWindow {
  public:
    std::optional<std::string> ask(const TextPrompt& prompt) override {
        asked.push_back(prompt);
        if (whileOpen)
            whileOpen();
        const auto typed = std::exchange(answer, std::nullopt);
        problems.push_back(typed ? prompt.problem(*typed) : std::string());
        return problems.back().empty() ? typed : std::nullopt;
    }

    std::optional<std::string> answer;
    std::vector<TextPrompt> asked;
    std::vector<std::string> problems;
    std::function<void()> whileOpen;
};

class MainCommandsTest : public CommandFixture {
  protected:
    MainCommandsTest() {
        state.StartupDone = true;
        robot(); // the controller is there, with an empty directory
    }

    RecordingView view;
    RecordingViewerPane viewer;
    RecordingPrinter printer;
    RecordingTreeView tree;
    PCFolder folder{state, panes, talk, view, tree};
    MainServices services{state,
                          session,
                          panes,
                          commands,
                          messages,
                          talk,
                          window,
                          view,
                          folder,
                          [this](const std::string& path) {
                              edited.push_back(path);
                              return editorAnswer;
                          },
                          viewer,
                          printer,
                          results};
    std::vector<std::string> edited;
    Outcome editorAnswer = Done{};
    MainCommands main{services};
    RecordingWindows windows;
    ScriptedPrompts prompts;
    std::string networkFolder = "none"; ///< what lies on another machine
    FolderSource folderSource{
        [this](const std::string& path) {
            EXPECT_FALSE(path.starts_with(networkFolder)) << "read on a network";
            return subfolders(path);
        },
        [this](const std::string& path) { return path.starts_with(networkFolder); }};
    PCFileCommands files{services, main, prompts, folderSource};
    ListTransferCommands lists{
        {state, session, panes, window, table, messages, progress, talk, results}, windows};
    std::vector<std::string> documents;
    HelpCommands help{state, "/opt/vantrel", [this](const std::string& path) {
                          documents.push_back(path);
                          return Outcome(Done{});
                      }};
    CommandRunner runner{commandTable(), {main, files, lists, help, windows}};

    /// A command by its entry's or its button's name.
    void run(std::string_view name) const {
        const auto [command, place] = commandNamed(name);
        runner.run(*command, place);
    }
    /// How the entry or button is shown now.
    CommandState shown(std::string_view name) const { return stateOf(name, view.input); }
};

} // namespace vantrel::tests
