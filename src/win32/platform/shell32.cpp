#include "platform/shell32.h"

#include "win32/common/holding.h"
#include "win32/common/native.h"
#include "win32/platform/iconChooser.h"
#include "win32/platform/patience.h"

#include <windows.h>

#include <objbase.h>
#include <shellapi.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <memory>
#include <string>

namespace {

struct Opening {
    platform::HWND owner;
    std::string verb;
    std::string file;
    std::string parameters;
    std::string folder;
    int command;
    std::intptr_t result = 0;
};

/// On a thread of its own.
void open(Opening& opening) {
    const HRESULT prepared = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
    SHELLEXECUTEINFOA call{};
    call.cbSize = sizeof call;
    // No message of the shell's own; the thread ends behind the call.
    call.fMask = SEE_MASK_FLAG_NO_UI | SEE_MASK_NOASYNC;
    call.hwnd = win32::native(opening.owner);
    call.lpVerb = opening.verb.c_str();
    call.lpFile = opening.file.c_str();
    call.lpParameters = opening.parameters.c_str();
    call.lpDirectory = opening.folder.c_str();
    call.nShow = opening.command;
    ShellExecuteExA(&call);
    opening.result = reinterpret_cast<std::intptr_t>(call.hInstApp);
    if (SUCCEEDED(prepared))
        CoUninitialize();
}

/// An icon at one size; null if it cannot be had. The size is asked for in pixels: the system's own measures
/// change when a window of ours goes into a host that knows of another resolution.
::HICON iconAt(const char* file, std::int32_t index, int side) {
    ::HICON icon = nullptr;
    UINT number = 0;
    const UINT extracted = PrivateExtractIconsA(file, index, side, side, &icon, &number, 1, 0);
    // A file that cannot be read gives the largest number. Wine leaves anything in the handle when it fails.
    return extracted == 0 || extracted == UINT_MAX ? nullptr : icon;
}

/// Older than the system's present record: the shell takes it with the version that its size tells.
NOTIFYICONDATAA trayRecord(const platform::NOTIFYICONDATA& record) {
    NOTIFYICONDATAA made{};
    made.cbSize = NOTIFYICONDATAA_V1_SIZE;
    made.hWnd = win32::native(record.hWnd);
    made.uID = record.uID;
    made.uFlags = record.uFlags;
    made.uCallbackMessage = record.uCallbackMessage;
    made.hIcon = reinterpret_cast<HICON>(record.hIcon);
    static_assert(sizeof made.szTip >= sizeof record.szTip);
    std::copy(std::begin(record.szTip), std::end(record.szTip), made.szTip);
    return made;
}

} // namespace

namespace platform {

std::uint32_t ExtractIconExA(const char* file, std::int32_t index, HICON& largeIcon, HICON& smallIcon) {
    constexpr int largeSide = 32;
    constexpr int smallSide = 16;
    const ::HICON large = iconAt(file, index, largeSide);
    const ::HICON little = iconAt(file, index, smallSide);
    if (large == nullptr || little == nullptr) {
        ::DestroyIcon(large);
        ::DestroyIcon(little);
        return 0;
    }
    largeIcon = HICON{reinterpret_cast<std::uintptr_t>(large)};
    smallIcon = HICON{reinterpret_cast<std::uintptr_t>(little)};
    return 1;
}

int iconCount(const char* file) {
    constexpr int all = -1;
    const UINT count = ::ExtractIconExA(file, all, nullptr, nullptr, 0);
    return count > INT_MAX ? 0 : static_cast<int>(count);
}

int PickIconDlg(HWND owner, std::string& file, std::int32_t& index) {
    constexpr WORD ordinal = 62; // it has no name
    const FARPROC found = GetProcAddress(GetModuleHandleA("shell32.dll"), MAKEINTRESOURCEA(ordinal));
    if (found == nullptr)
        return noIconChooser;
    win32::IconChooser choose = nullptr;
    static_assert(sizeof choose == sizeof found);
    std::memcpy(&choose, &found, sizeof choose);
    const win32::Hold hold;
    return win32::callIconChooser(choose, win32::native(owner), file, index);
}

bool Shell_NotifyIconA(std::uint32_t message, const NOTIFYICONDATA& record) {
    NOTIFYICONDATAA native = trayRecord(record);
    return ::Shell_NotifyIconA(message, &native) != FALSE;
}

std::intptr_t ShellExecuteA(HWND owner, const char* verb, const char* file, const char* parameters,
                            const char* folder, int command) {
    // No path is longer, and hardly an address; Wine's shell writes beyond its buffers from some 1,600
    // characters on.
    constexpr std::size_t longestFile = 1500;
    constexpr std::size_t longestParameters = 32767;
    if (std::strlen(file) > longestFile || std::strlen(parameters) > longestParameters)
        return SE_ERR_FNF;
    const auto opening = std::make_shared<Opening>(Opening{owner, verb, file, parameters, folder, command});
    // What is not open by then is still being opened.
    return win32::doPatiently([opening] { open(*opening); }) ? opening->result : SE_ERR_DDEBUSY;
}

HICON programIcon() {
    static const auto icon =
        LoadImageA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(1), IMAGE_ICON, GetSystemMetrics(SM_CXSMICON),
                   GetSystemMetrics(SM_CYSMICON), LR_SHARED);
    return HICON{reinterpret_cast<std::uintptr_t>(icon)};
}

} // namespace platform
