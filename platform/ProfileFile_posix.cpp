#include "platform/Descriptor_posix.h"
#include "platform/Files.h"
#include "platform/ProfileFile.h"
#include "platform/ProfileText.h"

#include <optional>

namespace vantrel {

namespace {

/// Surely not there: any other reason for not reading it may pass, and then it must be unharmed.
bool isMissing(const std::string& path) {
    struct stat details {};
    return !readDetails(path, details) && errno == ENOENT;
}

} // namespace

/// The file as it was read or last saved, and as it shall be.
struct ProfileFile::Content {
    ProfileText text{""};
    std::string saved;
    std::optional<Failure> unreadable;
};

ProfileFile::ProfileFile(std::string path)
    : path_(std::move(path)), content_(std::make_unique<Content>()) {
    auto bytes = readFile(path_);
    if (bytes) {
        content_->saved = *bytes;
        content_->text = ProfileText(std::move(*bytes));
    } else if (!isMissing(path_)) {
        content_->unreadable = Failure{bytes.reason()};
    }
}

ProfileFile::~ProfileFile() = default;
ProfileFile::ProfileFile(ProfileFile&&) noexcept = default;
ProfileFile& ProfileFile::operator=(ProfileFile&&) noexcept = default;

std::string ProfileFile::text(std::string_view section, std::string_view key,
                              std::string_view defaultValue, std::size_t bufferSize) const {
    // Only a default loses its trailing blanks alone; a value has lost its outer blanks already.
    const auto value = content_->text.value(section, key);
    const auto lastOfDefault = defaultValue.find_last_not_of(' ');
    return cutToBuffer(value ? *value : defaultValue.substr(0, lastOfDefault + 1), bufferSize);
}

std::int32_t ProfileFile::integer(std::string_view section, std::string_view key,
                                  std::int32_t defaultValue) const {
    const auto value = content_->text.value(section, key);
    return value ? profileInteger(*value) : defaultValue;
}

Outcome ProfileFile::set(std::string_view section, std::string_view key, std::string_view value) {
    return content_->text.set(section, key, value);
}

Outcome ProfileFile::save() {
    if (content_->text.bytes() == content_->saved)
        return Done{};
    if (content_->unreadable)
        return *content_->unreadable;
    auto outcome = replaceFile(path_, content_->text.bytes());
    if (outcome)
        content_->saved = content_->text.bytes();
    return outcome;
}

} // namespace vantrel
