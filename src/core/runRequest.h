// What a run request asks for: its line, taken apart.
#pragma once

#include <string>
#include <string_view>

namespace core {

struct RunRequest {
    std::string program;
    std::string parameters;
};

/// Takes a request's line apart: the program stands before the first quote, the parameters between the first
/// and the second. A quote behind position 32767 does not count.
RunRequest splitRunRequest(std::string_view line);

} // namespace core
