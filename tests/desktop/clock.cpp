#include "platform/clock.h"

#include "desktop/desktop.h"

#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>

namespace {

constexpr int secondsPerDay = 86400;

struct DayAndSeconds {
    int day;
    int seconds;
};

DayAndSeconds split(double date) {
    constexpr double first = -657434; // in the year 100
    constexpr double last = 2958465;  // in the year 9999
    const double day = std::trunc(date);
    // Also what is no number.
    if (!(day >= first && day <= last))
        throw runtime::RuntimeError(runtime::ErrorNumber::invalidCall);
    const auto seconds = static_cast<int>(std::lround(std::abs(date - day) * secondsPerDay));
    return {static_cast<int>(day) + seconds / secondsPerDay, seconds % secondsPerDay};
}

template <typename... Numbers>
std::string formatted(const char* pattern, Numbers... numbers) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), pattern, numbers...);
    return text.data();
}

} // namespace

namespace platform {

double now() {
    constexpr double perDay = 1000.0 * secondsPerDay;
    const double date = desktop::world().startDate + static_cast<double>(desktop::world().now) / perDay;
    return std::floor(date * secondsPerDay + 0.001) / secondsPerDay;
}

std::string dateText(double date) {
    constexpr std::chrono::sys_days start = std::chrono::year{1899} / 12 / 30;
    const std::chrono::year_month_day day(start + std::chrono::days(split(date).day));
    return formatted("%02u.%02u.%04d", static_cast<unsigned>(day.day()), static_cast<unsigned>(day.month()),
                     static_cast<int>(day.year()));
}

std::string timeText(double date) {
    const int seconds = split(date).seconds;
    return formatted("%02d:%02d:%02d", seconds / 3600, seconds / 60 % 60, seconds % 60);
}

} // namespace platform
