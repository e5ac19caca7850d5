#include "core/runRequest.h"

#include "core/hauptform.h"
#include "core/windoInf.h"
#include "platform/shell32.h"
#include "platform/system.h"
#include "runtime/text.h"

#include <cstddef>
#include <cstdint>
#include <limits>

namespace core {

namespace {

std::string requestFile() {
    return platform::programFolder() + "\\execute.txt";
}

/// Position of the first quote at or behind position `from`, both counted from 1; 0 if there is none. Kept:
/// positions are 16-bit numbers, and one beyond is as good as none.
std::int16_t quotePosition(std::string_view line, std::size_t from) {
    const std::size_t found = line.find('"', from - 1);
    if (found == std::string_view::npos || found >= std::numeric_limits<std::int16_t>::max())
        return 0;
    return static_cast<std::int16_t>(found + 1);
}

} // namespace

void dropRunRequest() {
    const std::string file = requestFile();
    if (!platform::dir(file).empty())
        platform::kill(file);
}

void lookForRunRequest(Hauptform& form) {
    if (platform::dir(requestFile()).empty())
        return;
    form.Timer2.setEnabled(false);
    form.Timer1.setEnabled(true);
}

void handleRunRequest(Hauptform& form) {
    form.Timer1.setEnabled(false);
    const std::string line = platform::readFirstLine(requestFile());
    platform::kill(requestFile());
    const platform::HWND window = form.window();
    setWindowOnTop(window, 0);
    const RunRequest request = splitRunRequest(line);
    constexpr int showNormal = 1;
    platform::ShellExecuteA(window, "Open", request.program.c_str(), request.parameters.c_str(), "",
                            showNormal);
    platform::doEvents();
    form.Timer2.setEnabled(true);
}

RunRequest splitRunRequest(std::string_view line) {
    const std::int16_t first = quotePosition(line, 1);
    if (first == 0)
        return {std::string(line), {}};
    const auto behind = static_cast<std::size_t>(first);
    const std::int16_t second = quotePosition(line, behind + 1);
    RunRequest request;
    request.program = runtime::trim(line.substr(0, behind - 1));
    if (second > first)
        request.parameters = line.substr(behind, static_cast<std::size_t>(second - first - 1));
    return request;
}

} // namespace core
