// Icons of files, the icon chooser, the file dialogs, the help viewer and the opening of files of the
// simulated desktop.
#include "desktop/desktop.h"

#include "platform/comdlg32.h"
#include "platform/hhctrl.h"
#include "platform/shell32.h"

#include <algorithm>
#include <cstring>

namespace desktop {

forms::Picture World::iconPicture(const std::string& path, int index) {
    std::uint32_t colour = 17;
    for (const char character : pathKey(path))
        colour = colour * 31 + static_cast<unsigned char>(character);
    colour = (colour * 31 + static_cast<std::uint32_t>(index)) & 0x7F7F7FU;
    return {16, 16, std::vector<std::uint32_t>(256, 0xFF000000U | colour)};
}

void World::addIcons(const std::string& path, int count) {
    if (file(path) == nullptr)
        writeFile(path, "MZ");
    for (int index = 0; index < count; ++index)
        iconFiles[pathKey(path)].small.push_back(iconPicture(path, index));
}

namespace {

/// A list that is ended by two NULs.
std::string doubleEnded(const char* text) {
    if (text == nullptr)
        return {};
    std::size_t length = 0;
    while (text[length] != '\0' || text[length + 1] != '\0')
        ++length;
    return {text, length};
}

std::string ended(const char* text) {
    return text == nullptr ? std::string() : std::string(text);
}

int fileDialog(platform::OPENFILENAMEA& record, bool save) {
    World& desk = world();
    desk.fileDialogs.push_back({save, record.hwndOwner, doubleEnded(record.lpstrFilter),
                                ended(record.lpstrFile), record.nMaxFile, ended(record.lpstrInitialDir),
                                ended(record.lpstrTitle), record.Flags, ended(record.lpstrDefExt),
                                record.lStructSize, record.nFilterIndex});
    if (desk.onFileDialog)
        desk.onFileDialog();
    if (desk.fileAnswers.empty())
        return 0;
    const std::optional<std::string> answer = desk.fileAnswers.front();
    desk.fileAnswers.pop_front();
    // The platform refuses a path that does not fit with its buffer error, which looks like a cancel.
    if (!answer || answer->size() + 1 > record.nMaxFile)
        return 0;
    std::memcpy(record.lpstrFile, answer->c_str(), answer->size() + 1);
    return 1;
}

} // namespace

} // namespace desktop

namespace platform {

std::uint32_t ExtractIconExA(const char* file, std::int32_t index, HICON& largeIcon, HICON& smallIcon) {
    desktop::World& desk = desktop::world();
    const auto found = desk.iconFiles.find(desktop::pathKey(file));
    if (found == desk.iconFiles.end() || index < 0 ||
        static_cast<std::size_t>(index) >= found->second.small.size())
        return 0;
    const forms::Picture& picture = found->second.small[static_cast<std::size_t>(index)];
    largeIcon = HICON{desk.nextIcon};
    desk.icons[desk.nextIcon++] = picture;
    smallIcon = HICON{desk.nextIcon};
    desk.icons[desk.nextIcon++] = picture;
    return 1;
}

int iconCount(const char* file) {
    const auto& files = desktop::world().iconFiles;
    const auto found = files.find(desktop::pathKey(file));
    return found == files.end() ? 0 : static_cast<int>(found->second.small.size());
}

int PickIconDlg(HWND owner, std::span<char16_t> file, std::int32_t& index) {
    desktop::World& desk = desktop::world();
    const auto end = std::find(file.begin(), file.end(), u'\0');
    desk.chooserCalls.push_back({owner, {file.begin(), end}, file.size(), index});
    if (desk.chooserAnswers.empty())
        return -1;
    const auto answer = desk.chooserAnswers.front();
    desk.chooserAnswers.pop_front();
    std::fill(file.begin(), file.end(), u'\0');
    std::copy_n(answer.file.begin(), std::min(answer.file.size(), file.size() - 1), file.begin());
    index = answer.index;
    return answer.result;
}

bool Shell_NotifyIconA(std::uint32_t message, const NOTIFYICONDATA& record) {
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
    desktop::World& desk = desktop::world();
    desk.executed.push_back({owner, verb, file, parameters, folder, command});
    constexpr std::intptr_t fileNotFound = 2;
    constexpr std::intptr_t success = 42;
    if (desk.file(file) == nullptr)
        return fileNotFound;
    desk.started.push_back({std::string(file) + " " + parameters, command, file});
    return success;
}

HWND HtmlHelpA(HWND owner, const char* file, std::uint32_t command, std::uintptr_t data) {
    desktop::World& desk = desktop::world();
    desk.helpCalls.push_back({owner, file, command, data});
    if (desk.helpFailures > 0) {
        --desk.helpFailures;
        throw runtime::RuntimeError(runtime::ErrorNumber::fileNotFound);
    }
    return HWND::none;
}

HICON programIcon() {
    return HICON{0x42};
}

int GetOpenFileNameA(OPENFILENAMEA& record) {
    return desktop::fileDialog(record, false);
}

int GetSaveFileNameA(OPENFILENAMEA& record) {
    return desktop::fileDialog(record, true);
}

} // namespace platform
