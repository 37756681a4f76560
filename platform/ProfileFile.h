#pragma once

#include "base/Result.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace vantrel {

/// One Windows-style INI file, read and written as the system's profile functions do. Texts are
/// UTF-8 here; the file is in the ANSI code page, or in UTF-16 when it starts with that mark.
class ProfileFile {
  public:
    /// `path` is absolute; the file need not exist.
    explicit ProfileFile(std::string path);

    /// The value, or `defaultValue`; cut to `bufferSize` - 1 bytes of the code page.
    std::string text(std::string_view section, std::string_view key, std::string_view defaultValue,
                     std::size_t bufferSize) const;
    std::int32_t integer(std::string_view section, std::string_view key,
                         std::int32_t defaultValue) const;

    /// Remembers a value for `save`. Refused when the code page lacks one of its characters.
    Outcome set(std::string_view section, std::string_view key, std::string_view value);

    /// Writes all that was set in one go; the file is complete old or complete new.
    Outcome save();

    const std::string& path() const { return path_; }

  private:
    std::string path_;
    std::string content_;
};

} // namespace vantrel
