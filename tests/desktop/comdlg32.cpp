#include "platform/comdlg32.h"

#include "desktop/desktop.h"
#include "desktop/faults.h"
#include "desktop/systemDialog.h"

#include <cstring>

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
    desktop::World& desk = desktop::world();
    desk.fileDialogs.push_back({save, record.hwndOwner, doubleEnded(record.lpstrFilter),
                                ended(record.lpstrFile), record.nMaxFile, ended(record.lpstrInitialDir),
                                ended(record.lpstrTitle), record.Flags, ended(record.lpstrDefExt),
                                record.lStructSize, record.nFilterIndex});
    desktop::whileUp(record.hwndOwner, desk.onFileDialog);
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

namespace platform {

int GetOpenFileNameA(OPENFILENAMEA& record) {
    const desktop::Call call("GetOpenFileNameA");
    if (call.fails())
        return 0;
    return fileDialog(record, false);
}

int GetSaveFileNameA(OPENFILENAMEA& record) {
    const desktop::Call call("GetSaveFileNameA");
    if (call.fails())
        return 0;
    return fileDialog(record, true);
}

} // namespace platform
