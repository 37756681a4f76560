#include "simulator/Script.h"

#include "base/Text.h"
#include "simulator/ResultCodes.h"

#include <algorithm>
#include <charconv>

namespace vantrel::simulator {

namespace {

constexpr std::array<std::string_view, functionCount> functionNames = {
    "BscOpen",      "BscSetCom",    "BscSetEther",   "BscConnect",   "BscDisConnect",
    "BscClose",     "BscFindFirst", "BscFindNext",   "BscDownLoad",  "BscUpLoad",
    "BscSelectJob", "BscDeleteJob", "BscGetVarData", "BscPutVarData"};

/// The words of a row; a row of the longest kind has six.
std::vector<std::string_view> words(std::string_view row) {
    constexpr std::size_t enoughToRefuse = 7;
    std::vector<std::string_view> found;
    constexpr std::string_view blanks = " \t";
    auto start = row.find_first_not_of(blanks);
    while (start != std::string_view::npos && found.size() < enoughToRefuse) {
        const auto end = std::min(row.find_first_of(blanks, start), row.size());
        found.push_back(row.substr(start, end - start));
        start = row.find_first_not_of(blanks, end);
    }
    return found;
}

template <typename Number>
std::optional<Number> number(std::string_view text) {
    Number value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size())
        return std::nullopt;
    return value;
}

std::optional<Function> functionNamed(std::string_view name) {
    const auto found = std::find_if(functionNames.begin(), functionNames.end(), [&](auto known) {
        return equalsIgnoringAsciiCase(known, name);
    });
    if (found == functionNames.end())
        return std::nullopt;
    return static_cast<Function>(found - functionNames.begin());
}

std::optional<Disturbance> failure(const std::vector<std::string_view>& operands) {
    const auto code = operands.size() == 1 ? number<std::int16_t>(operands[0]) : std::nullopt;
    if (!code)
        return std::nullopt;
    return Disturbance{Disturbance::Kind::Fail, *code, 0, {}};
}

std::optional<Disturbance> delay(const std::vector<std::string_view>& operands) {
    const auto time = operands.size() == 1 ? number<std::uint32_t>(operands[0]) : std::nullopt;
    if (!time)
        return std::nullopt;
    return Disturbance{Disturbance::Kind::None, 0, 0, std::chrono::milliseconds(*time)};
}

std::optional<Disturbance> cut(const std::vector<std::string_view>& operands) {
    if (operands.empty() || operands.size() > 2)
        return std::nullopt;
    const auto bytes = number<std::size_t>(operands[0]);
    const auto code =
        operands.size() == 2 ? number<std::int16_t>(operands[1]) : std::optional(code::transferCut);
    if (!bytes || !code)
        return std::nullopt;
    return Disturbance{Disturbance::Kind::Cut, *code, *bytes, {}};
}

bool isTransfer(Function function) {
    return function == Function::BscDownLoad || function == Function::BscUpLoad;
}

std::optional<Disturbance> disturbance(Function function, std::string_view verb,
                                       const std::vector<std::string_view>& operands) {
    if (equalsIgnoringAsciiCase(verb, "fail"))
        return failure(operands);
    if (equalsIgnoringAsciiCase(verb, "slow"))
        return delay(operands);
    if (equalsIgnoringAsciiCase(verb, "nothing") && operands.empty())
        return Disturbance{Disturbance::Kind::Nothing, 0, 0, {}};
    if (equalsIgnoringAsciiCase(verb, "cut") && isTransfer(function))
        return cut(operands);
    if (equalsIgnoringAsciiCase(verb, "crash") && operands.empty())
        return Disturbance{Disturbance::Kind::Crash, 0, 0, {}};
    return std::nullopt;
}

} // namespace

std::optional<Script::Row> Script::parse(std::string_view text) {
    auto parts = words(text);
    std::string line;
    if (!parts.empty() && parts[0].starts_with('@')) {
        line = parts[0].substr(1);
        parts.erase(parts.begin());
    }
    if (parts.size() < 3)
        return std::nullopt;
    const auto function = functionNamed(parts[0]);
    const bool andLater = parts[1].ends_with('+');
    const auto call =
        number<std::uint32_t>(parts[1].substr(0, parts[1].size() - (andLater ? 1 : 0)));
    if (!function || !call || *call == 0)
        return std::nullopt;
    const auto what = disturbance(*function, parts[2], {parts.begin() + 3, parts.end()});
    if (!what)
        return std::nullopt;
    return Row{*function, *call, andLater, *what, std::move(line)};
}

bool Script::addRow(std::string_view text) {
    const auto row = parse(text);
    if (row)
        rows_.push_back(*row);
    return row.has_value();
}

Disturbance Script::next(Function function, std::string_view line) {
    const auto callOfAll = ++calls_[static_cast<std::size_t>(function)];
    Disturbance result;
    std::chrono::milliseconds delay{};
    for (auto& row : rows_) {
        if (row.function != function || (!row.line.empty() && row.line != line))
            continue;
        const auto call = row.line.empty() ? callOfAll : ++row.callsOnLine;
        if (row.andLater ? call < row.call : call != row.call)
            continue;
        delay = std::min(delay + row.disturbance.delay, longestDelay);
        if (result.kind == Disturbance::Kind::None)
            result = row.disturbance;
    }
    result.delay = delay;
    return result;
}

} // namespace vantrel::simulator
