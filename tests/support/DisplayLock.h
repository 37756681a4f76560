#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace vantrel::tests {

/// Only one window can have the keyboard: programs that test windows on the same display take
/// turns, however many tests run in parallel.
class DisplayLock {
  public:
    DisplayLock() {
        const char* const display = std::getenv("DISPLAY");
        std::string name = "vantrel-display-";
        for (const char* at = display ? display : ""; *at; ++at)
            name += *at == '/' ? '_' : *at;
        const auto path = std::filesystem::temp_directory_path() / name;
        descriptor_ = open(path.c_str(), O_CREAT | O_RDWR | O_CLOEXEC, 0666);
        if (descriptor_ >= 0)
            flock(descriptor_, LOCK_EX);
    }
    ~DisplayLock() {
        if (descriptor_ >= 0)
            close(descriptor_);
    }
    DisplayLock(const DisplayLock&) = delete;
    DisplayLock& operator=(const DisplayLock&) = delete;

  private:
    int descriptor_ = -1;
};

} // namespace vantrel::tests
