// Text between the system's UTF-16 and the UTF-8 of the files that the driver reads and writes.
#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace text {

std::string narrow(std::wstring_view wide);
std::wstring widen(std::string_view narrow);

// The fields of a line that are separated by tabs; at least one. The reverse of escaped() is done to each.
std::vector<std::wstring> fields(std::string_view line);

// A field with backslash, tab, carriage return and line feed written as \\ \t \r \n.
std::string escaped(std::wstring_view field);

} // namespace text
