#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vantrel {

/// What lies in a PC folder as long as one of its files is being fetched: which file that is, and
/// how its old version is known. It is written before anything else is touched and removed after
/// the new file is on the disk, or the old one back; so the mark of a program that is no more tells
/// of a file that may be incomplete. While the program runs it holds the mark (`HeldFile`).
struct FetchMark {
    std::string name{};       ///< of the file
    std::string aside{};      ///< the old version's other name; empty without one
    std::uint64_t size = 0;   ///< of the old version, bytes
    std::uint64_t digest = 0; ///< of its content

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

    void describeOld(std::string_view content);
    /// Whether there is a plain file with just the content of the old version.
    bool describes(const std::string& path) const;
};

/// A name in the folder that nothing has: the file's own, shortened when it is too long, and a
/// number behind `suffix`. Not a name that a job or a list could have.
std::string freeSpareName(const std::string& folder, const std::string& name,
                          std::string_view suffix);
inline constexpr std::string_view replacedSuffix = ".replaced-";
inline constexpr std::string_view partialSuffix = ".partial-";

} // namespace vantrel
