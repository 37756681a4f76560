#pragma once

#include "app/SerialChoices.h"
#include "base/SerialLine.h"

#include <array>
#include <cstdint>
#include <optional>

namespace vantrel {

/// The serial parameters as the settings dialog edits them. A stored value that no entry shows
/// stays as it is until another is chosen.
class SerialDraft {
  public:
    static constexpr int lowestPort = 1;
    static constexpr int highestPort = 256;

    explicit SerialDraft(const SerialLine& stored);

    int port() const { return port_; }
    /// Brought into the range; only a stored port may lie outside.
    void setPort(int port);

    /// The chosen entry, if the value is one of the list's. A rate that is not offered shows 9600.
    std::optional<std::size_t> chosen(SerialList list) const;
    void choose(SerialList list, std::size_t index);

    /// COM1, 9600 bit/s, even parity, 8 data bits, 1 stop bit. An edit in any case.
    void restoreDefaults();

    /// As it is edited now.
    SerialLine line() const;

    /// Whether the operator has edited anything since the start or the last apply.
    bool isEdited() const { return edited_; }
    void noteApplied() { edited_ = false; }

  private:
    std::optional<std::size_t>& entry(SerialList list);

    SerialLine stored_;
    int port_;
    std::array<std::optional<std::size_t>, 4> chosen_; ///< by `SerialList`
    bool edited_ = false;
};

} // namespace vantrel
