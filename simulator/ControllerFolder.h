#pragma once

#include "base/Result.h"
#include "simulator/ResultCodes.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel::simulator {

struct ControllerFileName;

/// File access that never follows a symbolic link at the end of the path, so that no link in a
/// folder leads out of it. Paths are absolute and UTF-8.

/// A regular file itself, not a link to one.
bool isPlainFile(const std::string& path);

/// Whether a file may be written at the path: nothing is there, or a plain file.
bool isFreeOrPlainFile(const std::string& path);

/// Replaces a plain file whole or creates it; refused where anything else has the name.
Outcome writePlainFile(const std::string& path, std::string_view content);

/// The files that a controller holds, as real files in one folder. Only plain files whose names are
/// in the controller's own form (upper case but for Greek letters) count, so that each is found by
/// one look and no two differ in letter case alone.
class ControllerFolder {
  public:
    explicit ControllerFolder(std::string path) : path_(std::move(path)) {}

    /// Whether the controller is there at all.
    bool exists() const;

    /// The names of all files, jobs first, each group in the order of its names.
    CodeOr<std::vector<std::string>> list() const;
    bool has(const ControllerFileName& name) const;
    /// `code::notFound` when it is not there.
    CodeOr<std::string> read(const ControllerFileName& name) const;
    /// Complete or not at all; `code::done` on success.
    std::int16_t store(const ControllerFileName& name, std::string_view content) const;
    std::int16_t remove(const ControllerFileName& name) const;

    /// What all files take together.
    CodeOr<std::uint64_t> usedBytes() const;
    std::string variablesFile() const;

    /// The code for storage that fails: the controller's own fault, or that the line to it is
    /// broken when the whole folder has gone.
    std::int16_t fault() const;

  private:
    std::int16_t missing() const;
    std::string pathOf(const ControllerFileName& name) const;

    std::string path_;
};

} // namespace vantrel::simulator
