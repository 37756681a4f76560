#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace vantrel {

class LinkConnection;
class SessionProgress;
struct SessionErrorRecord;

/// Reads the controller's directory over a link of its own.
class DirectoryReader {
  public:
    /// A controller holds some thousand files at most; ten times as many are still read, which is
    /// minutes on a serial line. A directory that goes on is taken for endless.
    static constexpr std::int32_t mostEntries = 50'000;
    /// Entries in a row that were told before: a library may name every file more than once, but
    /// one that goes round and round does not end.
    static constexpr std::int32_t mostRepeats = 100;

    DirectoryReader(LinkConnection& link, SessionProgress& progress, SessionErrorRecord& error)
        : link_(link), progress_(progress), error_(error) {}

    /// Fills `list`, emptied first, with the names in the controller's order (UTF-8, as reported
    /// but for the blanks, tabs and line ends around them; an entry of nothing else is left out,
    /// and what the library would take for another name has U+FFFD in it). A press of Cancel ends
    /// the reading, which fails then with the code `cancelled`.
    bool read(std::vector<std::string>& list);
    /// Asks for the first entry only, on a link that is open: whether the controller gives one, or
    /// says that it has none.
    bool answers(std::int16_t handle);

  private:
    /// What the library returned last, or the session's own code when the session ended the
    /// reading.
    struct End {
        std::int16_t code;
        bool isOwn;
    };

    End readEntries(std::int16_t handle, std::vector<std::string>& list);
    /// The bytes of the entry in the buffer, which is cleared.
    std::string takeEntry();

    /// What the library is told that there is, and what there is in truth: one that miscounts must
    /// not write over something else.
    static constexpr std::int16_t bufferLength = 255;
    static constexpr std::size_t bufferSize = 1024;

    LinkConnection& link_;
    SessionProgress& progress_;
    SessionErrorRecord& error_;
    std::array<char, bufferSize> buffer_{};
    std::int32_t taken_ = 0; ///< entries of this reading, those that were left out too
};

} // namespace vantrel
