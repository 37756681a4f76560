#include "platform/LocalDates_posix.h"

#include <array>

namespace vantrel {

namespace {

constexpr std::time_t secondsPerDay = 86400;

void putDigits(char* at, int value, int count) {
    for (int i = count - 1; i >= 0; --i, value /= 10)
        at[i] = static_cast<char>('0' + value % 10);
}

DateText dateText(const std::tm& day, int secondOfDay) {
    const int year = day.tm_year + 1900;
    if (year < 0 || year > 9999)
        return {};
    std::array<char, DateText::length + 1> text{"0000/00/00 00:00:00"};
    putDigits(text.data(), year, 4);
    putDigits(text.data() + 5, day.tm_mon + 1, 2);
    putDigits(text.data() + 8, day.tm_mday, 2);
    putDigits(text.data() + 11, secondOfDay / 3600, 2);
    putDigits(text.data() + 14, secondOfDay / 60 % 60, 2);
    putDigits(text.data() + 17, secondOfDay % 60, 2);
    return DateText({text.data(), DateText::length});
}

int secondOfDay(const std::tm& time) {
    return (time.tm_hour * 60 + time.tm_min) * 60 + time.tm_sec;
}

} // namespace

LocalDates::LocalDates() {
    ::tzset();
}

DateText LocalDates::text(std::time_t time) {
    if (time >= dayStart_ && time < dayEnd_)
        return dateText(day_, static_cast<int>(time - dayStart_));
    std::tm local{};
    if (::localtime_r(&time, &local) == nullptr)
        return {};
    rememberDay(time, local);
    return dateText(local, secondOfDay(local));
}

/// A day in which the clocks change is not remembered: its hours don't follow from its start.
void LocalDates::rememberDay(std::time_t time, const std::tm& local) {
    const std::time_t start = time - secondOfDay(local);
    const std::time_t last = start + secondsPerDay - 1;
    std::tm atStart{}, atLast{};
    if (::localtime_r(&start, &atStart) == nullptr || ::localtime_r(&last, &atLast) == nullptr)
        return;
    if (atStart.tm_gmtoff != atLast.tm_gmtoff || atStart.tm_yday != atLast.tm_yday ||
        secondOfDay(atStart) != 0)
        return;
    day_ = local;
    dayStart_ = start;
    dayEnd_ = start + secondsPerDay;
}

} // namespace vantrel
