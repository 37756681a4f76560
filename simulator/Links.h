#pragma once

#include "simulator/Controller.h"
#include "simulator/SimulatorSettings.h"
#include "simulator/WorkingFolder.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vantrel::simulator {

/// One link: opened with a working folder and a type, given a line, then connected.
struct Link {
    WorkingFolder workingFolder;
    std::int16_t type = 0;
    std::optional<Line> line;
    std::optional<Controller> controller; ///< there while the link is connected

    std::optional<std::vector<std::string>> directory; ///< as it was at `BscFindFirst`
    std::size_t nextEntry = 0;
    std::optional<std::string> selectedJob;

    void disconnect() {
        controller.reset();
        directory.reset();
        selectedJob.reset();
    }
};

/// The open links by handle. A handle is not given out again soon after it was closed, so that the
/// use of a closed one is noticed; 0 is never given out.
class Links {
  public:
    static constexpr std::size_t most = 100;

    /// The handle, or nothing when too many links are open.
    std::optional<std::int16_t> open(Link link);
    /// Null for a handle that is not open. The link stays where it is until it is closed.
    Link* find(std::int16_t handle);
    void close(std::int16_t handle) { links_.erase(handle); }

  private:
    std::map<std::int16_t, Link> links_;
    std::int16_t last_ = 0;
};

} // namespace vantrel::simulator
