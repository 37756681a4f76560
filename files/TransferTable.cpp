#include "files/TransferTable.h"

#include "base/Numbers.h"
#include "base/PathRules.h"
#include "base/Result.h"
#include "base/Text.h"
#include "base/TextCase.h"
#include "platform/Files.h"
#include "platform/TextEncoding.h"

#include <algorithm>
#include <utility>

namespace vantrel {
namespace {

std::string_view afterFirstPoint(std::string_view text) {
    const std::size_t point = text.find('.');
    return point == std::string_view::npos ? std::string_view{} : text.substr(point + 1);
}

bool contains(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

/// `extension` is what follows the name's first point. A pattern with ".*" never hits.
bool hits(std::string_view pattern, std::string_view upperName, std::string_view extension) {
    if (contains(pattern, ".*"))
        return false;
    if (!contains(pattern, "*."))
        return pattern == upperName;
    return !extension.empty() && afterFirstPoint(pattern) == extension;
}

Result<std::string> readTable(const std::string& folder, std::string_view name) {
    const std::string spelling = findIgnoringCase(folder, name);
    if (spelling.empty())
        return Failure{"missing"};
    return readFile(PathRules().join(folder, spelling));
}

bool readRows(const std::string& content, TransferTableFormat format,
              std::vector<TransferRow>& rows) {
    const DecodedText decoded = decodeText(content);
    for (const std::string_view line : lines(decoded.text)) {
        const std::string_view text = withoutComment(line);
        if (text.empty())
            continue;
        auto row = parseTransferRow(text, format);
        if (!row)
            return false;
        rows.push_back(std::move(*row));
    }
    return true;
}

constexpr int uploadFlags = 3;
constexpr std::size_t moreUploadFlags = 3;

/// Hands out the pieces of a line from the left.
class Pieces {
  public:
    explicit Pieces(std::string_view line) : rest_(line) {}

    /// The text up to the next ",", or nothing when there is no "," any more.
    std::optional<std::string_view> ended() {
        const std::size_t comma = rest_.find(',');
        if (comma == std::string_view::npos)
            return std::nullopt;
        const std::string_view piece = rest_.substr(0, comma);
        rest_.remove_prefix(comma + 1);
        return piece;
    }

    /// The text up to the next "," or the end of the line.
    std::string_view last() {
        if (const auto piece = ended())
            return *piece;
        return std::exchange(rest_, {});
    }

    std::string_view rest() const { return rest_; }

  private:
    std::string_view rest_;
};

void addFlag(std::string_view flag, int column, std::int16_t& mask) {
    if (leadingInteger16(flag) == 1)
        mask = static_cast<std::int16_t>(mask | (1 << column));
}

bool readDownloadFlags(Pieces& pieces, int count, std::int16_t& mask) {
    for (int column = 0; column < count; ++column) {
        const auto flag = pieces.ended();
        if (!flag)
            return false;
        addFlag(*flag, column, mask);
    }
    return true;
}

bool readUploadFlags(Pieces& pieces, std::int16_t& mask) {
    for (int column = 0; column < uploadFlags; ++column) {
        const auto flag = column + 1 < uploadFlags ? pieces.ended() : pieces.last();
        if (!flag)
            return false;
        addFlag(*flag, column, mask);
    }
    return true;
}

bool isFlag(std::string_view text) {
    return trimmed(text).empty() || wholeNumber(text).has_value();
}

/// What follows the third upload flag counts only when it is exactly three more flags; remarks and
/// the like in older tables stay without effect. A "," may end the last flag, as it may end the
/// third.
std::int16_t furtherUploadMask(std::string_view rest) {
    std::vector<std::string_view> flags = split(rest, ',');
    if (flags.size() == moreUploadFlags + 1 && trimmed(flags.back()).empty())
        flags.pop_back();
    if (flags.size() != moreUploadFlags || !std::all_of(flags.begin(), flags.end(), isFlag))
        return 0;
    std::int16_t mask = 0;
    for (int column = uploadFlags; const std::string_view flag : flags)
        addFlag(flag, column++, mask);
    return mask;
}

} // namespace

bool TransferTable::load(const std::string& programFolder) {
    rows_.clear();
    if (const auto full = readTable(programFolder, "FileTable.tbl"))
        return readRows(*full, TransferTableFormat::Full, rows_);
    if (const auto shortTable = readTable(programFolder, "FileTable.dat"))
        return readRows(*shortTable, TransferTableFormat::Short, rows_);
    return false;
}

std::vector<std::string> TransferTable::fixedNames(std::int16_t modelBit) const {
    std::vector<std::string> names;
    for (const TransferRow& row : rows_)
        if (!contains(row.Name, "*") && (row.uploadMask & modelBit) != 0)
            names.push_back(row.Name);
    return names;
}

bool TransferTable::isTransferable(std::string_view name, bool download,
                                   std::int16_t modelBit) const {
    const std::string upperName = upperCase(name);
    const std::string_view extension = afterFirstPoint(upperName);
    for (const TransferRow& row : rows_)
        if (hits(row.Name, upperName, extension))
            return ((download ? row.downloadMask : row.uploadMask) & modelBit) != 0;
    return false;
}

std::string_view withoutComment(std::string_view line) {
    return trimmed(line.substr(0, line.find(';')));
}

std::optional<TransferRow> parseTransferRow(std::string_view line, TransferTableFormat format) {
    Pieces pieces(line);
    const auto name = pieces.ended();
    if (!name)
        return std::nullopt;
    TransferRow row;
    row.Name = upperCase(trimmed(*name));
    const int downloadFlags = format == TransferTableFormat::Full ? 6 : 3;
    if (!readDownloadFlags(pieces, downloadFlags, row.downloadMask) ||
        !readUploadFlags(pieces, row.uploadMask))
        return std::nullopt;
    if (format == TransferTableFormat::Full)
        row.uploadMask =
            static_cast<std::int16_t>(row.uploadMask | furtherUploadMask(pieces.rest()));
    return row;
}

} // namespace vantrel
