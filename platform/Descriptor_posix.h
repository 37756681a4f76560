#pragma once

#include "base/Result.h"

#include <cerrno>
#include <string>
#include <string_view>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

namespace vantrel {

/// An open file descriptor; closed with the object.
class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    ~Descriptor() {
        if (number_ >= 0)
            ::close(number_);
    }

    bool isOpen() const { return number_ >= 0; }
    int number() const { return number_; }
    /// 0 or the error number: an error of a delayed write shows up here at the latest.
    int close() { return ::close(std::exchange(number_, -1)) == 0 ? 0 : errno; }

  private:
    int number_;
};

/// The system's words for an error number.
Failure systemFailure(int errorNumber);

/// What a path leads to, links followed; the error number in `errno` when false. A path with a NUL
/// leads nowhere, since the system would look at its first part only.
bool readDetails(const std::string& path, struct stat& details);
bool hasNul(std::string_view path);

/// Writes everything; 0 or the error number.
int writeAll(int descriptor, std::string_view content);

} // namespace vantrel
