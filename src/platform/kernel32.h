// Settings-file, process and version operations of the platform, under the platform's own names. None throws.
#pragma once

#include "platform/types.h"

#include <cstdint>
#include <span>

namespace platform {

/// Copies the value of a key, or the default, into `buffer` of `size` characters, terminated by NUL; gives
/// the number of characters copied without it. A null section or key lists names, as the platform has it. A
/// file that another program holds is waited for, half a second at most, here and in the call below.
std::uint32_t GetPrivateProfileStringA(const char* section, const char* key, const char* defaultValue,
                                       char* buffer, std::uint32_t size, const char* file);

/// Sets a key, creating section and file as needed. A null value removes the key, a null key the section.
int WritePrivateProfileStringA(const char* section, const char* key, const char* value, const char* file);

/// One record of the process walk. `dwSize` must be `processRecordSize` before the first call; the
/// executable's name is a field of 260 characters, ended by NUL.
struct PROCESSENTRY32 {
    std::uint32_t dwSize = 0;
    std::uint32_t th32ProcessID = 0;
    char szExeFile[260] = {};
};
inline constexpr std::uint32_t processRecordSize = 296;

/// A snapshot that nobody gives back. It lasts until the next one is asked for: one walk at a time.
HANDLE CreateToolhelp32Snapshot(std::uint32_t flags, std::uint32_t processId);
bool Process32First(HANDLE snapshot, PROCESSENTRY32& entry);
bool Process32Next(HANDLE snapshot, PROCESSENTRY32& entry);

/// The system's version. `dwOSVersionInfoSize` must be `versionRecordSize` before the call; the text is a
/// field of 128 characters, ended by NUL unless it fills it.
struct OSVERSIONINFOA {
    std::uint32_t dwOSVersionInfoSize = 0;
    std::uint32_t dwMajorVersion = 0;
    std::uint32_t dwMinorVersion = 0;
    std::uint32_t dwBuildNumber = 0;
    std::uint32_t dwPlatformId = 0;
    char szCSDVersion[128] = {};
};
inline constexpr std::uint32_t versionRecordSize = 148;
static_assert(sizeof(OSVERSIONINFOA) == versionRecordSize);

/// Non-zero on success; 0 and an untouched record otherwise.
int GetVersionExA(OSVERSIONINFOA& record);

} // namespace platform
