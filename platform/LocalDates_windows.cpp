#include "platform/LocalDates_windows.h"

#include <array>

namespace vantrel {

namespace {

void putDigits(char* at, unsigned value, int count) {
    for (int i = count - 1; i >= 0; --i, value /= 10)
        at[i] = static_cast<char>('0' + value % 10);
}

} // namespace

DateText localDateText(const FILETIME& time) {
    SYSTEMTIME universal{}, local{};
    if (!::FileTimeToSystemTime(&time, &universal) ||
        !::SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local) || local.wYear > 9999)
        return {};
    std::array<char, DateText::length + 1> text{"0000/00/00 00:00:00"};
    putDigits(text.data(), local.wYear, 4);
    putDigits(text.data() + 5, local.wMonth, 2);
    putDigits(text.data() + 8, local.wDay, 2);
    putDigits(text.data() + 11, local.wHour, 2);
    putDigits(text.data() + 14, local.wMinute, 2);
    putDigits(text.data() + 17, local.wSecond, 2);
    return DateText({text.data(), DateText::length});
}

} // namespace vantrel
