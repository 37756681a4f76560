#pragma once

#include <cstdint>

namespace vantrel::message {

// Numbers of the texts in the language files, named by use. Resource numbers are looked up through
// MessageTable::resourceMessage, which adds 500.

inline constexpr std::int32_t title = 0;
inline constexpr std::int32_t askReadController = 1;
inline constexpr std::int32_t controllerNotRead = 2;
inline constexpr std::int32_t languageFileMissing = 3;
inline constexpr std::int32_t transferFailed = 5;
inline constexpr std::int32_t noSuchFile = 6;
inline constexpr std::int32_t transferTitle = 7;
inline constexpr std::int32_t kindRefused = 8;
inline constexpr std::int32_t deleteFailed = 9;
inline constexpr std::int32_t askDeleteOnPC = 10;
inline constexpr std::int32_t askDeleteOnController = 11;
inline constexpr std::int32_t folderNotOpened = 12;
inline constexpr std::int32_t askExit = 13;
inline constexpr std::int32_t countPC = 14;
inline constexpr std::int32_t countController = 15;
inline constexpr std::int32_t countEnd = 16;
inline constexpr std::int32_t askPrint = 17;
inline constexpr std::int32_t viewerFailed = 18;
inline constexpr std::int32_t listIndex = 26;
inline constexpr std::int32_t notDeletedFromPC = 27;
inline constexpr std::int32_t originalNotDeleted = 28;
inline constexpr std::int32_t registryNotRead = 33;
inline constexpr std::int32_t addressUnset = 34;
inline constexpr std::int32_t jobFileHead = 38;
inline constexpr std::int32_t jobFileMissing = 39;
inline constexpr std::int32_t listFileHint = 45;
inline constexpr std::int32_t modeHispeed = 190;
inline constexpr std::int32_t modeBsc = 191;
inline constexpr std::int32_t newRobot = 193;
inline constexpr std::int32_t startingUp = 210;
inline constexpr std::int32_t columnName = 211;
inline constexpr std::int32_t columnSize = 212;
inline constexpr std::int32_t columnDate = 213;

namespace resource {
inline constexpr std::int32_t alreadyExists = 2;
inline constexpr std::int32_t transferring = 4;
inline constexpr std::int32_t deleting = 7;
inline constexpr std::int32_t yes = 30;
inline constexpr std::int32_t no = 31;
inline constexpr std::int32_t all = 32;
inline constexpr std::int32_t cancel = 33;
} // namespace resource

} // namespace vantrel::message
