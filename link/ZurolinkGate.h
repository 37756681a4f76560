#pragma once

#include "link/Zurolink.h"

#include <functional>
#include <utility>

namespace vantrel {

/// The one way into the communication library: any of its calls may block for as long as a
/// controller likes, and while one does nothing is painted. So before each call the screen is
/// brought up to date, by whoever knows windows.
class ZurolinkGate final : public Zurolink {
  public:
    /// `beforeCall` is called thousands of times in a row for a long directory.
    ZurolinkGate(Zurolink& library, std::function<void()> beforeCall)
        : library_(library), beforeCall_(std::move(beforeCall)) {}

    std::int16_t BscOpen(const char* path, std::int16_t type) override;
    std::int16_t BscSetCom(std::int16_t handle, std::int16_t port, std::int32_t baudrate,
                           std::int16_t parity, std::int16_t dataLen,
                           std::int16_t stopBit) override;
    std::int16_t BscSetEther(std::int16_t handle, const char* ip, std::int16_t mode,
                             void* window) override;
    std::int16_t BscConnect(std::int16_t handle) override;
    std::int16_t BscDisConnect(std::int16_t handle) override;
    std::int16_t BscClose(std::int16_t handle) override;
    std::int16_t BscFindFirst(std::int16_t handle, char* buffer, std::int16_t length) override;
    std::int16_t BscFindNext(std::int16_t handle, char* buffer, std::int16_t length) override;
    std::int16_t BscDownLoad(std::int16_t handle, const char* file) override;
    std::int16_t BscUpLoad(std::int16_t handle, const char* file) override;
    std::int16_t BscSelectJob(std::int16_t handle, const char* job) override;
    std::int16_t BscDeleteJob(std::int16_t handle) override;
    std::int16_t BscGetVarData(std::int16_t handle, std::int16_t kind, std::int16_t number,
                               double* values) override;
    std::int16_t BscPutVarData(std::int16_t handle, std::int16_t kind, std::int16_t number,
                               const double* values) override;

  private:
    /// The library, entered.
    Zurolink& enter() {
        beforeCall_();
        return library_;
    }

    Zurolink& library_;
    std::function<void()> beforeCall_;
};

} // namespace vantrel
