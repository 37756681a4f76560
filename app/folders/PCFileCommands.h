#pragma once

#include "app/commands/MainServices.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace vantrel {

class MainCommands;

/// A line of text that the operator is asked for.
struct TextPrompt {
    std::int32_t title = 0; ///< message of the command's caption
    std::string label;
    std::string text{};       ///< what stands there at first
    std::size_t selected = 0; ///< how much of it, from its start, typing replaces
    /// What is wrong with a text, or nothing; the window takes no other one.
    std::function<std::string(const std::string& text)> problem{};
    /// What a text may be completed to, if that is offered.
    std::function<std::vector<std::string>(const std::string& text)> completions{};
};

class PromptWindow {
  public:
    virtual ~PromptWindow() = default;
    /// Nothing when the operator does not want to go on.
    virtual std::optional<std::string> ask(const TextPrompt& prompt) = 0;
};

/// What is asked about folders while the operator types or works elsewhere.
struct FolderSource {
    std::function<std::vector<std::string>(const std::string& folder)> subfolders;
    /// Told without touching the folder.
    std::function<bool(const std::string& folder)> isOnNetwork;
};

/// Working in the PC folder itself: what a file manager does with folders and names. A command
/// holds for the folder that was shown when it was given.
class PCFileCommands {
  public:
    PCFileCommands(const MainServices& services, MainCommands& commands, PromptWindow& prompts,
                   FolderSource source)
        : with_(services), commands_(commands), prompts_(prompts), source_(std::move(source)) {}

    /// Makes a folder in the PC folder and selects it.
    void newFolder();
    /// Gives the selected file or folder another name; nothing is ever replaced by it.
    void rename();
    /// Opens a folder that the operator types: absolute, or below the one that is shown.
    void goToFolder();
    /// One folder back (-1) or forward (1) among those that were shown.
    void step(int steps);

    /// What was dropped on the PC pane from another program, by absolute paths: files are copied
    /// into the PC folder, a single folder is opened.
    void takeDropped(const std::vector<std::string>& paths);
    /// The paths of what is selected in the PC pane.
    std::vector<std::string> selectedPaths() const;

    /// Shows what others have changed in the PC folder, if anything; `closely` looks at every file,
    /// where there are not too many, else only whether names have come or gone. A folder on a
    /// network is left alone: looking there may hang.
    void lookForChanges(bool closely);

    /// With more files than that a closer look is left to the operator: it is some 10 ms.
    static constexpr std::int32_t mostLookedAt = 5000;

  private:
    std::string problemOfName(const std::string& folder, const std::string& name,
                              const std::string& old) const;
    void showNew(const std::string& name);
    void tellUnfinished(const std::string& name) const;
    static std::string absolute(const std::string& shown, const std::string& typed);
    std::vector<std::string> completions(const std::string& shown, const std::string& typed) const;
    void tellFailure(const std::string& name, std::int32_t messageNumber,
                     const std::string& reason) const;

    MainServices with_;
    MainCommands& commands_;
    PromptWindow& prompts_;
    FolderSource source_;
    bool looks_ = false;
};

} // namespace vantrel
