#include "common/orders.h"
#include "common/journal.h"
#include "common/text.h"

#include <windows.h>

#include <thread>
#include <utility>

namespace orders {

std::wstring Order::word(size_t index) const {
    return index < words.size() ? words[index] : L"";
}

long long Order::numberAt(size_t index) const {
    return wcstoll(word(index).c_str(), nullptr, 0);
}

// Adds to the text what the file holds beyond a place, and moves the place there.
static void readOn(const std::wstring& path, LARGE_INTEGER& place, std::string& pending) {
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return;
    SetFilePointerEx(file, place, nullptr, FILE_BEGIN);
    char buffer[4096];
    DWORD count = 0;
    while (ReadFile(file, buffer, sizeof buffer, &count, nullptr) && count > 0) {
        pending.append(buffer, count);
        place.QuadPart += count;
    }
    CloseHandle(file);
}

static LARGE_INTEGER sizeOf(const std::wstring& path) {
    LARGE_INTEGER size = {};
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data)) {
        size.LowPart = data.nFileSizeLow;
        size.HighPart = static_cast<LONG>(data.nFileSizeHigh);
    }
    return size;
}

constexpr long long usualPace = 20; // milliseconds between two looks

static void handleLine(const std::string& line, const std::function<void(const Order&)>& handler,
                       long long& pace) {
    std::vector<std::wstring> words = text::fields(line);
    if (words.size() < 2)
        return;
    Order order{words[0], words[1], {words.begin() + 2, words.end()}};
    if (order.verb != L"pace")
        return handler(order);
    pace = order.numberAt(0);
    done(order);
}

void listen(const std::wstring& path, std::function<void(const Order&)> handler) {
    LARGE_INTEGER place = sizeOf(path);
    std::thread([path, place, handler = std::move(handler)]() mutable {
        std::string pending;
        long long pace = usualPace;
        for (;;) {
            readOn(path, place, pending);
            for (size_t end; (end = pending.find('\n')) != std::string::npos; pending.erase(0, end + 1))
                handleLine(pending.substr(0, end), handler, pace);
            Sleep(static_cast<DWORD>(pace));
        }
    }).detach();
}

void done(const Order& order, const std::wstring& text) {
    journal::write("done", {order.number, text});
}

void failed(const Order& order, const std::wstring& text) {
    journal::write("failed", {order.number, text});
}

} // namespace orders
