#pragma once

#include "files/TransferServices.h"

#include <string>
#include <vector>

namespace vantrel {

enum class Direction { Send, Receive };

/// Which of the selected items a transfer may have. Every item that is left out is named in a
/// message box of its own with the reason.
class TransferPermission {
  public:
    TransferPermission(const TransferServices& services, Direction direction)
        : with_(services), direction_(direction) {}

    /// The names that pass, in order.
    std::vector<std::string> permitted(const std::vector<SelectedItem>& items) const;

  private:
    bool passes(const SelectedItem& item) const;
    bool hasUsableName(const std::string& name) const;
    void tellNameRefused(const std::string& name) const;

    TransferServices with_;
    Direction direction_;
};

} // namespace vantrel
