#pragma once

#include "base/Result.h"

#include <memory>
#include <string>

namespace vantrel {

/// A library loaded at run time by absolute path; unloaded with the object.
class DynamicLibrary {
  public:
    /// Fails with a reason in words: missing, of another machine type ("32-bit library, 64-bit
    /// program"), or the loader's own text.
    static Result<std::unique_ptr<DynamicLibrary>> load(const std::string& absolutePath);

    ~DynamicLibrary();
    DynamicLibrary(const DynamicLibrary&) = delete;
    DynamicLibrary& operator=(const DynamicLibrary&) = delete;

    /// The library stays loaded until the program ends, whatever becomes of the object.
    void keepLoaded() { keptLoaded_ = true; }

    /// The address of an exported function, or null.
    void* symbol(const std::string& name) const;

  private:
    explicit DynamicLibrary(void* handle) : handle_(handle) {}

    void* handle_;
    bool keptLoaded_ = false;
};

} // namespace vantrel
