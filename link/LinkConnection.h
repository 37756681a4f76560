#pragma once

#include "base/Connection.h"

#include <cstdint>
#include <optional>
#include <string>

namespace vantrel {

struct SessionErrorRecord;
struct SessionProperties;
struct SessionServices;
class Zurolink;

/// The link to the controller, which every operation opens for itself and closes again. What fails
/// goes to the error record.
class LinkConnection {
  public:
    static constexpr std::int16_t noHandle = -1;

    /// What an operation has to do with the PC folder.
    enum class FolderUse {
        Files, ///< files are read from it or written to it
        None   ///< it works on the controller alone
    };

    LinkConnection(const SessionServices& services, const SessionProperties& properties,
                   SessionErrorRecord& error)
        : services_(services), properties_(properties), error_(error) {}

    /// The library's handle, or `noHandle` with everything closed again.
    std::int16_t connect();
    /// False when a step failed. A link that would not disconnect is left open.
    bool disconnect(std::int16_t handle);
    /// Ends the link after a call whose success is `result` 0. On failure the link is closed first,
    /// so that the record tells of the call and not of the closing.
    bool finish(std::int16_t handle, std::int16_t result, const char* function,
                std::optional<std::int32_t> index = {});

    /// A text as the library takes it, or nothing, with `function` recorded as the step that could
    /// not be reached.
    std::optional<std::string> libraryText(const std::string& text, const char* function,
                                           std::optional<std::int32_t> index = {});
    /// The same for the name of a file or job, which has to be one plain component: "*" or "..\\x"
    /// never reach the library or the disk.
    std::optional<std::string> libraryFileName(const std::string& name, const char* function,
                                               std::optional<std::int32_t> index = {});

    Zurolink& library() const;

    /// To be called where an operation begins and ends. Its links all lead to the controller, and
    /// work in the folder, that are set at its beginning: after a change in its middle the next
    /// `connect` fails. It neither follows the change, which would spread one list over two robots,
    /// nor goes on with what was set, on a robot that the screen no longer shows.
    /// An operation that has nothing to do with the PC folder goes on in the program's own folder
    /// where that one is gone or cannot be told to the library.
    void begin(FolderUse use = FolderUse::Files);
    void end() { begunWith_.reset(); }
    bool hasBegun() const { return begunWith_.has_value(); }
    /// False, with the reason recorded, when controller or folder are not those of the beginning.
    bool isAsBegun();
    /// The operator has been told that the robot's address is not set; nothing was recorded.
    bool endedByUnsetAddress() const { return endedByUnsetAddress_; }

  private:
    /// What tells one controller from another, and the folder on the PC.
    struct Ends {
        TransferMode mode;
        std::int16_t port;
        std::string address;
        std::string folder;
        bool operator==(const Ends&) const = default;
    };

    Ends ends() const;
    /// The folder that the library is told, in its code page.
    std::optional<std::string> workingFolder() const;
    /// False, with the reason recorded, when another program works with the machine.
    bool takeMachine();
    bool addressUnset() const;
    std::int16_t refuseUnsetAddress(std::int16_t handle);
    bool configure(std::int16_t handle);
    bool configureSerial(std::int16_t handle);
    bool configureEthernet(std::int16_t handle);
    /// A step's success is 1; any other result is recorded with index 0.
    bool accept(std::int16_t result, const char* function);

    const SessionServices& services_;
    const SessionProperties& properties_;
    SessionErrorRecord& error_;
    std::optional<Ends> begunWith_; ///< nothing outside an operation
    FolderUse folderUse_ = FolderUse::Files;
    bool endedByUnsetAddress_ = false;
};

} // namespace vantrel
