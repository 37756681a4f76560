#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

/// Names of files as somebody types them: "*" stands for any characters, "?" for one, and letter
/// case does not count. A name that is there just so means that file alone.
struct MatchedNames {
    std::vector<std::string> names;     ///< in the order of the files, each once
    std::vector<std::string> unmatched; ///< what no file has
};

MatchedNames matchNames(const std::vector<std::string>& patterns,
                        const std::vector<std::string>& files);

} // namespace vantrel
