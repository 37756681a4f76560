#pragma once

#include "link/JobLists.h"
#include "platform/TextEncoding.h"

#include <cstdint>
#include <string>

namespace vantrel {

struct SessionErrorRecord;
struct SessionProperties;

/// The variable list and its text file, one entry per line, in the session's folder. Blank lines
/// are entries like others, so that a list comes back from its file as the operator laid it out.
class VariableList {
  public:
    VariableList(const SessionProperties& properties, SessionErrorRecord& error)
        : properties_(properties), error_(error) {}

    void setFile(const std::string& file) { file_ = file; }
    /// Replaces the list by the lines of the file set before. The list is empty when it cannot be
    /// opened. The names of list files are plain ones of the session's folder.
    bool read();
    /// Writes the list in the encoding and with the line ends that the last list read had. The old
    /// file is replaced whole or not at all. After a failed reading an empty list is refused: it
    /// is not what the operator had in mind for the file.
    bool write(const std::string& file);

    EntryList& entries() { return entries_; }
    const EntryList& entries() const { return entries_; }

  private:
    bool fail(std::int16_t code, const std::string& systemReason = {});

    const SessionProperties& properties_;
    SessionErrorRecord& error_;
    std::string file_;
    EntryList entries_;
    TextEncoding encoding_ = TextEncoding::CodePage;
    std::string lineEnd_ = "\r\n";
    bool readingFailed_ = false;
};

} // namespace vantrel
