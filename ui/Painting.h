#pragma once

#include <chrono>

namespace vantrel {

/// Paints, and lays out before, what has changed in the windows that are shown.
void paintChanges();

/// Whether `takeWindowEvents` may find something; costs next to nothing.
bool areWindowEventsPending();

/// Lets in what the system has to say of the windows: shown, moved, uncovered. What the operator
/// has done meanwhile stays where it is. True when there was something to let in.
bool takeWindowEvents();

/// Waits until a window manager has done all that it was told before; false when it had not by
/// then.
bool awaitWindowManager(std::chrono::steady_clock::time_point deadline);

} // namespace vantrel
