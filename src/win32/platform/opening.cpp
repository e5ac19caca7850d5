#include "win32/platform/opening.h"

#include "win32/common/components.h"
#include "win32/common/native.h"
#include "win32/platform/hosts.h"
#include "win32/platform/paths.h"

#include <windows.h>

#include <shellapi.h>

namespace win32 {

bool open(Opening& opening) {
    const Components components;
    SHELLEXECUTEINFOW call{};
    const std::wstring verb = widePath(opening.verb);
    const std::wstring file = widePath(opening.file);
    const std::wstring parameters = widePath(opening.parameters);
    const std::wstring folder = widePath(opening.folder);
    call.cbSize = sizeof call;
    // No message of the shell's own; the thread ends behind the call.
    call.fMask = SEE_MASK_FLAG_NO_UI | SEE_MASK_NOASYNC;
    call.hwnd = native(opening.owner);
    call.lpVerb = verb.c_str();
    call.lpFile = file.c_str();
    call.lpParameters = parameters.c_str();
    call.lpDirectory = folder.c_str();
    call.nShow = opening.command;
    const bool opened = ShellExecuteExW(&call) != FALSE;
    const DWORD error = GetLastError();
    opening.result = reinterpret_cast<std::intptr_t>(call.hInstApp);
    return opened || isAnswer(error);
}

} // namespace win32
