// The runtime's error for what has gone wrong with a file.
#pragma once

#include "runtime/runtimeError.h"

#include <windows.h>

namespace win32 {

/// The error for the thread's last failure; `otherwise` for one that has no number of its own.
inline runtime::RuntimeError lastFileError(runtime::ErrorNumber otherwise) {
    using runtime::ErrorNumber;
    using runtime::RuntimeError;
    switch (GetLastError()) {
    case ERROR_PATH_NOT_FOUND:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_INVALID_DRIVE:
        return RuntimeError(ErrorNumber::pathNotFound);
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
        return RuntimeError(ErrorNumber::permissionDenied);
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
        return RuntimeError(ErrorNumber::pathFileAccess);
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return RuntimeError(ErrorNumber::diskFull);
    default:
        return RuntimeError(otherwise);
    }
}

} // namespace win32
