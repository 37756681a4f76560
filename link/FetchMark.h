#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vantrel {

/// A file's content, by which it is known again.
struct KnownContent {
    std::uint64_t size = 0; ///< bytes
    std::uint64_t digest = 0;

    static KnownContent of(std::string_view content);
    static std::optional<KnownContent> parse(std::string_view size, std::string_view digest);
    /// Whether there is a plain file with just this content.
    bool isIn(const std::string& path) const;
    bool operator==(const KnownContent&) const = default;
};

/// What lies in a PC folder as long as one of its files is being fetched: which file that is, and
/// how its old version is known. It is written before anything else is touched and removed after
/// the new file is on the disk, or the old one back; so the mark of a program that is no more tells
/// of a file that may be incomplete. While the program runs it holds the mark (`HeldFile`).
struct FetchMark {
    std::string name{};  ///< of the file
    std::string aside{}; ///< the old version's other name; empty without one
    KnownContent old{};  ///< of the old version

    static constexpr std::string_view namePrefix = "~vantrel-fetch-";
    /// The mark's own name, the same for all names that the system takes for one. It has no point:
    /// no filter shows it, and no job or list is called so.
    static std::string fileNameFor(std::string_view name);
    static bool isFileName(std::string_view name);

    std::string format() const;
    /// Nothing when that is no whole mark: the program ended while it was written, and so before
    /// anything else was touched.
    static std::optional<FetchMark> parse(std::string_view content);
    /// Whether that is what such a program leaves: nothing, the mark's beginning, or zeros.
    static bool isTorn(std::string_view content);

    void describeOld(std::string_view content) { old = KnownContent::of(content); }
    /// Whether there is a plain file with just the content of the old version.
    bool describes(const std::string& path) const { return old.isIn(path); }
};

/// A name in the folder that nothing has: the file's own, shortened when it is too long, and a
/// number behind `suffix`. Not a name that a job or a list could have.
std::string freeSpareName(const std::string& folder, const std::string& name,
                          std::string_view suffix);
inline constexpr std::string_view replacedSuffix = ".replaced-";
inline constexpr std::string_view partialSuffix = ".partial-";

} // namespace vantrel
