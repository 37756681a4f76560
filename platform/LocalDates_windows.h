#pragma once

#include "base/DateText.h"

#include <windows.h>

namespace vantrel {

/// A file's time as fixed-width local date text, "2026/11/20 08:05:09", by the clock that was in
/// force at that date. Empty for a time that is none.
DateText localDateText(const FILETIME& time);

} // namespace vantrel
