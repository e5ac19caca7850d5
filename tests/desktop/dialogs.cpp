// What the program tells and asks the user of the simulated desktop.
#include "platform/dialogs.h"

#include "desktop/desktop.h"
#include "desktop/faults.h"

namespace {

using desktop::world;

} // namespace

namespace platform {

int msgBox(std::string_view text, int style, std::string_view title) {
    const desktop::Call call("msgBox");
    if (call.fails())
        return 0;
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
