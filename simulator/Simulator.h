#pragma once

#include "simulator/Links.h"
#include "simulator/Script.h"
#include "simulator/SimulatorSettings.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>

namespace vantrel::simulator {

/// The library without its C interface: the fourteen functions under their own names, with texts in
/// the ANSI code page. To be called by one thread at a time.
class Simulator {
  public:
    using Pause = std::function<void(std::chrono::milliseconds)>;

    /// `libraryFolder` holds "simulator.ini"; `pause` waits where a script asks for it.
    Simulator(std::string libraryFolder, Pause pause);

    /// Reads "simulator.ini" again, so that a change holds from the next link on without a restart;
    /// a changed file also starts the script's counting anew.
    std::int16_t BscOpen(const char* path, std::int16_t type);
    std::int16_t BscSetCom(std::int16_t handle, std::int16_t port, std::int32_t baudrate,
                           std::int16_t parity, std::int16_t dataLen, std::int16_t stopBit);
    std::int16_t BscSetEther(std::int16_t handle, const char* ip, std::int16_t mode);
    std::int16_t BscConnect(std::int16_t handle);
    std::int16_t BscDisConnect(std::int16_t handle);
    std::int16_t BscClose(std::int16_t handle);
    std::int16_t BscFindFirst(std::int16_t handle, char* buffer, std::int16_t length);
    std::int16_t BscFindNext(std::int16_t handle, char* buffer, std::int16_t length);
    std::int16_t BscDownLoad(std::int16_t handle, const char* file);
    std::int16_t BscUpLoad(std::int16_t handle, const char* file);
    std::int16_t BscSelectJob(std::int16_t handle, const char* job);
    std::int16_t BscDeleteJob(std::int16_t handle);
    std::int16_t BscGetVarData(std::int16_t handle, std::int16_t kind, std::int16_t number,
                               double* values);
    std::int16_t BscPutVarData(std::int16_t handle, std::int16_t kind, std::int16_t number,
                               const double* values);

  private:
    enum class Needs { Disconnected, Connected };

    void readSettings();
    /// Counts the call, does what the script wants done to it, and else runs `action(disturbance)`.
    template <typename Action>
    std::int16_t scripted(Function function, std::int16_t success, Action action,
                          const std::string& line = {});
    std::string lineOf(std::int16_t handle);
    /// The same with the link of the handle: `action(link, disturbance)`.
    template <typename Action>
    std::int16_t onLink(Function function, std::int16_t success, std::int16_t handle, Needs needs,
                        Action action);
    std::int16_t openLink(const char* path, std::int16_t type);
    std::int16_t connect(Link& link) const;

    std::string libraryFolder_;
    Pause pause_;
    std::string settingsBytes_;
    SimulatorSettings settings_;
    Script script_;
    Links links_;
};

} // namespace vantrel::simulator
