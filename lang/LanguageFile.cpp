#include "lang/LanguageFile.h"

#include "base/Numbers.h"
#include "base/Text.h"
#include "platform/TextEncoding.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <string>

namespace vantrel {

namespace {

/// The positions of the first four double quotes, or nothing when there are fewer.
std::optional<std::array<std::size_t, 4>> fourQuotes(std::string_view line) {
    std::array<std::size_t, 4> quotes{};
    std::size_t from = 0;
    for (auto& quote : quotes) {
        quote = line.find('"', from);
        if (quote == std::string_view::npos)
            return std::nullopt;
        from = quote + 1;
    }
    return quotes;
}

std::optional<std::int16_t> messageNumber(std::string_view text) {
    using Limits = std::numeric_limits<std::int16_t>;
    const double number = std::trunc(leadingNumber(text));
    if (!(number >= Limits::min() && number <= Limits::max()))
        return std::nullopt;
    return static_cast<std::int16_t>(number);
}

std::optional<MessageEntry> parseEntry(std::string_view line) {
    const auto quotes = fourQuotes(line);
    if (!quotes)
        return std::nullopt;
    const auto number = messageNumber(line.substr(0, quotes->front()));
    if (!number)
        return std::nullopt;
    const auto between = [&](std::size_t open, std::size_t close) {
        return std::string(line.substr(open + 1, close - open - 1));
    };
    return MessageEntry{*number, between((*quotes)[0], (*quotes)[1]),
                        between((*quotes)[2], (*quotes)[3])};
}

} // namespace

std::vector<MessageEntry> parseLanguageFile(std::string_view bytes) {
    const auto decoded = decodeText(bytes);
    const auto all = lines(decoded.text);
    auto line = std::find(all.begin(), all.end(), "Start:");

    std::vector<MessageEntry> entries;
    if (line == all.end())
        return entries;
    while (++line != all.end()) {
        if (line->starts_with(';'))
            continue;
        if (auto entry = parseEntry(*line))
            entries.push_back(std::move(*entry));
    }
    return entries;
}

} // namespace vantrel
