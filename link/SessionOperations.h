#pragma once

#include "base/Result.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace vantrel {

class Snappy;

/// An argument or result of an operation called by name: nothing, a number or a text (UTF-8).
/// Truth values are 1 and 0.
using SessionValue = std::variant<std::monostate, double, std::string>;

// Conversions between late-bound values and the session's types. Nothing where a value does not
// convert; a missing value converts to nothing but a text.

SessionValue toSessionValue(bool value);
SessionValue toSessionValue(std::int32_t value);
SessionValue toSessionValue(const std::string& value);

std::optional<double> numberFrom(const SessionValue& value);
/// To the nearest whole number, a half to the even one.
std::optional<std::int32_t> integer32From(const SessionValue& value);
std::optional<std::int16_t> integer16From(const SessionValue& value);
/// 0 is false, every other number true; the words "true" and "false" in any letter case too.
std::optional<bool> flagFrom(const SessionValue& value);
std::string textFrom(const SessionValue& value);

/// What an operation or a property takes and gives.
struct SessionForm {
    enum class Kind { Text, Number, Flag };

    struct Parameter {
        Kind kind = Kind::Text;
        bool isOptional = false;
        bool isGivenBack = false; ///< changed by the operation
    };

    std::string name;
    std::vector<Parameter> parameters{}; ///< a caller's; a list that only goes out follows them
    bool saysSuccess = false;            ///< the result is whether it went well
};

/// The session's operations and properties by their names, for scripts and remote callers that bind
/// late. Numbers given as text and texts given as numbers are converted; arguments beyond those
/// that an operation takes are ignored.
class SessionOperations {
  public:
    explicit SessionOperations(Snappy& session) : session_(session) {}

    /// Calls an operation. Out arguments are written back: `ReadDirectory` gives the names, one per
    /// line and control characters replaced, and `VarUpLoad` the refreshed entry. A property's name
    /// alone reads it, with an argument it sets it. Fails, without having called anything, on an
    /// unknown name and on arguments that are missing or do not convert.
    Result<SessionValue> call(std::string_view name, std::vector<SessionValue>& arguments);
    Result<SessionValue> call(std::string_view name) {
        std::vector<SessionValue> none;
        return call(name, none);
    }

    Result<SessionValue> get(std::string_view property) const;
    Outcome set(std::string_view property, const SessionValue& value);

    /// The names of all properties and operations, in the order of the session's interface.
    static std::vector<std::string> names();
    /// The same with what they take and give.
    static std::vector<SessionForm> forms();
    /// Whether `call` would take just these arguments, for callers who ignore none; nothing is
    /// called.
    static Outcome check(std::string_view name, const std::vector<SessionValue>& arguments);

  private:
    Snappy& session_;
};

} // namespace vantrel
