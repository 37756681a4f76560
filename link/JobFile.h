#pragma once

#include "base/Result.h"

#include <string>
#include <string_view>

namespace vantrel {

/// The name on a "//NAME" line.
struct JobName {
    std::string text; ///< UTF-8
    /// Whether a controller reads the line as this very name: it takes a file's bytes for its code
    /// page, whatever else they are.
    bool isControllers = true;

    bool operator==(const JobName&) const = default;
};

/// A file of the PC that is to be sent, read whole, so that one that cannot be read is found before
/// anything on the controller makes room for it, and one that is changed later is told from it.
class JobFile {
  public:
    /// A file that is not looked into.
    JobFile() = default;
    /// Refused while another program writes the file, where the system can tell.
    static Result<JobFile> read(const std::string& path);

    /// The job's name by its "//NAME" line; an empty text when there is none, and for data files.
    const JobName& name() const { return name_; }
    /// Whether no other program had the file open, as far as the system can tell: a library that
    /// shares it with nobody can read it only then.
    bool isUnshared() const { return isUnshared_; }
    const std::string& content() const { return content_; }
    /// The content, for somebody who needs nothing else of the file.
    std::string takeContent() { return std::move(content_); }

  private:
    JobFile(JobName name, std::string content, bool isUnshared)
        : name_(std::move(name)), content_(std::move(content)), isUnshared_(isUnshared) {}

    JobName name_;
    std::string content_;
    bool isUnshared_ = true;
};

/// The name of the first "//NAME" line, without the blanks around it. Empty when a controller would
/// find none.
JobName jobNameInside(std::string_view bytes);

} // namespace vantrel
