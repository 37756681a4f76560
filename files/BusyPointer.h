#pragma once

#include "files/PaneWindow.h"

namespace vantrel {

/// Shows the busy pointer for as long as it lives.
class BusyPointer {
  public:
    explicit BusyPointer(PaneWindow& window) : window_(window) { window_.setBusyPointer(true); }
    ~BusyPointer() { window_.setBusyPointer(false); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;

  private:
    PaneWindow& window_;
};

} // namespace vantrel
