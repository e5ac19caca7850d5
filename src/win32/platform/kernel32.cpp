#include "platform/kernel32.h"

#include <windows.h>

#include <tlhelp32.h>

#include <algorithm>
#include <iterator>

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

} // namespace

namespace platform {

std::uint32_t GetPrivateProfileStringA(const char* section, const char* key, const char* defaultValue,
                                       char* buffer, std::uint32_t size, const char* file) {
    return ::GetPrivateProfileStringA(section, key, defaultValue, buffer, size, file);
}

int WritePrivateProfileStringA(const char* section, const char* key, const char* value, const char* file) {
    return ::WritePrivateProfileStringA(section, key, value, file);
}

HANDLE CreateToolhelp32Snapshot(std::uint32_t flags, std::uint32_t processId) {
    return HANDLE{reinterpret_cast<std::uintptr_t>(::CreateToolhelp32Snapshot(flags, processId))};
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
