#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel::simulator {

/// The functions that a script can disturb, in the order of the interface.
enum class Function : std::uint8_t {
    BscOpen,
    BscSetCom,
    BscSetEther,
    BscConnect,
    BscDisConnect,
    BscClose,
    BscFindFirst,
    BscFindNext,
    BscDownLoad,
    BscUpLoad,
    BscSelectJob,
    BscDeleteJob,
    BscGetVarData,
    BscPutVarData,
};
inline constexpr std::size_t functionCount = 14;

/// What is to happen to one call.
struct Disturbance {
    enum class Kind { None, Fail, Nothing, Cut, Crash };

    Kind kind = Kind::None;
    std::int16_t code = 0;    ///< of Fail and Cut
    std::size_t cutAfter = 0; ///< bytes that still arrive
    std::chrono::milliseconds delay{};
};

/// The disturbances of a set-up and how often each function has been called. A row is the function,
/// the number of the call ("3" that call, "3+" it and every later one) and what happens: "fail
/// <code>", "slow <milliseconds>", "nothing", "cut <bytes> [<code>]", "crash". A row that begins
/// with
/// "@" and an address or a port holds for links to it only, and counts their calls alone. Of
/// several rows that meet the same call all delays add up, and of the rest the first one counts.
class Script {
  public:
    static constexpr std::chrono::milliseconds longestDelay{60'000};

    /// False for a row that is not understood; it is left out.
    bool addRow(std::string_view row);
    /// Counts a call of the function and says what happens to it. `line` is where its link leads
    /// to, an address or "COM1", as far as that is known.
    Disturbance next(Function function, std::string_view line = {});

  private:
    struct Row {
        Function function = Function::BscOpen;
        std::uint32_t call = 1; ///< counted from 1
        bool andLater = false;
        Disturbance disturbance;
        std::string line{}; ///< empty for every one
        std::uint32_t callsOnLine = 0;
    };

    static std::optional<Row> parse(std::string_view row);

    std::vector<Row> rows_;
    std::array<std::uint32_t, functionCount> calls_{};
};

} // namespace vantrel::simulator
