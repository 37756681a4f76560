#pragma once

#include "app/commands/HelpCommands.h"
#include "app/commands/MainCommands.h"
#include "app/folders/FolderTreeCommands.h"
#include "app/folders/PCFileCommands.h"
#include "app/folders/PCFolder.h"
#include "app/lists/ListTransferCommands.h"
#include "app/results/ResultCommands.h"
#include "app/robots/RobotSelection.h"
#include "app/settings/SettingCommands.h"
#include "app/start/Shutdown.h"
#include "files/CommandResult.h"
#include "files/Panes.h"
#include "files/TransferCommands.h"
#include "files/TransferServices.h"

#include <functional>
#include <string>

namespace vantrel {

class Engine;
class FilePrinter;
class FolderTreeView;
class ListFileWindow;
class MainWindowView;
class PaneWindow;
class PromptWindow;
class RobotBox;
class ViewerPane;

/// What the main window and its helpers do for the commands; everything is borrowed.
struct MainWindowParts {
    PaneWindow& panes;
    MainWindowView& view;
    RobotBox& robots;
    ViewerPane& viewer;
    FolderTreeView& tree;
    FilePrinter& printer;
    ListFileWindow& listFiles;
    ShutdownWindows& shutdown;
    FolderTreeSource folders;
    std::function<Outcome(const std::string& path)> editTextFile; ///< the system's text editor
    HelpCommands::Opener openDocument;
    MoveToWasteBin moveToWasteBin = {};
    PromptWindow& prompts;
};

/// Everything that works in the main window and knows no control: the panes and what the commands
/// do.
class MainProgram {
  public:
    /// Both outlive it.
    MainProgram(Engine& engine, const MainWindowParts& parts);
    MainProgram(const MainProgram&) = delete;
    MainProgram& operator=(const MainProgram&) = delete;

    /// The main window's own start: what is shown first, and the stored folder.
    void start();

    Panes panes;

  private:
    ResultLog results_;
    MoveToWasteBin moveToWasteBin_;
    TransferServices transferServices_;
    TransferCommands transfers_;
    PCFolder folder_;
    MainServices services_;

  public:
    MainCommands main;
    FolderTreeCommands folderTree;
    PCFileCommands files;
    RobotSelection robots;
    SettingCommands settings;
    ListTransferCommands lists;
    ResultCommands results;
    HelpCommands help;
    Shutdown shutdown;
};

} // namespace vantrel
