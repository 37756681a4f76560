#include "files/TransferPace.h"

#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vantrel {
namespace {

using std::chrono::milliseconds;

/// What a file costs beside its bytes, in bytes: each has links of its own, and so have empty ones.
constexpr double effortOfAnyFile = 1024;

/// Less than a second, or one file that may be an odd one among many, says nothing yet; where one
/// file is a tenth of the work it is enough.
constexpr milliseconds leastTime{1000};
constexpr std::size_t leastFiles = 2;
constexpr double leastPart = 0.1;

constexpr int minute = 60;
constexpr int ten = 10;

double effortOf(std::int64_t size) {
    return double(size) + effortOfAnyFile;
}

int rounded(double seconds) {
    if (seconds < ten)
        return 0;
    const int tens = int(std::lround(seconds / ten)) * ten;
    return tens < minute ? tens : std::max(1, int(std::lround(seconds / minute))) * minute;
}

/// A longer time is shown only when it is longer by half: the line is not to jump to and fro.
bool isWorthShowing(int shown, double seconds) {
    constexpr double half = 1.5;
    return rounded(seconds) < shown || seconds >= std::max(shown, ten) * half;
}

std::string twoDigits(std::int64_t number) {
    return (number < ten ? "0" : "") + std::to_string(number);
}

std::string elapsedText(milliseconds time) {
    const std::int64_t seconds = time.count() / 1000;
    const std::int64_t minutes = seconds / minute;
    if (minutes < minute)
        return std::to_string(minutes) + ":" + twoDigits(seconds % minute);
    return std::to_string(minutes / minute) + ":" + twoDigits(minutes % minute) + ":" +
           twoDigits(seconds % minute);
}

std::string bytesText(const MessageTable& messages, std::int64_t done, std::int64_t all) {
    constexpr std::int64_t kilobyte = 1024;
    const auto begun = [](std::int64_t bytes) {
        return std::to_string((bytes + kilobyte - 1) / kilobyte);
    };
    return messages.getMessageWithInsertion(message::timeBytes, begun(done), begun(all) + " KB");
}

std::string leftText(const MessageTable& messages, int seconds) {
    if (seconds == 0)
        return messages.getMessage(message::timeMomentLeft);
    if (seconds == minute)
        return messages.getMessage(message::timeMinuteLeft);
    return seconds < minute
               ? messages.getMessageWithInsertion(message::timeSecondsLeft, std::to_string(seconds))
               : messages.getMessageWithInsertion(message::timeMinutesLeft,
                                                  std::to_string(seconds / minute));
}

} // namespace

TransferPace::TransferPace(std::vector<std::int64_t> sizes, Transferred wasTransferred)
    : sizes_(std::move(sizes)), wasTransferred_(std::move(wasTransferred)) {
    for (const std::int64_t size : sizes_) {
        bytesOfAll_ += size;
        effortOfAll_ += effortOf(size);
    }
}

void TransferPace::prepare(milliseconds worked) {
    worked_ = worked;
    if (item_ == 0)
        reachedAt_ = worked;
}

void TransferPace::reach(std::size_t item, milliseconds worked) {
    worked_ = worked;
    const std::size_t next = std::min(item, sizes_.size());
    if (next <= item_)
        return;
    const double before = measuredEffort_;
    for (; item_ < next; ++item_) {
        bytesDone_ += sizes_[item_];
        effortDone_ += effortOf(sizes_[item_]);
        if (!wasTransferred_(item_))
            continue;
        ++measuredFiles_;
        measuredEffort_ += effortOf(sizes_[item_]);
    }
    if (measuredEffort_ > before)
        measuredTime_ += worked - reachedAt_;
    reachedAt_ = worked;
    estimate();
}

void TransferPace::estimate() {
    const bool isEnough =
        measuredFiles_ >= leastFiles || measuredEffort_ >= leastPart * effortOfAll_;
    if (measuredTime_ < leastTime || !isEnough)
        return;
    const double speed = measuredEffort_ / double(measuredTime_.count());
    const double seconds = (effortOfAll_ - effortDone_) / speed / 1000;
    if (!shown_ || isWorthShowing(*shown_, seconds))
        shown_ = rounded(seconds);
}

std::string paceText(const MessageTable& messages, const TransferPace& pace) {
    const std::string joint = messages.getMessage(message::resultJoint);
    std::string text;
    if (pace.knowsSizes())
        text = bytesText(messages, pace.bytesDone(), pace.bytesOfAll()) + joint;
    if (const auto left = pace.secondsLeft())
        text += leftText(messages, *left) + joint;
    return text +
           messages.getMessageWithInsertion(message::timeElapsed, elapsedText(pace.worked()));
}

} // namespace vantrel
