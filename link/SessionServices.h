#pragma once

#include "base/TransferMode.h"

#include <functional>
#include <string>

namespace vantrel {

class FetchFiles;
class LanguageFiles;
class MessageTable;
class OperatorTalk;
class ProgressPanel;
class Zurolink;

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
};

} // namespace vantrel
