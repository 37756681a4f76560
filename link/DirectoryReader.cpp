#include "link/DirectoryReader.h"

#include "link/LinkConnection.h"
#include "link/SessionErrorRecord.h"
#include "link/Zurolink.h"
#include "platform/TextEncoding.h"

#include <algorithm>

namespace vantrel {
namespace {

constexpr std::int16_t entryFound = 0;
constexpr std::int16_t endOfDirectory = -1;

} // namespace

bool DirectoryReader::read(std::vector<std::string>& list) {
    list.clear();
    const std::int16_t handle = link_.connect();
    if (handle < 0)
        return false;
    const std::int16_t last = readEntries(handle, list);
    const bool closed = link_.disconnect(handle);
    if (last == endOfDirectory)
        return closed;
    const auto count = static_cast<std::int32_t>(list.size());
    if (last == session_code::directoryEndless && count == mostEntries)
        error_.set(last, "BscFind", count);
    else
        error_.setReturned(last, "BscFind", count);
    return false;
}

std::int16_t DirectoryReader::readEntries(std::int16_t handle, std::vector<std::string>& list) {
    Zurolink& library = link_.library();
    buffer_.fill('\0');
    std::int16_t found = library.BscFindFirst(handle, buffer_.data(), bufferLength);
    while (found == entryFound) {
        if (list.size() == static_cast<std::size_t>(mostEntries))
            return session_code::directoryEndless;
        list.push_back(takeEntry());
        found = library.BscFindNext(handle, buffer_.data(), bufferLength);
    }
    return found;
}

// An entry that fills the buffer has no NUL at its end.
std::string DirectoryReader::takeEntry() {
    const auto end = std::find(buffer_.begin(), buffer_.end(), '\0');
    std::string name =
        fromCodePage({buffer_.data(), static_cast<std::size_t>(end - buffer_.begin())});
    buffer_.fill('\0');
    return name;
}

} // namespace vantrel
