#pragma once

#include "link/FetchMark.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

/// What lies in a PC folder as long as new files of a list are being fetched together, in place of
/// a `FetchMark` for each. It announces files that the folder does not have, before the first of
/// them is received; for each that has arrived a line with its content is added. The announcement
/// is on the disk before anything else is touched, the lines may be lost with the power: a file
/// that is announced and there, and not said to have arrived, may be incomplete.
struct GroupMark {
    /// Their names and lines are less than what is read of a mark (64 KB), however long the names.
    static constexpr std::size_t mostFiles = 100;

    struct File {
        std::string name{};
        std::optional<KnownContent> arrived{}; ///< what was received; nothing before
        bool isInterrupted = false;            ///< a look at the folder has begun to mend it
    };

    std::vector<File> files{};

    /// The mark's own name, one for each folder and no file's (`FetchMark::fileNameFor`).
    static std::string fileName();

    /// The announcement.
    std::string format() const;
    /// Lines to be added, by the file's place.
    static std::string arrivedLine(std::size_t file, const KnownContent& content);
    static std::string interruptedLine(std::size_t file);
    /// Nothing when that is no whole announcement. A line behind it that is none tells nothing.
    static std::optional<GroupMark> parse(std::string_view content);
    /// As `FetchMark::isTorn`.
    static bool isTorn(std::string_view content);

    /// Null when it is not announced.
    const File* find(std::string_view name) const;
    /// Whether the file is announced and not said to have arrived.
    bool isOpen(std::string_view name) const;
};

/// Whether the name is a mark's, or a mark in the folder tells of its transfer: it is running, or
/// was interrupted and nobody has settled it. Under another name half a file would look like a
/// whole one, and what takes its name would be put away in its place.
bool isBeingFetched(const std::string& folder, const std::string& name);

} // namespace vantrel
