// What the program tells and asks the user of the simulated desktop.
#include "platform/dialogs.h"

#include "desktop/desktop.h"
#include "desktop/faults.h"
#include "desktop/systemDialog.h"
#include "forms/form.h"

namespace {

using desktop::world;

/// The innermost modal form, unless it does not hear the user just now: then the message is nobody's.
platform::HWND ownerOfMessage() {
    if (world().modalForms.empty())
        return platform::HWND::none;
    const desktop::Window* modal = world().find(world().modalForms.back()->hWnd());
    return modal != nullptr && modal->visible && modal->enabled ? modal->handle : platform::HWND::none;
}

} // namespace

namespace platform {

int msgBox(std::string_view text, int style, std::string_view title) {
    const desktop::Call call("msgBox");
    if (call.fails())
        return 0;
    desktop::World& desk = world();
    desk.messageBoxes.push_back({std::string(text), style, std::string(title)});
    desktop::whileUp(ownerOfMessage(), desk.onMessage);
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
    const desktop::Call call("inputBox");
    if (call.fails())
        return {};
    desktop::World& desk = world();
    desk.inputBoxes.push_back({std::string(prompt), std::string(title)});
    if (desk.inputAnswers.empty())
        return {};
    const std::string answer = desk.inputAnswers.front();
    desk.inputAnswers.pop_front();
    return answer;
}

void beep() {
    ++world().beeps;
}

} // namespace platform
