#pragma once

#include "simulator/ResultCodes.h"

#include <string>
#include <string_view>

namespace vantrel::simulator {

/// The PC folder that a link was opened with: transfers read and write files there and nowhere
/// else.
class WorkingFolder {
  public:
    /// A relative path counts from the current folder of this moment.
    explicit WorkingFolder(std::string_view path);

    /// The bytes of a file of the folder; the name must be one plain component.
    CodeOr<std::string> read(std::string_view name) const;
    /// Writes a file whole or not at all; `code::done` on success.
    std::int16_t write(std::string_view name, std::string_view content) const;

  private:
    std::string path_;
};

} // namespace vantrel::simulator
