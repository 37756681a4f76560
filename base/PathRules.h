#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vantrel {

/// How paths are written on a system. A value, so that both styles are tested everywhere.
enum class PathStyle { Windows, Posix };

#ifdef _WIN32
inline constexpr PathStyle nativePathStyle = PathStyle::Windows;
#else
inline constexpr PathStyle nativePathStyle = PathStyle::Posix;
#endif

/// Pure path rules on UTF-8 texts; nothing here looks at a disk. A Windows path accepts "\" and "/"
/// as separators and is written with "\"; a POSIX path knows "/" only.
class PathRules {
  public:
    explicit constexpr PathRules(PathStyle style = nativePathStyle) : style_(style) {}

    constexpr PathStyle style() const { return style_; }
    /// What is written between names.
    char separator() const;
    /// Every character that is read as one.
    std::string_view separators() const;
    bool isSeparator(char character) const;

    /// The folder with exactly one separator at its end. No folder stays none here and in `join`:
    /// a separator alone would be the root.
    std::string withSeparator(std::string_view folder) const;
    /// `folder`, a separator unless it ends in one, and `name`.
    std::string join(std::string_view folder, std::string_view name) const;
    /// Without one trailing separator; a root ("C:\", "/", "\\server\share\") keeps it.
    std::string withoutTrailingSeparator(std::string_view path) const;

    /// Windows: first character a separator or second character ":"; POSIX: first character "/".
    bool isAbsolute(std::string_view path) const;
    /// A drive's or share's root: nothing is above it.
    bool isRoot(std::string_view path) const;
    /// The folder above; a root is its own parent.
    std::string parent(std::string_view path) const;
    /// The last folder's or file's name; for a root "C:" or "/".
    std::string lastName(std::string_view path) const;
    /// The same folder in one spelling: without "." and "..", doubled separators and, on Windows,
    /// the points and blanks that the system leaves out at the end of a name. A path "C:" or
    /// "C:jobs" counts from the drive's root. The path begins with a drive or a separator.
    std::string resolved(std::string_view path) const;
    /// "C:" of a drive path, "\\server\share" of a network path, "/" on POSIX; else empty.
    std::string drive(std::string_view path) const;

    /// A long path for display: unchanged up to `maximumLength` characters, else its first two
    /// characters, "\...\" and the last name when it holds a ":" (POSIX: "/.../" and the last name
    /// when it is absolute), or the last name alone. The result may still be longer.
    std::string shorten(std::string_view path, std::size_t maximumLength) const;

    /// Whether a name that came from outside is one plain component that both systems can hold:
    /// no separators, drive or stream colon, "." or "..", control or wildcard characters, reserved
    /// device names, trailing points or blanks; not empty and at most 255 bytes.
    static bool isPlainName(std::string_view name);

  private:
    PathStyle style_;
};

} // namespace vantrel
