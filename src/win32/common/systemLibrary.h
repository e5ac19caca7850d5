// Libraries of the system that are bound when they are first needed.
//
// Always by the whole path of the system's folder. By its bare name a library is looked for beside the
// program first, and the flag that keeps to the system's folder (LOAD_LIBRARY_SEARCH_SYSTEM32) makes the call
// fail on a Windows 7 without its updates.
#pragma once

#include <windows.h>

#include <cstring>

namespace win32 {

/// The library, loaded for as long as the program runs; null if there is none.
HMODULE systemLibrary(const wchar_t* name);

/// A routine as what it is; null if it is not to be had.
template <typename Routine>
Routine routineOf(HMODULE library, const char* name) {
    const FARPROC found = library == nullptr ? nullptr : GetProcAddress(library, name);
    Routine routine = nullptr;
    static_assert(sizeof routine == sizeof found);
    std::memcpy(&routine, &found, sizeof routine);
    return routine;
}

} // namespace win32
