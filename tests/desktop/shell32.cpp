// Icons of files, the icon chooser, the tray and the opening of files on the simulated desktop.
#include "platform/shell32.h"

#include "desktop/desktop.h"
#include "desktop/faults.h"
#include "desktop/systemDialog.h"
#include "platform/codePage.h"
#include "runtime/text.h"

namespace desktop {

forms::Picture World::iconPicture(const std::string& path, int index) {
    std::uint32_t colour = 17;
    for (const char character : pathKey(path))
        colour = colour * 31 + static_cast<unsigned char>(character);
    colour = (colour * 31 + static_cast<std::uint32_t>(index)) & 0x7F7F7FU;
    return {16, 16, std::vector<std::uint32_t>(256, forms::opaque | colour)};
}

void World::addIcons(const std::string& path, int count) {
    if (file(path) == nullptr)
        writeFile(path, "MZ");
    for (int index = 0; index < count; ++index)
        iconFiles[pathKey(path)].small.push_back(iconPicture(path, index));
}

} // namespace desktop

namespace platform {

std::uint32_t ExtractIconExA(const char* file, std::int32_t index, HICON& largeIcon, HICON& smallIcon,
                             int smallSide) {
    const desktop::Call call("ExtractIconExA");
    if (call.fails())
        return 0;
    desktop::World& desk = desktop::world();
    const auto found = desk.iconFiles.find(desktop::pathKey(file));
    if (!desk.reach(file) || found == desk.iconFiles.end() || index < 0 ||
        static_cast<std::size_t>(index) >= found->second.small.size() ||
        !desk.creates(desktop::Creation::icon) || !desk.creates(desktop::Creation::icon))
        return 0;
    const forms::Picture& picture = found->second.small[static_cast<std::size_t>(index)];
    largeIcon = HICON{desk.nextIcon};
    desk.icons[desk.nextIcon++] = picture;
    smallIcon = HICON{desk.nextIcon};
    desk.icons[desk.nextIcon++] = picture.fitted(smallSide, smallSide);
    return 1;
}

int iconCount(const char* file) {
    const desktop::Call call("iconCount");
    if (call.fails())
        return 0;
    const auto& files = desktop::world().iconFiles;
    const auto found = files.find(desktop::pathKey(file));
    return !desktop::world().reach(file) || found == files.end()
               ? 0
               : static_cast<int>(found->second.small.size());
}

int PickIconDlg(HWND owner, std::string& file, std::int32_t& index) {
    const desktop::Call call("PickIconDlg");
    if (call.fails())
        return 0;
    desktop::World& desk = desktop::world();
    const std::string reached = desk.reach(file) ? file : std::string();
    const std::u16string start = toUtf16(runtime::untilNul(reached)).substr(0, iconPathSize - 1);
    desk.chooserCalls.push_back({owner, start, iconPathSize, index});
    if (desk.chooserAnswers.empty())
        return noIconChooser;
    desktop::whileUp(owner, desk.onFileDialog);
    const auto answer = desk.chooserAnswers.front();
    desk.chooserAnswers.pop_front();
    if (answer.result == iconPicked) {
        file = runtime::untilNul(toAnsi(std::u16string_view(answer.file).substr(0, iconPathSize)));
        index = answer.index;
    }
    return answer.result;
}

bool Shell_NotifyIconA(std::uint32_t message, const NOTIFYICONDATA& record) {
    const desktop::Call call("Shell_NotifyIconA");
    if (call.fails())
        return false;
    desktop::World& desk = desktop::world();
    desk.note("Shell_NotifyIcon " + std::to_string(message));
    if (message == 0 && !desk.trayRefuses)
        desk.trayIcon = record;
    if (message == 2)
        desk.trayIcon.reset();
    return !desk.trayRefuses;
}

std::intptr_t ShellExecuteA(HWND owner, const char* verb, const char* file, const char* parameters,
                            const char* folder, int command) {
    const desktop::Call call("ShellExecuteA");
    if (call.fails())
        return 0;
    desktop::World& desk = desktop::world();
    desk.executed.push_back({owner, verb, file, parameters, folder, command});
    constexpr std::intptr_t fileNotFound = 2;
    constexpr std::intptr_t success = 42;
    if (!desk.reach(file) || desk.file(file) == nullptr)
        return fileNotFound;
    desk.started.push_back({std::string(file) + " " + parameters, command, file});
    return success;
}

HICON programIcon() {
    const desktop::Call call("programIcon");
    if (call.fails())
        return HICON::none;
    return HICON{0x42};
}

} // namespace platform
