#pragma once

#include "base/Connection.h"
#include "base/FolderListing.h"
#include "base/RobotRecord.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace vantrel {

/// The pane that the commands act on.
enum class ActiveSide : std::int16_t { PC = 0, Controller = 1 };

/// The one record that the whole program works on: filled by the start routine and the settings
/// file, handed down by reference. The main window and the session are not in it; they stand above
/// it and are handed out by the composition root.
struct ApplicationState : SerialLine {
    std::string LanguageName;    ///< the current language file's name without ".lng"
    std::int16_t LangSelect = 1; ///< 1 = offer the language dialog at every start, 0 = don't
    std::string FontName;
    bool FontBold = false;
    bool FontItalic = false;
    std::int16_t FontSize = 0; ///< points
    bool LangCancelled = false;

    std::string HelpFile;        ///< the same for every language
    std::string PCPath;          ///< the current folder of the PC pane, absolute
    std::int16_t PCDispType = 1; ///< 0 large icons, 1 small icons, 2 list, 3 details
    FolderListing PCListing;     ///< its SortType and SortDir are the pane's sort state
    std::int16_t CtrlDispType = 1;
    FolderListing CtrlListing;
    ActiveSide Active = ActiveSide::PC;

    std::int16_t Controler = 4; ///< row of the controller model table
    bool JBR = false;           ///< receive ".JBI" jobs as ".JBR" files
    bool Headder = false;       ///< show and print job headers
    TransferMode TransMode = TransferMode::Bsc;
    std::int16_t SyncroRobotDir = 1; ///< 1 = choosing a robot also shows its PC folder

    RobotRecord CurrentRobot; ///< a copy of the chosen entry; its address is the session's
    std::vector<RobotRecord> RobotList; ///< ends with the record named `endOfRobots`
    std::string BootName;
    std::string BaseDir;
    std::int16_t CurrentRobotIndex = 0;
    std::int16_t StartRobotIndex = 0;

    /// Left, top, width, height of the main window and the widths of three columns, in twips
    /// (1/1440 inch); the last index is never filled.
    std::array<std::int32_t, 8> WindowPos{};
    std::string JobListFile;
    std::string VarListFile;
    std::string IniFileName; ///< the executable's base name and ".ini", without folder

    /// Files deleted on the PC go to the system's waste bin; for this run.
    bool DeletesToWasteBin = false;
    bool ViewerShown = false; ///< the file viewer stands in place of the controller pane
    bool NoSave = false;
    bool Busy = false;
    bool StartupDone = false;
};

} // namespace vantrel
