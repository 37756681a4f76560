#pragma once

#include <ostream>
#include <string>

#include <gtest/gtest.h>

namespace vantrel::tests {

/// The start of a row of a test table: its name becomes the case's name, so a red case says which
/// rule broke.
struct NamedRow {
    const char* name;

    friend std::ostream& operator<<(std::ostream& stream, const NamedRow& row) {
        return stream << row.name;
    }
};

/// For INSTANTIATE_TEST_SUITE_P.
inline constexpr auto rowName = [](const auto& info) { return std::string(info.param.name); };

} // namespace vantrel::tests
