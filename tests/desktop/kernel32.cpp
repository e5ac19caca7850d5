#include "platform/kernel32.h"

#include "desktop/desktop.h"
#include "desktop/faults.h"
#include "desktop/iniFile.h"

#include <algorithm>
#include <cstring>

namespace {

using desktop::world;

/// Processes of the walk that goes on, taken when the snapshot was made.
std::vector<desktop::Process> walked;
std::size_t walkedSoFar = 0;

bool nextRecord(platform::PROCESSENTRY32& entry) {
    if (entry.dwSize != platform::processRecordSize || walkedSoFar >= walked.size())
        return false;
    const desktop::Process& process = walked[walkedSoFar++];
    entry.th32ProcessID = process.id;
    std::memset(entry.szExeFile, 0, sizeof entry.szExeFile);
    process.exe.copy(entry.szExeFile, sizeof entry.szExeFile);
    return true;
}

} // namespace

namespace platform {

std::uint32_t GetPrivateProfileStringA(const char* section, const char* key, const char* defaultValue,
                                       char* buffer, std::uint32_t size, const char* file) {
    const desktop::Call call("GetPrivateProfileStringA");
    ++world().settingsReads;
    world().settingsPaths.emplace_back(file);
    const desktop::File* found = world().file(file);
    const bool read = found != nullptr && !found->directory && !found->locked && !call.fails();
    return desktop::profileGet(read ? &found->content : nullptr, section, key, defaultValue, buffer, size);
}

int WritePrivateProfileStringA(const char* section, const char* key, const char* value, const char* file) {
    const desktop::Call call("WritePrivateProfileStringA");
    if (call.fails())
        return 0;
    world().settingsPaths.emplace_back(file);
    if (const desktop::File* found = world().file(file);
        found != nullptr && (found->readOnly || found->locked))
        return 0;
    std::optional<std::string> text = world().fileText(file);
    const int result = desktop::profileWrite(text, section, key, value);
    if (text)
        world().writeFile(file, *text);
    return result;
}

HANDLE CreateToolhelp32Snapshot(std::uint32_t flags, std::uint32_t processId) {
    const desktop::Call call("CreateToolhelp32Snapshot");
    if (call.fails())
        return HANDLE{static_cast<std::uintptr_t>(-1)};
    if (flags != 2 || processId != 0 || world().snapshotFails)
        return HANDLE{static_cast<std::uintptr_t>(-1)};
    walked = world().processes;
    walkedSoFar = 0;
    ++world().openSnapshots;
    return HANDLE{0x5000U + static_cast<std::uintptr_t>(world().openSnapshots)};
}

bool Process32First(HANDLE snapshot, PROCESSENTRY32& entry) {
    const desktop::Call call("Process32First");
    if (call.fails())
        return false;
    if (snapshot == HANDLE{static_cast<std::uintptr_t>(-1)})
        return false;
    walkedSoFar = 0;
    return nextRecord(entry);
}

bool Process32Next(HANDLE /*snapshot*/, PROCESSENTRY32& entry) {
    const desktop::Call call("Process32Next");
    if (call.fails())
        return false;
    return nextRecord(entry);
}

int GetVersionExA(OSVERSIONINFOA& record) {
    const desktop::Call call("GetVersionExA");
    if (call.fails())
        return 0;
    ++world().versionReads;
    if (record.dwOSVersionInfoSize != versionRecordSize || world().versionFails)
        return 0;
    record = world().version;
    record.dwOSVersionInfoSize = versionRecordSize;
    return 1;
}

} // namespace platform
