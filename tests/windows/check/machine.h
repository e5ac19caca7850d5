// What this Windows is: told in the report, and what not every Windows has.
#pragma once
#include <windows.h>

#include <string>

class Report;

namespace machine {

// A routine of one of the system's DLLs, which stays loaded; nullptr where this Windows has none of the name.
FARPROC find(const wchar_t* library, const char* name);
template <typename Routine>
Routine routine(const wchar_t* library, const char* name) {
    return reinterpret_cast<Routine>(reinterpret_cast<void*>(find(library, name)));
}

// Version, languages, code pages, screens and what else changes how a program looks and gets its input.
void describe(Report& report);

} // namespace machine
