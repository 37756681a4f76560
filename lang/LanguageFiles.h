#pragma once

#include "base/Result.h"
#include "lang/MessageTable.h"

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

class MessageTable;

/// The entries of a language file in file order, repeated numbers included. Everything up to the
/// line "Start:" is a free header and a line that begins with ";" a comment. An entry is a number,
/// then two texts in double quotes. Lines that are no entries are passed over, and so are numbers
/// that 16 bits cannot hold.
std::vector<MessageEntry> parseLanguageFile(std::string_view bytes);

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
