#pragma once

#include "base/Result.h"
#include "platform/HeldFile.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vantrel {

/// The steps on the PC's disk that a fetch consists of, by absolute path. Each is on the disk when
/// it returns, so that whatever ends the program, the steps before are done and those behind it are
/// not. Virtual, so that each can be made to fail, or to be the last one.
class FetchFiles {
  public:
    virtual ~FetchFiles() = default;
    virtual Result<HeldFile> hold(const std::string& path);
    /// As `HeldFile::take`; changes nothing on the disk.
    virtual Result<std::optional<HeldFile>> take(const std::string& path);
    /// Whether nobody else can hold it; false where the disk does not tell.
    virtual bool isHeldAlone(const HeldFile& file);
    virtual Outcome write(HeldFile& file, const std::string& content);
    virtual Outcome remove(HeldFile& file);
    virtual Outcome remove(const std::string& path);
    virtual Outcome rename(const std::string& from, const std::string& to);
    /// The same for whoever goes on in either case: what has its new name, and only is not known to
    /// be on the disk with it, has it all the same.
    Outcome giveName(const std::string& from, const std::string& to);
    /// Somebody else, the library, has written the file.
    virtual Outcome flush(const std::string& path);
};

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
