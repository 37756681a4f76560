#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace vantrel {

class MessageTable;

/// How far a transfer of several files is and how long the rest may take. It knows what it is told
/// between two files: what the library does with one of them nobody can see.
class TransferPace {
  public:
    /// Whether a file that has been handled was transferred. One that was passed over, refused or
    /// failed says nothing about how fast the others go.
    using Transferred = std::function<bool(std::size_t item)>;

    /// The files' sizes in bytes, in their order; none when they are not known.
    TransferPace(std::vector<std::int64_t> sizes, Transferred wasTransferred);

    /// All of it took so long, and no file was begun yet.
    void prepare(std::chrono::milliseconds worked);
    /// The first `item` files have been handled, and all of it took so long.
    void reach(std::size_t item, std::chrono::milliseconds worked);

    std::chrono::milliseconds worked() const { return worked_; }
    bool knowsSizes() const { return !sizes_.empty(); }
    /// Of the files handled, those that were not transferred too: nothing more is to be done with
    /// them.
    std::int64_t bytesDone() const { return bytesDone_; }
    std::int64_t bytesOfAll() const { return bytesOfAll_; }
    /// Seconds, rounded as one speaks of them: 0 for fewer than ten, tens below a minute, whole
    /// minutes above. Nothing while there is too little to estimate from.
    std::optional<int> secondsLeft() const { return shown_; }

  private:
    void estimate();

    std::vector<std::int64_t> sizes_;
    Transferred wasTransferred_;
    std::size_t item_ = 0;
    std::chrono::milliseconds worked_{0};
    std::chrono::milliseconds reachedAt_{0};
    std::int64_t bytesOfAll_ = 0;
    std::int64_t bytesDone_ = 0;
    /// What is estimated from: the files transferred, their effort, and the time that it took.
    std::size_t measuredFiles_ = 0;
    double measuredEffort_ = 0;
    std::chrono::milliseconds measuredTime_{0};
    double effortOfAll_ = 0;
    double effortDone_ = 0;
    std::optional<int> shown_;
};

/// "12 of 45 KB, about 2 minutes left, 0:35 elapsed", as far as it is known.
std::string paceText(const MessageTable& messages, const TransferPace& pace);

} // namespace vantrel
