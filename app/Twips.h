#pragma once

#include <cstdint>

namespace vantrel {

/// Twips are 1/1440 inch. To pixels they are rounded once; `dpi` is pixels per inch.
int pixelsFromTwips(double twips, int dpi);
double twipsFromPixels(int pixels, int dpi);

/// A length on the screen in twips again, but the stored length where that one gives these very
/// pixels: nobody has changed it, and it must not drift with every start of the program.
double twipsUnlessUnchanged(int pixels, int dpi, std::int32_t storedTwips);

} // namespace vantrel
