#pragma once

#include "base/Connection.h"

#include <cstdint>
#include <functional>
#include <string>

namespace vantrel {

class FetchFiles;
class LanguageFiles;
class MachineUse;
class MessageTable;
class OperatorTalk;
class ProgressPanel;
class Zurolink;

/// The public fields of the session, plain values that callers read and write.
struct SessionProperties {
    std::int16_t port = 1;               ///< 1 = COM1
    std::int32_t Baudrate = 9600;        ///< bit/s
    std::int16_t parity = 2;             ///< code, passed through unchanged
    std::int16_t DataLen = 8;            ///< bits
    std::int16_t StopBit = 0;            ///< code, passed through unchanged
    std::string path;                    ///< the PC folder that the library works in
    bool DisplayMonitor = true;          ///< off: no progress, every question answers Cancel
    std::string MonitorTitle = "Snappy"; ///< caption of progress and questions
    std::string IPaddress;               ///< dotted form
};

/// What the session works with; everything is borrowed and outlives it.
struct SessionServices {
    Zurolink& library;
    TransferMode& TransMode; ///< shared with the main window; read at every connect
    MessageTable& messages;
    const LanguageFiles& languages;
    ProgressPanel& progress;
    OperatorTalk& talk;
    std::string programFolder;                ///< absolute; made current by every connect
    std::function<void*()> dummyWindow;       ///< the handle of `frmDumy`, loaded on first use
    std::function<void()> unloadWindows = {}; ///< unloads `frmDumy`; called once, by `Quit`
    std::function<void()> modeChanged = {};   ///< `SetTansMode` has written `TransMode`
    FetchFiles* files = nullptr;              ///< null for the disk itself
    MachineUse* use = nullptr;                ///< keeps other programs off; null for nothing
};

} // namespace vantrel
