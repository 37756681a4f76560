#pragma once

#include "base/Result.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vantrel {

/// The content of a Windows-style INI file as the system's profile functions read and edit it,
/// apart from any disk. Sections and keys are found whatever their letter case; what an edit does
/// not concern stays byte for byte. Every operation is one pass over the text, which is decoded
/// once only.
class ProfileText {
  public:
    /// `bytes` in the ANSI code page, or in UTF-16 when they start with the little-endian mark.
    explicit ProfileText(std::string bytes);

    /// The value without its outer blanks and one layer of quotes; nothing when there is no key.
    std::optional<std::string> value(std::string_view section, std::string_view key) const;

    /// Changes the value in place, or adds the key behind the section's last one, or the section at
    /// the end. Refused, with nothing changed, are characters that the encoding lacks and texts
    /// that could not be read back: line ends, NUL, an empty name, "=" in a key, "]" in a section.
    Outcome set(std::string_view section, std::string_view key, std::string_view value);

    const std::string& bytes() const { return bytes_; }

  private:
    struct Place;

    void decode();
    Place find(std::string_view section, std::string_view key) const;
    bool isWide() const;
    std::optional<std::string> encoded(std::string_view text) const;
    void dropHalfACharacter();

    std::string bytes_;
    std::string text_; ///< the same in UTF-8; its lines are those of `bytes_`
};

/// A value without one layer of enclosing quotes, as it is read back.
std::string_view withoutQuotes(std::string_view value);

/// The whole number at the start of a value: a sign and digits, held in 32 bits by wrapping around;
/// 0 when there is none.
std::int32_t profileInteger(std::string_view value);

/// What fits into a buffer of `bufferSize` bytes of the code page with a NUL at its end, never half
/// of a character. A NUL inside the text ends it.
std::string cutToBuffer(std::string_view text, std::size_t bufferSize);

} // namespace vantrel
