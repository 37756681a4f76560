#pragma once

#include "app/FilePrinter.h"

#include <wx/cmndata.h>

namespace vantrel {

class MessageTable;

/// Prints through the system's own print dialog, which on GTK offers a preview too. What the
/// operator chose there stays chosen for the rest of the run.
class WxFilePrinter : public FilePrinter {
  public:
    explicit WxFilePrinter(const MessageTable& messages) : messages_(messages) {}

    Outcome print(const std::string& name, std::string_view text) override;

  private:
    const MessageTable& messages_;
    wxPrintData chosen_;
};

} // namespace vantrel
