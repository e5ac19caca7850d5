#include "core/windoInf.h"

#include "platform/kernel32.h"
#include "platform/user32.h"
#include "runtime/characters.h"
#include "runtime/runtimeError.h"
#include "runtime/text.h"

#include <algorithm>
#include <span>

namespace core {

platform::HWND findWindowByTitle(std::string_view text) {
    foundWindow = platform::HWND::none;
    if (text.empty())
        return platform::HWND::none;
    searchTitle = runtime::lowerCase(text);
    platform::EnumWindows(enumTitleCallback, -1);
    return foundWindow;
}

std::string_view titleForSearch(platform::HWND window, TitleBuffer& buffer) {
    const int copied = platform::GetWindowTextA(window, buffer.data(), static_cast<int>(buffer.size()));
    return {buffer.data(), static_cast<std::size_t>(copied)};
}

int enumTitleCallback(platform::HWND window, std::intptr_t /*extra*/) {
    TitleBuffer buffer; // filled by the call
    if (!runtime::holdsIgnoringCase(titleForSearch(window, buffer), searchTitle))
        return 1;
    foundWindow = window;
    return 0;
}

std::string getWindowCaption(platform::HWND window) {
    if (!platform::IsWindow(window))
        return {};
    const int length = platform::GetWindowTextLengthA(window);
    if (length <= 0)
        return {};
    std::string buffer(static_cast<std::size_t>(length) + 2, '\0');
    platform::GetWindowTextA(window, buffer.data(), length + 1);
    constexpr std::size_t longest = 255;
    // The buffer's own zero characters stand behind the title, so blanks there stay until the cut below.
    const std::string_view whole = runtime::trim(buffer);
    const std::string_view caption = whole.substr(0, runtime::sizeOfCharacters(whole, longest));
    return std::string(runtime::untilNul(caption));
}

std::string parseFileFromTitle(platform::HWND window) {
    return fileOfTitle(getWindowCaption(window));
}

std::string fileOfTitle(std::string_view title) {
    constexpr std::string_view separator = " - ";
    const std::size_t first = runtime::findText(title, separator);
    if (first == std::string_view::npos)
        return {};
    const std::size_t begin = first + separator.size();
    const std::size_t second = runtime::findText(title, separator, begin);
    if (second == std::string_view::npos)
        return {};
    return std::string(title.substr(begin, second - begin));
}

std::int16_t isEagleRunning() {
    constexpr std::uint32_t processes = 2;
    // Kept: the snapshot is not given back. The platform ends it when the next one is asked for.
    const platform::HANDLE snapshot = platform::CreateToolhelp32Snapshot(processes, 0);
    platform::PROCESSENTRY32 entry;
    entry.dwSize = platform::processRecordSize;
    for (bool more = platform::Process32First(snapshot, entry); more;
         more = platform::Process32Next(snapshot, entry)) {
        const auto end = std::find(std::begin(entry.szExeFile), std::end(entry.szExeFile), '\0');
        const std::span<char> name(entry.szExeFile, static_cast<std::size_t>(end - entry.szExeFile));
        platform::CharLowerBuffA(name);
        if (runtime::findText({name.data(), name.size()}, "eagle.exe") != std::string_view::npos)
            return 1;
    }
    return 0;
}

void setWindowOnTop(platform::HWND window, std::int16_t flag) {
    constexpr std::uint32_t keepSizeAndPosition = 3;
    platform::SetWindowPos(window, flag != 0 ? -1 : 0, 0, 0, 0, 0, keepSizeAndPosition);
}

} // namespace core
