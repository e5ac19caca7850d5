#include "platform/comdlg32.h"

#include "win32/common/components.h"
#include "win32/common/native.h"
#include "win32/common/systemDialog.h"
#include "win32/common/systemLibrary.h"
#include "win32/platform/hosts.h"
#include "win32/platform/paths.h"

#include <windows.h>

#include <commdlg.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>

namespace {

std::string_view textOf(const char* text) {
    return text == nullptr ? std::string_view() : std::string_view(text);
}

/// What the dialog begins with: nothing where the path's host does not answer, since the dialog would look
/// there on our thread.
std::string_view reachable(const char* path) {
    const std::string_view text = textOf(path);
    return win32::hostAnswers(text) ? text : std::string_view();
}

/// A list of texts, each ended by NUL and the whole by one more.
std::string_view listOf(const char* list) {
    const char* end = list;
    while (end != nullptr && *end != '\0')
        end += std::strlen(end) + 1;
    return list == nullptr ? std::string_view() : std::string_view(list, end);
}

/// The path that was chosen, in the caller's buffer. False if it does not fit there in the code page.
bool takeOver(const wchar_t* chosen, platform::OPENFILENAMEA& record) {
    const std::string text = win32::pathText(chosen);
    if (text.size() >= record.nMaxFile)
        return false;
    record.lpstrFile[text.copy(record.lpstrFile, text.size())] = '\0';
    return true;
}

using Dialog = BOOL(WINAPI*)(LPOPENFILENAMEW);

/// Bound when one is needed: with it come libraries of which an icon in the tray has no use, printers among
/// them.
Dialog dialogOf(const char* name) {
    return win32::routineOf<Dialog>(win32::systemLibrary(L"comdlg32.dll"), name);
}

int show(const char* name, platform::OPENFILENAMEA& record) {
    const Dialog dialog = dialogOf(name);
    if (dialog == nullptr)
        return 0;
    win32::keepComponents();
    ::OPENFILENAMEW made{};
    // The first version of the record, which the logic states at its 32-bit size.
    made.lStructSize = OPENFILENAME_SIZE_VERSION_400W;
    const std::wstring filter = win32::widePath(listOf(record.lpstrFilter));
    const std::wstring folder = win32::widePath(reachable(record.lpstrInitialDir));
    const std::wstring title = win32::widePath(textOf(record.lpstrTitle));
    const std::wstring extension = win32::widePath(textOf(record.lpstrDefExt));
    std::wstring file = win32::widePath(reachable(record.lpstrFile));
    file.resize(std::max<std::size_t>(file.size() + 1, record.nMaxFile));
    made.lpstrFilter = record.lpstrFilter == nullptr ? nullptr : filter.c_str();
    made.nFilterIndex = record.nFilterIndex;
    made.lpstrFile = file.data();
    made.nMaxFile = static_cast<DWORD>(file.size());
    made.lpstrInitialDir = record.lpstrInitialDir == nullptr ? nullptr : folder.c_str();
    made.lpstrTitle = record.lpstrTitle == nullptr ? nullptr : title.c_str();
    made.Flags = record.Flags;
    made.lpstrDefExt = record.lpstrDefExt == nullptr ? nullptr : extension.c_str();
    const win32::SystemDialog shown(win32::native(record.hwndOwner));
    made.hwndOwner = shown.owner();
    return dialog(&made) != FALSE && takeOver(file.c_str(), record) ? 1 : 0;
}

} // namespace

namespace platform {

int GetOpenFileNameA(OPENFILENAMEA& record) {
    return show("GetOpenFileNameW", record);
}

int GetSaveFileNameA(OPENFILENAMEA& record) {
    return show("GetSaveFileNameW", record);
}

} // namespace platform
