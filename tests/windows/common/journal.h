// The journal: a text file to which a program of the stage adds a line for each thing that happens to it.
// A line holds fields separated by tabs: milliseconds since the system's start, process id, the event's
// name, then what belongs to it. Several programs may write one journal; lines stay whole.
#pragma once
#include <initializer_list>
#include <string>
#include <string_view>

namespace journal {

// Where the journal stands: the environment variable, or else a file beside the program.
void open(const wchar_t* variable, const wchar_t* fileName);

void write(std::string_view event, std::initializer_list<std::wstring_view> fields = {});

// A file beside the running program, or the path that the environment variable gives.
std::wstring besideProgram(const wchar_t* variable, const wchar_t* fileName);

} // namespace journal
