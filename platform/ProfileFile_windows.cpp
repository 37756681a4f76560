#include "base/Text.h"
#include "platform/Files.h"
#include "platform/ProfileFile.h"
#include "platform/ProfileText.h"
#include "platform/TemporaryFile_windows.h"

#include <optional>
#include <vector>

namespace vantrel {

namespace {

constexpr std::string_view wideMark = "\xFF\xFE";

/// The system keeps files of this kind in memory; from here on it looks at the disk again.
void flushProfileCache(const std::wstring& path) {
    ::WritePrivateProfileStringW(nullptr, nullptr, nullptr, path.c_str());
}

/// The system's answer, however long.
std::wstring profileString(const std::wstring& path, const std::wstring& section,
                           const std::wstring& key, const std::wstring& defaultValue) {
    std::wstring value(1024, L'\0');
    while (true) {
        const auto room = static_cast<DWORD>(value.size());
        const DWORD length = ::GetPrivateProfileStringW(
            section.c_str(), key.c_str(), defaultValue.c_str(), value.data(), room, path.c_str());
        if (length + 1 < room) {
            value.resize(length);
            return value;
        }
        value.resize(value.size() * 4);
    }
}

/// The system takes outer blanks off a name, but not in all of its functions.
std::wstring profileName(std::string_view name) {
    return wide(trimmed(name, " "));
}

/// Without trailing blanks, as the system gives it.
std::wstring profileDefault(std::string_view value) {
    return wide(value.substr(0, value.find_last_not_of(' ') + 1));
}

struct Entry {
    std::wstring section, key, value;
};

/// Has the system write all entries to a file, and nothing of it left in memory only.
DWORD writeEntries(const std::wstring& path, const std::vector<Entry>& entries) {
    for (const auto& entry : entries) {
        if (!::WritePrivateProfileStringW(entry.section.c_str(), entry.key.c_str(),
                                          entry.value.c_str(), path.c_str()))
            return ::GetLastError();
    }
    flushProfileCache(path);
    return 0;
}

/// What the file would hold with these entries, written by the system itself to a copy beside it.
/// The file is not touched, so a power cut leaves it as it was.
Result<std::string> edited(const std::wstring& path, std::string_view content,
                           const std::vector<Entry>& entries) {
    TemporaryFile copy(path);
    DWORD error = copy.error();
    if (error == 0)
        error = copy.fill(content);
    if (error == 0)
        error = writeEntries(copy.path(), entries);
    if (error != 0)
        return systemFailure(error);
    return readFile(narrow(copy.path()));
}

} // namespace

/// What was set since the file was last saved, as a profile of its own: it refuses what could not
/// be read back, and answers for what it holds.
struct ProfileFile::Content {
    std::wstring path;
    ProfileText pending{""};
    std::vector<Entry> entries;
    bool isWide = false;
    std::optional<Failure> unreadable;

    void forgetPending() {
        pending = ProfileText(std::string(isWide ? wideMark : ""));
        entries.clear();
    }
};

ProfileFile::ProfileFile(std::string path)
    : path_(std::move(path)), content_(std::make_unique<Content>()) {
    content_->path = systemPath(path_);
    const auto bytes = readFile(path_);
    if (bytes)
        content_->isWide = bytes->starts_with(wideMark);
    else if (!readDetails(content_->path).isMissing())
        content_->unreadable = Failure{bytes.reason()};
    content_->forgetPending();
    flushProfileCache(content_->path);
}

ProfileFile::~ProfileFile() = default;
ProfileFile::ProfileFile(ProfileFile&&) noexcept = default;
ProfileFile& ProfileFile::operator=(ProfileFile&&) noexcept = default;

std::string ProfileFile::text(std::string_view section, std::string_view key,
                              std::string_view defaultValue, std::size_t bufferSize) const {
    const auto pending = content_->pending.value(section, key);
    return cutToBuffer(pending
                           ? *pending
                           : narrow(profileString(content_->path, profileName(section),
                                                  profileName(key), profileDefault(defaultValue))),
                       bufferSize);
}

std::int32_t ProfileFile::integer(std::string_view section, std::string_view key,
                                  std::int32_t defaultValue) const {
    if (const auto pending = content_->pending.value(section, key))
        return profileInteger(*pending);
    return static_cast<std::int32_t>(::GetPrivateProfileIntW(profileName(section).c_str(),
                                                             profileName(key).c_str(), defaultValue,
                                                             content_->path.c_str()));
}

Outcome ProfileFile::set(std::string_view section, std::string_view key, std::string_view value) {
    auto outcome = content_->pending.set(section, key, value);
    if (outcome)
        content_->entries.push_back({profileName(section), profileName(key), wide(value)});
    return outcome;
}

Outcome ProfileFile::save() {
    if (content_->entries.empty())
        return Done{};
    if (content_->unreadable)
        return *content_->unreadable;
    auto old = readFile(path_);
    if (!old && !readDetails(content_->path).isMissing())
        return Failure{old.reason()};
    const std::string content = old ? *old : std::string();
    removeStaleTemporaryFiles(content_->path);
    const auto changed = edited(content_->path, content, content_->entries);
    if (!changed)
        return Failure{changed.reason()};
    if (*changed != content) {
        if (auto outcome = replaceFile(path_, *changed); !outcome)
            return outcome;
        flushProfileCache(content_->path);
    }
    content_->forgetPending();
    return Done{};
}

} // namespace vantrel
