// The user's answers, program starts, keys and the end of the program on the simulated desktop.
#include "platform/system.h"

#include "desktop/desktop.h"

#include "runtime/text.h"

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

} // namespace

namespace platform {

int msgBox(std::string_view text, int style, std::string_view title) {
    desktop::World& desk = world();
    desk.messageBoxes.push_back({std::string(text), style, std::string(title)});
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
    desk.started.push_back({std::string(commandLine), windowStyle});
    if (!desk.shellFailures.empty()) {
        const runtime::RuntimeError failure = desk.shellFailures.front();
        desk.shellFailures.pop_front();
        throw failure;
    }
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

double twipsPerPixelX() {
    return 15;
}

} // namespace platform
