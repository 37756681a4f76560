#pragma once

#include "base/Result.h"

#include <string>
#include <vector>

namespace vantrel {

class MessageTable;

/// The language files "*.lng" of one folder. Names are found in any letter case.
class LanguageFiles {
  public:
    explicit LanguageFiles(std::string programFolder) : folder_(std::move(programFolder)) {}

    /// `languageName` without ".lng".
    bool exists(const std::string& languageName) const;
    /// The file's full path in its own spelling, or an empty text.
    std::string pathOf(const std::string& languageName) const;
    /// Reads the file into the table. The table keeps its texts when the file cannot be read.
    Outcome readInto(const std::string& languageName, MessageTable& table) const;
    /// All language names by name, "System" last.
    std::vector<std::string> names() const;

  private:
    std::string folder_;
};

} // namespace vantrel
