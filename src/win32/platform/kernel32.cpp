#include "platform/kernel32.h"

#include "runtime/characters.h"
#include "win32/common/painting.h"
#include "win32/common/wide.h"
#include "win32/platform/heldFiles.h"
#include "win32/platform/leftOpen.h"
#include "win32/platform/paths.h"

#include <windows.h>

#include <tlhelp32.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

namespace {

/// The platform's record; the logic states the size of the 32-bit one, the platform wants its own.
bool walk(BOOL(WINAPI* step)(HANDLE, LPPROCESSENTRY32), platform::HANDLE snapshot,
          platform::PROCESSENTRY32& entry) {
    ::PROCESSENTRY32 record{};
    record.dwSize = sizeof record;
    if (entry.dwSize != platform::processRecordSize ||
        step(reinterpret_cast<HANDLE>(snapshot), &record) == FALSE)
        return false;
    entry.th32ProcessID = record.th32ProcessID;
    std::copy_n(record.szExeFile, sizeof entry.szExeFile, entry.szExeFile);
    return true;
}

/// An argument of a wide call; null stays null.
class Wide {
  public:
    explicit Wide(const char* text)
        : null_(text == nullptr), text_(null_ ? std::wstring() : win32::toWide(text)) {}
    operator const wchar_t*() const { return null_ ? nullptr : text_.c_str(); }

  private:
    bool null_;
    std::wstring text_;
};

/// The value of a key in the code page, cut to what fits with its NUL.
std::uint32_t copyOut(const std::wstring& value, char* buffer, std::uint32_t size) {
    if (size == 0)
        return 0;
    const std::string text = win32::toText(value);
    const std::string_view fitting = runtime::cutToSize(text, size - 1);
    buffer[fitting.copy(buffer, fitting.size())] = '\0';
    return static_cast<std::uint32_t>(fitting.size());
}

} // namespace

namespace platform {

std::uint32_t GetPrivateProfileStringA(const char* section, const char* key, const char* defaultValue,
                                       char* buffer, std::uint32_t size, const char* file) {
    // The platform's own call wherever the code page will do: its ways with long values and lists stay.
    if (!win32::holdsStandIn(file))
        return win32::awaitHeld(
            [&] { return ::GetPrivateProfileStringA(section, key, defaultValue, buffer, size, file); });
    std::wstring value(size, L'\0');
    const std::wstring path = win32::widePath(file);
    value.resize(win32::awaitHeld([&] {
        return ::GetPrivateProfileStringW(Wide(section), Wide(key), Wide(defaultValue), value.data(), size,
                                          path.c_str());
    }));
    return copyOut(value, buffer, size);
}

int WritePrivateProfileStringA(const char* section, const char* key, const char* value, const char* file) {
    // Long button lists are thousands of such calls.
    win32::paintMeanwhile();
    if (!win32::holdsStandIn(file))
        return win32::awaitHeld([&] { return ::WritePrivateProfileStringA(section, key, value, file); });
    const std::wstring path = win32::widePath(file);
    return win32::awaitHeld(
        [&] { return ::WritePrivateProfileStringW(Wide(section), Wide(key), Wide(value), path.c_str()); });
}

HANDLE CreateToolhelp32Snapshot(std::uint32_t flags, std::uint32_t processId) {
    win32::endLastSnapshot();
    const ::HANDLE snapshot = ::CreateToolhelp32Snapshot(flags, processId);
    win32::keepSnapshot(snapshot);
    return HANDLE{reinterpret_cast<std::uintptr_t>(snapshot)};
}

bool Process32First(HANDLE snapshot, PROCESSENTRY32& entry) {
    return walk(::Process32First, snapshot, entry);
}

bool Process32Next(HANDLE snapshot, PROCESSENTRY32& entry) {
    return walk(::Process32Next, snapshot, entry);
}

int GetVersionExA(OSVERSIONINFOA& record) {
    ::OSVERSIONINFOA native{};
    static_assert(sizeof native == versionRecordSize);
    native.dwOSVersionInfoSize = record.dwOSVersionInfoSize;
    if (record.dwOSVersionInfoSize != versionRecordSize || ::GetVersionExA(&native) == FALSE)
        return 0;
    record.dwMajorVersion = native.dwMajorVersion;
    record.dwMinorVersion = native.dwMinorVersion;
    record.dwBuildNumber = native.dwBuildNumber;
    record.dwPlatformId = native.dwPlatformId;
    std::copy(std::begin(native.szCSDVersion), std::end(native.szCSDVersion), record.szCSDVersion);
    return 1;
}

} // namespace platform
