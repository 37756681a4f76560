#pragma once

#include "files/TransferServices.h"
#include "link/SentFile.h"
#include "platform/Files.h"

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace vantrel {

/// The PC files that a move has sent. Each goes once a reading of the controller's directory that
/// was made after its send shows it, and when it still is what was sent; the operator is told of
/// every file that stays.
class SentSources {
  public:
    /// As `removeFileIf`.
    using Removal =
        std::function<Result<bool>(const std::string& path, const std::string& spare,
                                   const std::function<bool(const std::string& content)>& mayGo)>;

    explicit SentSources(const TransferServices& services, Removal removal = removeFileIf)
        : with_(services), removal_(std::move(removal)) {}

    /// The file that the session has just sent.
    void add(const std::string& name);
    /// Removes what the session's last reading shows. The first reading after a send decides: a
    /// later one may show the name for another file's sake.
    void removeArrived();
    /// After the last reading of the command: tells what stays on the PC.
    void conclude();
    bool allWent() const { return allWent_; }

  private:
    struct Source {
        std::string name;
        SentFile sent;
        std::uint64_t reading; ///< the one that the send began with
        std::string robot;     ///< what another one shows is no proof
    };

    void remove(const Source& source);
    void noteNotShown(const Source& source);
    void tell(std::int32_t messageNumber, const std::vector<std::string>& names);

    TransferServices with_;
    Removal removal_;
    std::vector<Source> waiting_; ///< mostly one: each send begins with a reading, which may fail
    std::vector<std::string> notShown_;
    std::vector<std::string> lost_; ///< the robot's jobs that were deleted for files not shown
    bool allWent_ = true;
};

} // namespace vantrel
