// Clipboard, printer, clock, screen and version of the simulated desktop.
#include "desktop/desktop.h"

#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/executable.h"
#include "platform/printer.h"
#include "platform/screen.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>

namespace {

using desktop::world;

constexpr int secondsPerDay = 86400;

/// Time goes by while a clipboard is waited for that is given back in time.
void openClipboard() {
    desktop::World& desk = world();
    if (desk.clipboardHeldUntil > desk.now + platform::clipboardPatience)
        throw runtime::RuntimeError(runtime::ErrorNumber::clipboardNotOpened);
    desk.now = std::max(desk.now, desk.clipboardHeldUntil);
}

struct DayAndSeconds {
    int day;
    int seconds;
};

DayAndSeconds split(double date) {
    constexpr double first = -657434; // in the year 100
    constexpr double last = 2958465;  // in the year 9999
    const double day = std::trunc(date);
    if (day < first || day > last)
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

void clearClipboard() {
    openClipboard();
    world().clipboard.reset();
    world().note("clearClipboard");
}

void setClipboardText(std::string_view text) {
    openClipboard();
    world().clipboard = std::string(text.substr(0, text.find('\0')));
    world().note("setClipboardText");
}

void printLine(std::string_view line) {
    if (world().noPrinter) {
        world().printing.clear();
        throw runtime::RuntimeError(runtime::ErrorNumber::printerError);
    }
    world().printing.emplace_back(line);
}

void endPrintJob() {
    if (world().printing.empty())
        return;
    world().printed.push_back(std::move(world().printing));
    world().printing.clear();
}

double now() {
    constexpr double perDay = 1000.0 * secondsPerDay;
    const double date = world().startDate + static_cast<double>(world().now) / perDay;
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

const std::string& executableName() {
    return world().executableName;
}

int screenWidth() {
    return world().screenWidth;
}

int screenHeight() {
    return world().screenHeight;
}

void resetMousePointer() {
    world().waitingPointer = false;
}

int GetVersionExA(OSVERSIONINFOA& record) {
    ++world().versionReads;
    if (record.dwOSVersionInfoSize != versionRecordSize || world().versionFails)
        return 0;
    record = world().version;
    record.dwOSVersionInfoSize = versionRecordSize;
    return 1;
}

} // namespace platform
