// The user's answers, program starts, keys and the end of the program on the simulated desktop.
#include "platform/system.h"

#include "desktop/desktop.h"

#include "runtime/text.h"

#include <algorithm>

namespace {

using desktop::world;

/// Handle of the first top-level window that `fits`; none if there is none.
template <typename Test>
platform::HWND firstWindow(Test fits) {
    for (const platform::HWND handle : world().order)
        if (fits(runtime::lowerCase(world().window(handle).title)))
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

} // namespace

namespace platform {

int msgBox(std::string_view text, int style, std::string_view title) {
    desktop::World& desk = world();
    desk.messageBoxes.push_back({std::string(text), style, std::string(title)});
    if (const auto during = desk.onMessage)
        during();
    if (!desk.messageAnswers.empty()) {
        const int answer = desk.messageAnswers.front();
        desk.messageAnswers.pop_front();
        return answer;
    }
    if (++desk.unansweredMessages >= 10)
        throw desktop::Stuck("the same kind of message comes up for ever");
    return style == 4 ? 7 : 1;
}

std::string inputBox(std::string_view prompt, std::string_view title) {
    desktop::World& desk = world();
    desk.inputBoxes.push_back({std::string(prompt), std::string(title)});
    if (desk.inputAnswers.empty())
        return {};
    const std::string answer = desk.inputAnswers.front();
    desk.inputAnswers.pop_front();
    return answer;
}

void shell(std::string_view commandLine, int windowStyle) {
    desktop::World& desk = world();
    if (!desk.shellFailures.empty()) {
        const runtime::RuntimeError failure = desk.shellFailures.front();
        desk.shellFailures.pop_front();
        throw failure;
    }
    const std::string program = programOf(commandLine);
    if (program.empty())
        throw runtime::RuntimeError(runtime::ErrorNumber::fileNotFound);
    desk.started.push_back({std::string(commandLine), windowStyle, program});
}

void appActivate(std::string_view title) {
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

void sendKeys(std::span<const runtime::KeyStroke> strokes, bool wait) {
    world().typed.push_back({world().foreground, {strokes.begin(), strokes.end()}, wait});
}

void doEvents() {
    ++world().messagePumps;
    if (const auto pending = world().onPump)
        pending();
}

bool previousInstance() {
    return world().otherInstance;
}

void endProgram() {
    throw desktop::ProgramEnded();
}

void beep() {
    ++world().beeps;
}

forms::Picture loadPicture(std::string_view name) {
    const auto plain = [](int width, int height) {
        const auto pixels = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
        return forms::Picture(width, height, std::vector<std::uint32_t>(pixels, 0xFF336699U));
    };
    if (name == "splashSquare")
        return plain(93, 93);
    if (name == "splashWide")
        return plain(361, 76);
    return {};
}

double twipsPerPixelX() {
    return 15;
}

} // namespace platform
