#pragma once

#include "files/TransferTable.h"

#include <optional>
#include <string_view>

namespace vantrel {

/// How many flags a line of a file table has.
enum class TransferTableFormat {
    Full,  ///< "FileTable.tbl": six download flags, three upload flags and up to three more
    Short, ///< "FileTable.dat": three download flags and three upload flags
};

/// The line without its comment and outer blanks; empty when it carries no row.
std::string_view withoutComment(std::string_view line);

/// The row of a line that `withoutComment` returned, or nothing when a "," that the format requires
/// is missing.
std::optional<TransferRow> parseTransferRow(std::string_view line, TransferTableFormat format);

} // namespace vantrel
