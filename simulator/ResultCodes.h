#pragma once

#include <cstdint>
#include <utility>
#include <variant>

/// What the library's functions return beside their own success values. The language files carry a
/// text for each. `BscOpen` returns a failure as a negative number, since any other is a handle.
namespace vantrel::simulator::code {

inline constexpr std::int16_t done = 0;
inline constexpr std::int16_t accepted = 1; ///< success of the four functions that manage a link
inline constexpr std::int16_t noMoreEntries = -1;

inline constexpr std::int16_t controllerFault = 1000; ///< its storage cannot be read or written
inline constexpr std::int16_t refused = 1110;  ///< a call out of order or an unusable argument
inline constexpr std::int16_t notFound = 1200; ///< no such job or file on the controller
inline constexpr std::int16_t jobProtected = 1210;
inline constexpr std::int16_t jobRunning = 1220;
inline constexpr std::int16_t nameInvalid = 1230; ///< not one plain name, or a job's own name
inline constexpr std::int16_t jobExists = 1240;
inline constexpr std::int16_t formatError = 1300;
inline constexpr std::int16_t headerMissing = 1310; ///< no "//NAME" line
inline constexpr std::int16_t unknownFileKind = 1320;
inline constexpr std::int16_t memoryFull = 1400;
inline constexpr std::int16_t variableNumber = 1500; ///< out of range
inline constexpr std::int16_t variableValue = 1510;  ///< out of range
inline constexpr std::int16_t variableKind = 1520;   ///< unknown
inline constexpr std::int16_t noAnswer = 2010;
inline constexpr std::int16_t lineBroken = 2020; ///< the controller went away while connected
inline constexpr std::int16_t portUnavailable = 2030;
inline constexpr std::int16_t addressUnreachable = 2040;
inline constexpr std::int16_t transferCut = 3010;
inline constexpr std::int16_t pcFileNotFound = 3020;
inline constexpr std::int16_t pcFolderNotAccessible = 3030;
inline constexpr std::int16_t handleInvalid = 4010;
inline constexpr std::int16_t notConnected = 4020;
inline constexpr std::int16_t noJobSelected = 4030;
inline constexpr std::int16_t internalError = 5200;

} // namespace vantrel::simulator::code

namespace vantrel::simulator {

/// A value, or the code that says why there is none.
template <typename Value>
class CodeOr {
  public:
    CodeOr(Value value) : content_(std::move(value)) {}
    CodeOr(std::int16_t code) : content_(code) {}

    explicit operator bool() const { return std::holds_alternative<Value>(content_); }
    const Value& operator*() const { return std::get<Value>(content_); }
    const Value* operator->() const { return &std::get<Value>(content_); }
    std::int16_t code() const { return std::get<std::int16_t>(content_); }

  private:
    std::variant<Value, std::int16_t> content_;
};

} // namespace vantrel::simulator
