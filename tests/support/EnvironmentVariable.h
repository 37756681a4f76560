#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace vantrel::tests {

/// Sets an environment variable, or takes it away, and puts the old value back at its end.
class EnvironmentVariable {
  public:
    EnvironmentVariable(std::string name, const std::optional<std::string>& value)
        : name_(std::move(name)) {
        if (const char* old = std::getenv(name_.c_str()))
            old_ = old;
        put(value);
    }
    ~EnvironmentVariable() { put(old_); }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

  private:
    void put(const std::optional<std::string>& value) const {
#ifdef _WIN32
        ::_putenv_s(name_.c_str(), value ? value->c_str() : "");
#else
        if (value)
            ::setenv(name_.c_str(), value->c_str(), 1);
        else
            ::unsetenv(name_.c_str());
#endif
    }

    std::string name_;
    std::optional<std::string> old_;
};

} // namespace vantrel::tests
