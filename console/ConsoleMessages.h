#pragma once

#include "lang/MessageNumbers.h"

// Numbers of the texts in the language files that only the program without windows needs, in the
// style of lang/MessageNumbers.h: 600 to 659.

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

} // namespace vantrel::message
