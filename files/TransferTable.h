#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

/// One row of the file table.
struct TransferRow {
    std::string Name;              ///< upper case: a file name, "*." and an extension, or a pattern
    std::int16_t uploadMask = 0;   ///< models from which the file may be received
    std::int16_t downloadMask = 0; ///< models to which the file may be sent
};

/// Which files may be sent to and received from which controller model.
class TransferTable {
  public:
    /// Reads "FileTable.tbl", or "FileTable.dat" when the first cannot be opened. False when there
    /// is neither or a line is broken; the rows before it stay.
    bool load(const std::string& programFolder);

    const std::vector<TransferRow>& rows() const { return rows_; }

    /// The data files that a controller of this model has under names of its own, whether or not
    /// its directory names them.
    std::vector<std::string> fixedNames(std::int16_t modelBit) const;

    /// `download` is true for a transfer from the PC into the controller.
    bool isTransferable(std::string_view name, bool download, std::int16_t modelBit) const;

  private:
    std::vector<TransferRow> rows_;
};

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
