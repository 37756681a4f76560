#pragma once

#include "link/MachineUse.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

namespace vantrel {

/// Codes that are decisions of the operator or our own findings, beside those that the library
/// returns. Their texts are the resource messages of the same number.
namespace session_code {
inline constexpr std::int16_t cancelled = 3;
inline constexpr std::int16_t overwriteRefused = 4;
inline constexpr std::int16_t overwriteAll = 5;
inline constexpr std::int16_t listFileNotOpened = 6;
inline constexpr std::int16_t nameNotExpressible =
    20;                                              ///< the library's code page lacks a character
inline constexpr std::int16_t fileNotReadable = 21;  ///< the PC file cannot be read
inline constexpr std::int16_t entryRejected = 22;    ///< a line that is no variable entry
inline constexpr std::int16_t nameRefused = 23;      ///< not one plain file name
inline constexpr std::int16_t directoryEndless = 24; ///< too many entries, or the same ones again
inline constexpr std::int16_t fileDidNotArrive = 25; ///< reported as done, but it is not there
inline constexpr std::int16_t fileNotReplaceable = 26; ///< the old PC file cannot be set aside
inline constexpr std::int16_t jobNameUnusable = 27;    ///< no "//NAME" line that a job could have
inline constexpr std::int16_t controllerChanged = 29;  ///< or the PC folder, while it ran
/// A variable's value is not finite. (30 to 33 stay unused: their texts would be the buttons'.)
inline constexpr std::int16_t valueNotFinite = 34;
inline constexpr std::int16_t listNotRead = 35;      ///< an empty list is all there is to write
inline constexpr std::int16_t fileChanged = 36;      ///< the PC file, while its question was open
inline constexpr std::int16_t operationRunning = 37; ///< one is begun while another runs
inline constexpr std::int16_t folderNotExpressible = 38; ///< as a name, but of the PC folder
inline constexpr std::int16_t jobNameNotInCodePage = 40; ///< the controller reads another name
inline constexpr std::int16_t jobIsAmbiguous = 41;    ///< another on the robot differs in case only
inline constexpr std::int16_t folderNotReadable = 42; ///< the PC folder cannot be opened
inline constexpr std::int16_t fetchNotMarked =
    45; ///< the PC folder's mark cannot be set or taken off
inline constexpr std::int16_t fileNotFlushed =
    46; ///< the arrived file cannot be brought to the disk
inline constexpr std::int16_t markUnusable =
    47; ///< what marks an interrupted fetch of the PC file cannot be read
inline constexpr std::int16_t machineInUse = 160;    ///< by another program
inline constexpr std::int16_t machineNotHeld = 161;  ///< nobody knows whether it is in use
inline constexpr std::int16_t libraryUnusable = -10; ///< missing, wrong or incomplete library
} // namespace session_code

/// The reason of the last failure.
struct SessionErrorRecord {
    std::int16_t ErrorCode = 0;
    std::string
        ErrorFunction; ///< the library function that failed; empty when the operator decided
    std::int32_t ErrorIndex = 0;
    bool isReturned = false;  ///< the code is what the function returned, not a finding of our own
    bool hasIndex = false;    ///< the index was given with this failure and is not an older one
    std::string systemReason; ///< in the system's words, where it was the one to refuse
    std::string mark;         ///< the name of the one that cannot be read
    std::string machine;      ///< the one in use, or the file that could not be held for it
    MachineUser user;         ///< of the machine in use

    /// Without an index the previous one stays.
    void set(std::int16_t code, std::string function, std::optional<std::int32_t> index = {}) {
        ErrorCode = code;
        ErrorFunction = std::move(function);
        systemReason.clear();
        mark.clear();
        machine.clear();
        user = {};
        isReturned = false;
        hasIndex = index.has_value();
        if (index)
            ErrorIndex = *index;
    }
    /// The same for what a library function has returned.
    void setReturned(std::int16_t code, std::string function,
                     std::optional<std::int32_t> index = {}) {
        set(code, std::move(function), index);
        isReturned = true;
    }
};

} // namespace vantrel
