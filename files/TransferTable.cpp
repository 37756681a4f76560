#include "files/TransferTable.h"

#include "base/PathRules.h"
#include "base/Result.h"
#include "base/Text.h"
#include "base/TextCase.h"
#include "files/TransferTableLine.h"
#include "platform/Files.h"
#include "platform/TextEncoding.h"

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

} // namespace vantrel
