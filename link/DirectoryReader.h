#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace vantrel {

class LinkConnection;
struct SessionErrorRecord;

/// Reads the controller's directory over a link of its own.
class DirectoryReader {
  public:
    /// More entries than any controller has: a directory that goes on is taken for endless.
    static constexpr std::int32_t mostEntries = 1'000'000;

    DirectoryReader(LinkConnection& link, SessionErrorRecord& error) : link_(link), error_(error) {}

    /// Fills `list`, emptied first, with the names in the controller's order (UTF-8, as reported).
    bool read(std::vector<std::string>& list);

  private:
    /// Returns what the library returned last, or the session's own code for an endless directory.
    std::int16_t readEntries(std::int16_t handle, std::vector<std::string>& list);
    std::string takeEntry();

    static constexpr std::int16_t bufferLength = 255;

    LinkConnection& link_;
    SessionErrorRecord& error_;
    std::array<char, bufferLength> buffer_{};
};

} // namespace vantrel
