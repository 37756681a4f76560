#pragma once

#include "base/Result.h"
#include "simulator/VariableKinds.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace vantrel::simulator {

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
