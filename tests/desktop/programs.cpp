// Starting and calling up programs on the simulated desktop.
#include "platform/programs.h"

#include "desktop/desktop.h"
#include "desktop/faults.h"
#include "runtime/text.h"

#include <algorithm>

namespace {

using desktop::world;

/// Handle of the first top-level window that `fits`; none if there is none.
template <typename Test>
platform::HWND firstWindow(Test fits) {
    for (const platform::HWND handle : world().order)
        if (world().window(handle).className != desktop::ghostClass &&
            fits(runtime::lowerCase(world().window(handle).title)))
            return handle;
    return platform::HWND::none;
}

bool isFile(const std::string& path) {
    const desktop::File* found = world().file(path);
    return found != nullptr && !found->directory;
}

/// The file that a command line starts: what stands in quotes, else the shortest of its beginnings, up to a
/// blank, that is a file, with ".exe" behind it if need be. Empty if there is none.
std::string programOf(std::string_view commandLine) {
    if (commandLine.starts_with('"')) {
        const std::string quoted(commandLine.substr(1, commandLine.find('"', 1) - 1));
        return isFile(quoted) ? quoted : std::string();
    }
    for (std::size_t end = 0; end < commandLine.size();) {
        end = std::min(commandLine.find(' ', end + 1), commandLine.size());
        const std::string beginning(commandLine.substr(0, end));
        for (const std::string& file : {beginning, beginning + ".exe"})
            if (isFile(file))
                return file;
    }
    return {};
}

/// What stands behind the program in a command line, without the blanks around it.
std::string parametersOf(std::string_view commandLine, const std::string& program) {
    std::size_t end = 0;
    if (commandLine.starts_with('"')) {
        end = commandLine.find('"', 1);
        end = end == std::string_view::npos ? commandLine.size() : end + 1;
    } else {
        const std::string_view typed = commandLine.substr(0, program.size());
        const bool whole = desktop::pathKey(std::string(typed)) == desktop::pathKey(program);
        constexpr std::size_t ending = 4;
        end = whole ? program.size() : program.size() - ending;
    }
    return std::string(runtime::trim(commandLine.substr(end)));
}

} // namespace

namespace desktop {

void World::answerQuestion(bool yes) {
    const ShellExecution& asked = questions.back();
    if (yes)
        started.push_back({asked.file + " " + asked.parameters, asked.command, asked.file});
}

} // namespace desktop

namespace platform {

void shell(std::string_view commandLine, int windowStyle) {
    const desktop::Call call("shell");
    if (call.fails())
        throw runtime::RuntimeError(runtime::ErrorNumber::fileNotFound);
    desktop::World& desk = world();
    if (!desk.shellFailures.empty()) {
        const runtime::RuntimeError failure = desk.shellFailures.front();
        desk.shellFailures.pop_front();
        throw failure;
    }
    const std::string program = desk.reach(std::string(commandLine)) ? programOf(commandLine) : std::string();
    if (program.empty())
        throw runtime::RuntimeError(runtime::ErrorNumber::fileNotFound);
    if (desk.needMoreRights.contains(desktop::pathKey(program))) {
        desk.questions.push_back(
            {HWND::none, "Open", program, parametersOf(commandLine, program), "", windowStyle});
        return;
    }
    desk.started.push_back({std::string(commandLine), windowStyle, program});
}

void appActivate(std::string_view title) {
    const desktop::Call call("appActivate");
    if (call.fails())
        throw runtime::RuntimeError(runtime::ErrorNumber::invalidCall);
    const std::string wanted = runtime::lowerCase(title);
    world().activations.emplace_back(title);
    HWND found = firstWindow([&](const std::string& seen) { return seen == wanted; });
    if (found == HWND::none)
        found = firstWindow([&](const std::string& seen) { return seen.starts_with(wanted); });
    if (found == HWND::none)
        throw runtime::RuntimeError(runtime::ErrorNumber::invalidCall);
    world().raise(found);
    world().foreground = found;
}

bool previousInstance() {
    const desktop::Call call("previousInstance");
    if (call.fails())
        return false;
    return world().otherInstance;
}

void endProgram() {
    for (const HWND host : world().disabledHosts)
        if (desktop::Window* window = world().find(host))
            window->enabled = true;
    throw desktop::ProgramEnded();
}

} // namespace platform
