#include "console/NamePatterns.h"

#include "base/Text.h"
#include "base/TextCase.h"
#include "base/Wildcard.h"

#include <algorithm>
#include <unordered_set>

namespace vantrel {
namespace {

/// The pattern with the further signs of a wildcard pattern as plain characters.
std::string withoutFurtherSigns(const std::string& pattern) {
    std::string plain;
    for (const char character : pattern)
        if (character == '#' || character == '[')
            plain += std::string("[") + character + "]";
        else
            plain += character;
    return plain;
}

/// The upper-cased names of the files, read once for all patterns.
class UpperNames {
  public:
    explicit UpperNames(const std::vector<std::string>& files) {
        names_.reserve(files.size());
        for (const std::string& file : files)
            names_.push_back(codePoints(upperCase(file)));
    }

    std::vector<std::size_t> matching(const std::string& pattern) const {
        const WildcardPattern wildcard(withoutFurtherSigns(upperCase(pattern)));
        std::vector<std::size_t> places;
        for (std::size_t place = 0; place < names_.size(); ++place)
            if (wildcard.matches(names_[place]))
                places.push_back(place);
        return places;
    }

  private:
    std::vector<std::u32string> names_;
};

} // namespace

MatchedNames matchNames(const std::vector<std::string>& patterns,
                        const std::vector<std::string>& files) {
    const UpperNames upperNames(files);
    std::vector<bool> isMatched(files.size());
    MatchedNames matched;
    for (const std::string& pattern : patterns) {
        const auto same = std::ranges::find(files, pattern);
        auto places = upperNames.matching(pattern);
        if (same != files.end())
            places = {static_cast<std::size_t>(same - files.begin())};
        for (const std::size_t place : places)
            isMatched[place] = true;
        if (places.empty())
            matched.unmatched.push_back(pattern);
    }
    std::unordered_set<std::string> taken;
    for (std::size_t place = 0; place < files.size(); ++place)
        if (isMatched[place] && taken.insert(files[place]).second)
            matched.names.push_back(files[place]);
    return matched;
}

} // namespace vantrel
