#pragma once

#include "support/TemporaryFolder.h"

namespace vantrel::fuzz {

/// A folder for the readers that take a file's path: one for the whole run, since a new one for
/// each input would be most of the work. Removed when the run ends.
inline const tests::TemporaryFolder& folder() {
    static const tests::TemporaryFolder kept;
    return kept;
}

} // namespace vantrel::fuzz
