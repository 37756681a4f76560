#pragma once

#include "base/Connection.h"
#include "platform/HeldFile.h"

#include <cstdint>
#include <map>
#include <string>

namespace vantrel {

class MessageTable;

/// Which controller is meant: by its address, or by the serial port of this PC that leads to it.
struct ReachedMachine {
    TransferMode mode = TransferMode::Bsc;
    std::int16_t port = 1;
    std::string address = {};

    /// "COM1", or the address.
    std::string name() const;
};

/// Who works with a machine, as the others are told. What is not known is empty.
struct MachineUser {
    std::string program;
    std::string command;
    std::string user;
    std::string computer;
    std::string process; ///< its number
    std::string since;   ///< a date and time; of another one, as his file's time says it

    bool operator==(const MachineUser&) const = default;
};

/// What the others are shown of him.
std::string shownUser(const MessageTable& messages, const MachineUser& user);

/// Lets one command at a time work with a machine, of all programs that share a folder. For each
/// machine there is a file in its folder "locks" that is held as long as the command runs, and that
/// says who holds it. The system lets go of it when the program ends, however that comes.
class MachineUse {
  public:
    enum class Answer { Taken, InUse, NotHeld };

    /// What came of `take`.
    struct Taking {
        Answer answer = Answer::Taken;
        MachineUser holder{}; ///< of a machine in use
        std::string file{};   ///< that could not be held, and why
        std::string reason{};
    };

    /// The time in which machines that are taken stay taken; such times nest.
    class Command {
      public:
        /// Null for nothing at all.
        explicit Command(MachineUse* use) : use_(use) {
            if (use_)
                use_->begin();
        }
        ~Command() {
            if (use_)
                use_->end();
        }
        Command(const Command&) = delete;
        Command& operator=(const Command&) = delete;

      private:
        MachineUse* use_;
    };

    /// The locks stand in `programFolder`. A command that is `strict` must not go on without one.
    MachineUse(std::string programFolder, std::string program, std::string command, bool isStrict);
    ~MachineUse();
    MachineUse(const MachineUse&) = delete;
    MachineUse& operator=(const MachineUse&) = delete;

    /// Whether both lead to one machine.
    static bool isSameAddress(const std::string& one, const std::string& other);

    void begin() { ++commands_; }
    void end();
    /// To be called while a command runs. A machine that this program has taken already is taken.
    Taking take(const ReachedMachine& machine);
    /// Whether a machine without a lock must not be worked with.
    bool isStrict() const { return isStrict_; }

  private:
    std::string ownEntry() const;
    void letGo();

    std::string folder_;
    std::string program_;
    std::string command_;
    bool isStrict_;
    int commands_ = 0;
    std::map<std::string, HeldFile> held_; ///< by the file's name
};

} // namespace vantrel
