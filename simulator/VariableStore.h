#pragma once

#include "base/Result.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vantrel::simulator {

/// The values of one variable as they cross the interface; a kind uses the first few.
inline constexpr std::size_t valueSlots = 10;
using VariableValues = std::array<double, valueSlots>;

/// What a controller knows about a kind of variable.
struct VariableKind {
    std::string_view letters;
    std::int16_t highestNumber = 0; ///< numbers start at 0
    std::size_t valueCount = 1;
    double lowest = 0;
    double highest = 0;
    bool wholeNumbers = false;
};

/// All kinds; the index is the kind's code.
std::span<const VariableKind> variableKinds();

/// `code::done`, `code::variableKind` or `code::variableNumber`.
std::int16_t checkVariable(std::int16_t kind, std::int16_t number);
/// `code::done` or `code::variableValue`; slots that the kind does not use are not looked at.
std::int16_t checkValues(const VariableKind& kind, const VariableValues& values);

/// A controller's variables, kept in one text file: a line per variable that was ever set, such as
/// "B005=12" or "P001=412.5,0,930,180,0,-90,0,0,0". Other lines (";" comments) are kept and stand
/// first. A variable without a line is 0.
class VariableStore {
  public:
    explicit VariableStore(std::string path) : path_(std::move(path)) {}

    /// Reads the file anew; a missing one holds no variables.
    Outcome load();
    /// Replaces the file whole.
    Outcome save() const;

    /// Kind and number have been checked.
    VariableValues get(std::int16_t kind, std::int16_t number) const;
    void put(std::int16_t kind, std::int16_t number, const VariableValues& values);

  private:
    std::string path_;
    std::vector<std::string> otherLines_;
    std::map<std::pair<std::int16_t, std::int16_t>, VariableValues> variables_;
};

} // namespace vantrel::simulator
