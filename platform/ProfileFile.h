#pragma once

#include "base/Result.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace vantrel {

/// One Windows-style INI file, read and written as the system's profile functions do. Texts are
/// UTF-8 here; the file is in the ANSI code page, or in UTF-16 when it starts with that mark.
class ProfileFile {
  public:
    /// `path` is absolute; the file need not exist. It is read here, once; one that is missing or
    /// cannot be read leaves every value at its default.
    explicit ProfileFile(std::string path);
    ~ProfileFile();
    ProfileFile(ProfileFile&&) noexcept;
    ProfileFile& operator=(ProfileFile&&) noexcept;

    /// The value, or `defaultValue`; cut to `bufferSize` - 1 bytes of the code page.
    std::string text(std::string_view section, std::string_view key, std::string_view defaultValue,
                     std::size_t bufferSize) const;
    std::int32_t integer(std::string_view section, std::string_view key,
                         std::int32_t defaultValue) const;

    /// The same, held within 16 bits.
    std::int16_t shortInteger(std::string_view section, std::string_view key,
                              std::int16_t defaultValue) const;

    /// Remembers a value for `save`. Refused when the code page lacks one of its characters or when
    /// it could not be read back, such as one with a line end.
    Outcome set(std::string_view section, std::string_view key, std::string_view value);

    /// Writes all that was set in one go; the file is complete old or complete new, and is not
    /// written at all when nothing was changed. Fails for a file that exists but could not be read,
    /// since nobody knows what it holds.
    Outcome save();

    const std::string& path() const { return path_; }

  private:
    struct Content;

    std::string path_;
    std::unique_ptr<Content> content_;
};

} // namespace vantrel
