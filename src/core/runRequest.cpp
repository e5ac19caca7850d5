// The run-request file: outside programs ask the system to open something by leaving a small text file in its
// folder. The tick looks for it and goes off; half a second later, when its writer has had time to finish, it
// is read, deleted and handed to the shell.
#include "core/runRequest.h"

#include "core/hauptform.h"
#include "core/windoInf.h"
#include "platform/executable.h"
#include "platform/files.h"
#include "platform/messages.h"
#include "platform/shell32.h"
#include "platform/textFile.h"
#include "runtime/characters.h"
#include "runtime/runtimeError.h"
#include "runtime/text.h"
#include "store/mends.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>

namespace core {

namespace {

std::string requestFile() {
    return platform::programFolder() + "\\execute.txt";
}

/// Position of the first quote at or behind position `from`, both counted from 1; 0 if there is none. Kept:
/// positions are 16-bit numbers, and one beyond is as good as none.
std::int16_t quotePosition(std::string_view line, std::size_t from) {
    const std::size_t found = runtime::findText(line, "\"", from - 1);
    if (found == std::string_view::npos || found >= std::numeric_limits<std::int16_t>::max())
        return 0;
    return static_cast<std::int16_t>(found + 1);
}

/// Reads the request's line and deletes the file; both or nothing.
std::optional<std::string> takeRequest() {
    try {
        std::string line = platform::readFirstLine(requestFile());
        platform::kill(requestFile());
        return line;
    } catch (const runtime::RuntimeError&) {
        // Kept: a request that its writer still holds ends the program.
        if (!store::mended(store::Mend::noEnd))
            throw;
        return std::nullopt;
    }
}

} // namespace

void Hauptform::dropRunRequest() {
    const std::string file = requestFile();
    if (platform::dir(file).empty())
        return;
    try {
        platform::kill(file);
    } catch (const runtime::RuntimeError&) {
        // Kept: as of a tick's request, and with the same mend, noEnd; the settings have not been read yet.
        // One that is still written is not left over: a tick finds it.
        if (!store::mendSetting())
            throw;
    }
}

void Hauptform::lookForRunRequest() {
    if (platform::dir(requestFile()).empty())
        return;
    Timer2.setEnabled(false);
    Timer1.setEnabled(true);
}

void Hauptform::Timer1_Timer() {
    Timer1.setEnabled(false);
    const std::optional<std::string> line = takeRequest();
    if (!line) {
        Timer2.setEnabled(true);
        return;
    }
    const platform::HWND form = window();
    setWindowOnTop(form, 0);
    const RunRequest request = splitRunRequest(*line);
    platform::ShellExecuteA(form, "Open", request.program.c_str(), request.parameters.c_str(), "",
                            platform::showNormally);
    platform::doEvents();
    Timer2.setEnabled(true);
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
