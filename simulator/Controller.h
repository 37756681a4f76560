#pragma once

#include "simulator/ControllerFolder.h"
#include "simulator/ResultCodes.h"
#include "simulator/SimulatorSettings.h"
#include "simulator/VariableStore.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel::simulator {

/// How far a transfer gets.
struct TransferLimit {
    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    std::size_t bytes = none;
    std::string_view of(std::string_view content) const { return content.substr(0, bytes); }
};

/// One simulated robot controller: what it holds and what it refuses. It says everything in codes
/// of `ResultCodes.h`; names are UTF-8.
class Controller {
  public:
    explicit Controller(ControllerSettings settings)
        : settings_(std::move(settings)), folder_(settings_.folder) {}

    bool answers() const { return folder_.exists(); }

    /// What the directory tells: all files but the hidden ones.
    CodeOr<std::vector<std::string>> directory() const;

    /// Takes a file in. A job is kept under the name that stands in it. A ".JBI" never replaces a
    /// job: that has to be deleted before. A ".JBR" brings a job as part of a set and does replace
    /// it, since nothing could be deleted under the set's name.
    std::int16_t receive(std::string_view fileName, std::string_view content,
                         TransferLimit limit = {}) const;
    /// The bytes of a file; a job is handed out as ".JBI", as ".JBR" and under its bare name.
    CodeOr<std::string> deliver(std::string_view fileName) const;

    /// The job's name in the controller's form, for a name with or without ".JBI".
    CodeOr<std::string> findJob(std::string_view job) const;
    std::int16_t deleteJob(const std::string& job) const;

    CodeOr<VariableValues> variable(std::int16_t kind, std::int16_t number) const;
    std::int16_t setVariable(std::int16_t kind, std::int16_t number,
                             const VariableValues& values) const;

  private:
    std::int16_t receiveJob(const ControllerFileName& name, std::string_view content,
                            TransferLimit limit) const;
    /// Stores within the controller's memory.
    std::int16_t store(const ControllerFileName& name, std::string_view content) const;
    /// `code::done`, or why the job may neither be deleted nor replaced.
    std::int16_t mayChange(const std::string& job) const;
    bool isHidden(const std::string& fileName) const;

    ControllerSettings settings_;
    ControllerFolder folder_;
};

} // namespace vantrel::simulator
