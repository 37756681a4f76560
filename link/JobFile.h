#pragma once

#include "base/Result.h"

#include <string>
#include <string_view>

namespace vantrel {

/// A job file of the PC, read whole, so that a file that cannot be read is found before anything
/// on the controller makes room for it.
class JobFile {
  public:
    static Result<JobFile> read(const std::string& path);

    /// The job's name by its "//NAME" line, or an empty text when there is none.
    const std::string& name() const { return name_; }

  private:
    explicit JobFile(std::string name) : name_(std::move(name)) {}

    std::string name_;
};

/// The name of the first "//NAME" line, without the blanks around it; UTF-8. Empty when a
/// controller would find none.
std::string jobNameInside(std::string_view bytes);

} // namespace vantrel
