#pragma once

#include "lang/MessageNumbers.h"

// Numbers of the texts in the language files that only the program without windows needs, in the
// style of lang/MessageNumbers.h: 600 to 659, and 6640 to 6659.

namespace vantrel::message {

inline constexpr std::int32_t consoleNoMatch = 600;
inline constexpr std::int32_t consoleRobotUnknown = 601; ///< after [robot's name]
inline constexpr std::int32_t consoleRobotShared = 602;  ///< after [robot's name]
inline constexpr std::int32_t consoleSerialNamesNobody = 603;
inline constexpr std::int32_t consoleNoHispeed = 604;
inline constexpr std::int32_t consoleNoTerminal = 605;
inline constexpr std::int32_t consoleOtherFolder = 606; ///< why nothing is sent
inline constexpr std::int32_t consoleKept = 607;        ///< why a file is skipped

// What `doctor` looked at and what came of it.
inline constexpr std::int32_t consoleFolder = 620;
inline constexpr std::int32_t consoleSettings = 621;
inline constexpr std::int32_t consoleLanguage = 622;
inline constexpr std::int32_t consoleRegistry = 623;
inline constexpr std::int32_t consoleTable = 624;
inline constexpr std::int32_t consoleLibrary = 625;
inline constexpr std::int32_t consoleWorks = 626;
inline constexpr std::int32_t consoleWorksNot = 627;
inline constexpr std::int32_t consoleWouldBeDone = 628; ///< of a file in a rehearsal
// What `doctor` adds.
inline constexpr std::int32_t consoleNoSettings = 630;
inline constexpr std::int32_t consoleAdviseFiles = 631;
inline constexpr std::int32_t consoleAdviseRobots = 632;
inline constexpr std::int32_t consoleAdviseLibrary = 633;
inline constexpr std::int32_t consoleAdviseConnection = 634;

inline constexpr std::int32_t consoleDone = 640; ///< of an operation that was called

// Of a robot whose work was done in a process of its own.
inline constexpr std::int32_t consoleTookTooLong = 665; ///< after [robot], with the seconds
inline constexpr std::int32_t consoleStopped = 666;     ///< after [robot]
inline constexpr std::int32_t consoleRobotsChanged = 667;

// Of the history.
inline constexpr std::int32_t snapshotRecorded = 6640;
inline constexpr std::int32_t snapshotUnchanged = 6641;
inline constexpr std::int32_t snapshotFailed = 6642;
inline constexpr std::int32_t snapshotChanged = 6643; ///< with the number of files
inline constexpr std::int32_t snapshotNew = 6644;     ///< with the number of files
inline constexpr std::int32_t snapshotGone = 6645;    ///< with the number of files
inline constexpr std::int32_t snapshotUnread = 6646;  ///< with the number of files
inline constexpr std::int32_t historyInUse = 6647;
inline constexpr std::int32_t historyFilesBehind = 6648; ///< then the reason
inline constexpr std::int32_t nameTooLongForHistory = 6649;
inline constexpr std::int32_t historyNotOpened = 6650; ///< then the reason
inline constexpr std::int32_t fileNotInHistory = 6651;
inline constexpr std::int32_t versionUnknown = 6652;
inline constexpr std::int32_t historyFileKept = 6654; ///< then the path that it has now
inline constexpr std::int32_t backupSummary = 6653;   ///< with the numbers read and not read

} // namespace vantrel::message
