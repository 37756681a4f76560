#include "app/viewer/TextSearch.h"

#include "app/viewer/TextSlices.h"
#include "base/Text.h"
#include "base/TextCase.h"

#include <string>
#include <vector>

namespace vantrel {
namespace {

/// Scripts from here on to the next bound have no letter case: kana, ideographs.
constexpr char32_t firstCaseless = 0x2E80, behindCaseless = 0xA000;

char32_t folded(char32_t character) {
    if (character < 0x80)
        return character >= U'a' && character <= U'z' ? character - U'a' + U'A' : character;
    const bool isCaseless = character >= firstCaseless && character < behindCaseless;
    return isCaseless ? character : upperCaseOf(character);
}

std::u32string foldedText(std::string_view text) {
    std::u32string characters = codePoints(text);
    for (char32_t& character : characters)
        character = folded(character);
    return characters;
}

/// Finds a text in characters that come one by one; looks at none of them twice.
class Matcher {
  public:
    explicit Matcher(std::u32string wanted)
        : wanted_(std::move(wanted)), shorter_(wanted_.size() + 1), begins_(wanted_.size()) {
        for (std::size_t end = 1, matched = 0; end < wanted_.size(); ++end) {
            matched = extended(matched, wanted_[end]);
            shorter_[end + 1] = matched;
        }
    }

    void startAnew() { matched_ = 0; }
    /// Whether the text ends with this character, which stands at `place`.
    bool take(char32_t character, std::size_t place) {
        begins_[next_] = place;
        next_ = next_ + 1 < begins_.size() ? next_ + 1 : 0;
        if (matched_ == wanted_.size())
            matched_ = shorter_[matched_];
        matched_ = extended(matched_, character);
        return matched_ == wanted_.size();
    }
    /// Where a text that has just ended began.
    std::size_t begin() const { return begins_[next_]; }

  private:
    std::size_t extended(std::size_t matched, char32_t character) const {
        while (matched > 0 && wanted_[matched] != character)
            matched = shorter_[matched];
        return wanted_[matched] == character ? matched + 1 : 0;
    }

    std::u32string wanted_;
    /// By the number of characters that match: how many do when the first of them is given up.
    std::vector<std::size_t> shorter_;
    std::vector<std::size_t> begins_; ///< places of the last characters, going round
    std::size_t next_ = 0;
    std::size_t matched_ = 0;
};

/// Keeps what is wanted of all that is found, which comes in the order of the text.
class Choice {
  public:
    Choice(ShownRange from, SearchDirection direction) : from_(from), direction_(direction) {}

    /// False when nothing better can come.
    bool offer(ShownRange found) {
        if (direction_ == SearchDirection::Next)
            return offerNext(found);
        (found.end <= from_.begin ? wanted_ : round_) = found;
        return found.end <= from_.begin || !wanted_;
    }
    std::optional<FoundText> made() const {
        if (wanted_)
            return FoundText{*wanted_, false};
        return round_ ? std::optional(FoundText{*round_, true}) : std::nullopt;
    }

  private:
    bool offerNext(ShownRange found) {
        if (found.begin >= from_.end)
            wanted_ = found;
        else if (!round_)
            round_ = found;
        return !wanted_;
    }

    ShownRange from_;
    SearchDirection direction_;
    std::optional<ShownRange> wanted_, round_;
};

} // namespace

std::optional<FoundText> findText(std::string_view text, std::string_view wanted, ShownRange from,
                                  SearchDirection direction, std::size_t rareWidth) {
    if (wanted.empty())
        return std::nullopt;
    constexpr char32_t firstRare = 0x10000;
    Matcher matcher(foldedText(wanted));
    Choice choice(from, direction);
    std::size_t place = 0;
    for (TextSlices slices(text); !slices.isDone(); ++place) {
        auto piece = slices.nextPiece();
        while (!piece.text.empty()) {
            const char32_t character = takeCharacter(piece.text);
            const bool isFound = matcher.take(folded(character), place);
            place += character >= firstRare ? rareWidth : 1;
            if (isFound && !choice.offer({matcher.begin(), place}))
                return choice.made();
        }
        if (piece.endsLine)
            matcher.startAnew();
    }
    return choice.made();
}

} // namespace vantrel
