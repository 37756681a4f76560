#pragma once

#include "base/DateText.h"

#include <ctime>

namespace vantrel {

/// Times as fixed-width local date texts, "2026/11/20 08:05:09". Made for one listing: the time
/// zone is looked up once, and a day's date once for all the files of that day.
class LocalDates {
  public:
    LocalDates();

    /// Empty for a year that four digits cannot hold.
    DateText text(std::time_t time);

  private:
    void rememberDay(std::time_t time, const std::tm& local);

    std::time_t dayStart_ = 0;
    std::time_t dayEnd_ = 0; ///< not in the day any more; equal to the start: no day is known
    std::tm day_{};
};

} // namespace vantrel
