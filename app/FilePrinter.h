#pragma once

#include "base/Result.h"

#include <string>
#include <string_view>

namespace vantrel {

/// Prints texts, implemented by the windows.
class FilePrinter {
  public:
    virtual ~FilePrinter() = default;

    /// Lets the operator choose a printer and prints the text, under the name of its file. An
    /// operator who chooses none is no failure. The text is borrowed for the call.
    virtual Outcome print(const std::string& name, std::string_view text) = 0;
};

} // namespace vantrel
