#pragma once

namespace vantrel {

/// Ctrl+C, and the signal by which a system asks a program to end. The first one is noted, so that
/// the file under way is finished; the second one ends the program at once. What a transfer that is
/// cut off leaves is put in order by the next look at the folder.
class Interruption {
  public:
    /// From here on they are noted.
    static void watch();
    static bool isWanted();
};

} // namespace vantrel
