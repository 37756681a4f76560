#pragma once

#include "base/Connection.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace vantrel {

struct SerialLine;

/// The lists of serial parameters that the operator chooses from.
enum class SerialList { Baudrate, Parity, DataLen, StopBit };

/// The entries of a list, in order. Parity and stop bits are coded by their place in it, the other
/// two are the number that the entry shows.
std::span<const std::string_view> serialChoices(SerialList list);

/// The entry of a code, or an empty text: any other name would claim something that is not so.
std::string serialName(SerialList list, std::int16_t code);

/// The serial parameters as `lbl232CParam` shows them, in the two lines that it has room for.
struct SerialLabel {
    std::string port;   ///< "COM1: 9600bps"
    std::string format; ///< "DataLength:8  Parity:EVEN  StopBit:1"

    /// Both in one line.
    std::string text() const { return port + "  " + format; }
};

SerialLabel serialLabel(const SerialLine& line);

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
