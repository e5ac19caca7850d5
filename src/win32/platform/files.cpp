#include "platform/files.h"

#include "win32/platform/fileError.h"
#include "win32/platform/heldFiles.h"
#include "win32/platform/hosts.h"
#include "win32/platform/paths.h"

#include <windows.h>

#include <memory>
#include <string>

namespace {

runtime::RuntimeError lastError() {
    return win32::lastFileError(runtime::ErrorNumber::fileNotFound);
}

/// Gives a file a name, in place of what has it unless that is to be kept. Either may be held for a moment:
/// what has just been written is what a virus scanner opens.
bool move(const std::wstring& from, const std::wstring& to, platform::Existing existing) {
    const DWORD replace = existing == platform::Existing::replaced ? MOVEFILE_REPLACE_EXISTING : 0;
    const ULONGLONG begin = GetTickCount64();
    while (MoveFileExW(from.c_str(), to.c_str(), replace | MOVEFILE_WRITE_THROUGH) == FALSE) {
        // A name whose file is held is refused in the same words as one that may not be replaced at all.
        const DWORD failure = GetLastError();
        if (!win32::isHeld(failure) && failure != ERROR_ACCESS_DENIED)
            return false;
        if (GetTickCount64() - begin >= win32::heldPatience)
            return false;
        Sleep(win32::betweenTries);
    }
    return true;
}

/// The bare name of the first plain file that a path matches, none if there is none. Tells whether the path's
/// host has answered.
bool findFile(const std::string& path, std::string& name) {
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW(win32::widePath(path).c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return win32::isAnswer(GetLastError());
    do {
        constexpr DWORD special = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
        if ((found.dwFileAttributes & special) == 0)
            name = win32::pathText(found.cFileName);
    } while (name.empty() && FindNextFileW(search, &found) != FALSE);
    FindClose(search);
    return true;
}

} // namespace

namespace platform {

std::string dir(std::string_view path) {
    // The platform takes some characters that no file name holds for wildcards of its own.
    if (path.empty() || win32::widePath(path).find_first_of(L"<>\"|") != std::wstring::npos)
        return {};
    const auto name = std::make_shared<std::string>();
    const bool asked =
        win32::askHost(path, [whole = std::string(path), name] { return findFile(whole, *name); });
    return asked ? *name : std::string();
}

void kill(std::string_view path) {
    if (DeleteFileW(win32::widePath(path).c_str()) == FALSE)
        throw lastError();
}

bool copyFile(std::string_view from, std::string_view to, Existing existing) {
    // The copy gets its name when it is whole.
    const std::wstring target = win32::widePath(to);
    const std::wstring half = target + L"~";
    // One that may not be written could not be replaced by the next.
    const std::wstring source = win32::widePath(from);
    if (win32::awaitHeld([&] { return CopyFileW(source.c_str(), half.c_str(), FALSE); }) == FALSE)
        return false;
    if (SetFileAttributesW(half.c_str(), FILE_ATTRIBUTE_NORMAL) != FALSE && move(half, target, existing))
        return true;
    DeleteFileW(half.c_str());
    return false;
}

bool renameFile(std::string_view from, std::string_view to) {
    return move(win32::widePath(from), win32::widePath(to), Existing::replaced);
}

std::string currentDirectory() {
    std::wstring folder(win32::longestPath, L'\0');
    folder.resize(GetCurrentDirectoryW(win32::longestPath, folder.data()));
    return win32::pathText(folder);
}

} // namespace platform
