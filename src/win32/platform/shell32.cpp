#include "platform/shell32.h"

#include "forms/iconDirectory.h"
#include "runtime/text.h"
#include "win32/common/components.h"
#include "win32/common/native.h"
#include "win32/common/owned.h"
#include "win32/platform/hosts.h"
#include "win32/platform/iconChooser.h"
#include "win32/platform/iconFile.h"
#include "win32/platform/iconSizes.h"
#include "win32/platform/leftOpen.h"
#include "win32/platform/opening.h"
#include "win32/platform/paths.h"
#include "win32/platform/tray.h"

#include <windows.h>

#include <shellapi.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <memory>
#include <optional>
#include <string>

namespace {

/// What is read of one file's icon: no more than is taken of it outlives it.
struct ExtractedIcon {
    win32::Owned<::HICON> large;
    win32::Owned<::HICON> little;
};

/// The icon with a number in a file, at the sizes that are asked for. These are told in pixels: the system's
/// own measures change when a window of ours goes into a host that knows of another resolution.
class IconSource {
  public:
    /// `smallSide`: the size of its small icon.
    IconSource(const std::string& file, std::int32_t index, int smallSide)
        : path_(win32::widePath(file)), index_(index), smallSide_(smallSide) {
        if (index == 0 && (!atDesign() || win32::namesIconFile(path_)))
            file_ = win32::IconFile::read(path_);
    }

    /// Null if it cannot be had.
    ::HICON at(int side) const {
        if (file_)
            return file_->icon(side);
        ::HICON icon = nullptr;
        UINT number = 0;
        const UINT extracted = PrivateExtractIconsW(path_.c_str(), index_, side, side, &icon, &number, 1, 0);
        // A file that cannot be read gives the largest number. Wine leaves anything in the handle when it
        // fails.
        return extracted == 0 || extracted == UINT_MAX ? nullptr : icon;
    }

    /// On a screen of more than 96 dpi, where the file has none of the size, made of the next larger one: the
    /// system would stretch the nearest, which may be a smaller one.
    ::HICON little() const {
        if (atDesign())
            return at(smallSide_);
        forms::IconDirectory directory;
        if (file_)
            directory = file_->directory();
        else if (index_ >= 0)
            directory = win32::directoryInLibrary(path_, index_);
        const int best = forms::bestIconSide(directory, smallSide_);
        win32::Owned<::HICON> icon(at(best));
        if (icon == nullptr || best == smallSide_)
            return icon.release();
        return win32::scaledIcon(icon.get(), smallSide_);
    }

  private:
    bool atDesign() const { return smallSide_ == platform::smallIconSide; }

    std::wstring path_;
    std::int32_t index_;
    int smallSide_;
    std::optional<win32::IconFile> file_;
};

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

std::uint32_t ExtractIconExA(const char* file, std::int32_t index, HICON& largeIcon, HICON& smallIcon,
                             int smallSide) {
    win32::endLastLargeIcon();
    const auto icon = std::make_shared<ExtractedIcon>();
    const bool asked = win32::askHost(file, [path = std::string(file), index, smallSide, icon] {
        if (!win32::fileAnswers(path))
            return false;
        const IconSource source(path, index, smallSide);
        icon->large.reset(source.at(largeIconSide));
        icon->little.reset(source.little());
        return true;
    });
    if (!asked || icon->large == nullptr || icon->little == nullptr)
        return 0;
    win32::keepLargeIcon(icon->large.get());
    largeIcon = HICON{reinterpret_cast<std::uintptr_t>(icon->large.release())};
    smallIcon = HICON{reinterpret_cast<std::uintptr_t>(icon->little.release())};
    return 1;
}

int iconCount(const char* file) {
    constexpr int all = -1;
    const auto count = std::make_shared<UINT>(0);
    const bool asked = win32::askHost(file, [path = std::string(file), count] {
        if (!win32::fileAnswers(path))
            return false;
        *count = ::ExtractIconExW(win32::widePath(path).c_str(), all, nullptr, nullptr, 0);
        return true;
    });
    return !asked || *count > INT_MAX ? 0 : static_cast<int>(*count);
}

int PickIconDlg(HWND owner, std::string& file, std::int32_t& index) {
    constexpr WORD ordinal = 62; // it has no name
    const FARPROC found = GetProcAddress(GetModuleHandleA("shell32.dll"), MAKEINTRESOURCEA(ordinal));
    if (found == nullptr)
        return noIconChooser;
    win32::IconChooser choose = nullptr;
    static_assert(sizeof choose == sizeof found);
    std::memcpy(&choose, &found, sizeof choose);
    return win32::callIconChooser(choose, win32::native(owner), file, index);
}

bool Shell_NotifyIconA(std::uint32_t message, const NOTIFYICONDATA& record) {
    NOTIFYICONDATAA native = trayRecord(record);
    return win32::notifyShell(message, native);
}

std::intptr_t ShellExecuteA(HWND owner, const char* verb, const char* file, const char* parameters,
                            const char* folder, int command) {
    // No path is longer, and hardly an address; Wine's shell writes beyond its buffers from some 1,600
    // characters on.
    constexpr std::size_t longestFile = 1500;
    constexpr std::size_t longestParameters = 32767;
    if (std::strlen(file) > longestFile || std::strlen(parameters) > longestParameters)
        return SE_ERR_FNF;
    // Without a file the shell would open the current folder.
    if (runtime::trim(file).empty())
        return SE_ERR_FNF;
    win32::keepComponents();
    const auto opening = std::make_shared<win32::Opening>(
        win32::Opening{owner, verb, file, parameters, folder, command, SE_ERR_FNF});
    // What cannot be reached is not left to the shell, which has a longer breath.
    const bool look = !win32::hostOf(file).empty();
    const bool asked = win32::askHostInTurn(file, [opening, look] {
        return (!look || win32::fileAnswers(opening->file)) && win32::open(*opening);
    });
    // What is not open by then may still come.
    return asked ? opening->result : SE_ERR_DDEBUSY;
}

HICON programIcon() {
    static ::HANDLE icon = nullptr;
    // Not a shared one: that has the size in which it was first asked for.
    if (icon == nullptr)
        icon = LoadImageA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(1), IMAGE_ICON, smallIconSide,
                          smallIconSide, LR_DEFAULTCOLOR);
    return HICON{reinterpret_cast<std::uintptr_t>(icon)};
}

} // namespace platform
