#include "win32/common/droppedFiles.h"

#include "win32/platform/paths.h"

#include <shellapi.h>

namespace win32 {

namespace {

/// In which the system hands the list of files over to another process.
constexpr UINT copyGlobalData = 0x0049;

constexpr UINT allFiles = 0xFFFFFFFF;

/// The innermost window at a place, which is in client pixels of the outer one.
HWND windowAt(HWND outer, POINT place) {
    for (;;) {
        const HWND inner = ChildWindowFromPointEx(outer, place, CWP_SKIPINVISIBLE);
        if (inner == nullptr || inner == outer)
            return outer;
        MapWindowPoints(outer, inner, &place, 1);
        outer = inner;
    }
}

} // namespace

void takeFiles(HWND window) {
    DragAcceptFiles(window, TRUE);
    for (const UINT message :
         {static_cast<UINT>(WM_DROPFILES), static_cast<UINT>(WM_COPYDATA), copyGlobalData})
        ChangeWindowMessageFilterEx(window, message, MSGFLT_ALLOW, nullptr);
}

std::vector<std::string> droppedFiles(WPARAM wParam) {
    auto* const drop = reinterpret_cast<HDROP>(wParam);
    std::vector<std::string> files;
    const UINT count = DragQueryFileW(drop, allFiles, nullptr, 0);
    for (UINT number = 0; number < count; ++number) {
        std::wstring path(DragQueryFileW(drop, number, nullptr, 0) + 1, L'\0');
        path.resize(DragQueryFileW(drop, number, path.data(), static_cast<UINT>(path.size())));
        files.push_back(pathText(path));
    }
    DragFinish(drop);
    return files;
}

void passFilesOn(HWND form, WPARAM wParam) {
    auto* const drop = reinterpret_cast<HDROP>(wParam);
    POINT place = {};
    DragQueryPoint(drop, &place);
    const HWND meant = windowAt(form, place);
    if (meant != form && (GetWindowLongA(meant, GWL_EXSTYLE) & WS_EX_ACCEPTFILES) != 0)
        SendMessageA(meant, WM_DROPFILES, wParam, 0);
    else
        DragFinish(drop);
}

} // namespace win32
