#pragma once

#include "files/TransferServices.h"

#include <cstdint>
#include <string>

namespace vantrel {

/// What the transfer commands tell the operator, each in a message box with an exclamation icon.
class TransferReports {
  public:
    explicit TransferReports(const TransferServices& services) : with_(services) {}

    /// "[name]" and a message.
    void aboutFile(const std::string& name, std::int32_t messageNumber) const;
    /// The same with a reason in words: "[name] message ( reason )".
    void aboutFile(const std::string& name, std::int32_t messageNumber,
                   const std::string& reason) const;

    /// The session's last failure as a failed transfer, of one file or of a list, with the file's
    /// name in a line of its own.
    void transferFailed(const std::string& name) const;
    void listTransferFailed() const;
    /// A failed transfer that the session knows nothing of.
    void transferFailed(const std::string& function, const std::string& reason) const;
    void deletionFailed(const std::string& name) const;
    /// The file has arrived, but the session could not delete the controller's job.
    void originalNotDeleted(const std::string& name) const;

    void tell(const std::string& text) const;
    /// The text of the session's `ErrorCode`.
    std::string errorText() const;

  private:
    void tellTransferFailure(const std::string& end, const std::string& name) const;
    std::string functionAndReason() const;

    TransferServices with_;
};

} // namespace vantrel
