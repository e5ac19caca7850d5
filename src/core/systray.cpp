// The tray icon of Hauptform.
#include "core/hauptform.h"
#include "platform/shell32.h"

#include <algorithm>

namespace core {

namespace {

constexpr std::uint32_t addIcon = 0;
constexpr std::uint32_t deleteIcon = 2;

platform::NOTIFYICONDATA trayRecord(platform::HWND window, const std::string& tip) {
    platform::NOTIFYICONDATA record;
    record.hWnd = window;
    record.uID = 2;
    constexpr std::uint32_t messageIconAndTip = 7;
    record.uFlags = messageIconAndTip;
    // The mouse-move message: the tray's messages arrive as mouse moves over the text box.
    constexpr std::uint32_t mouseMove = 512;
    record.uCallbackMessage = mouseMove;
    record.hIcon = platform::programIcon();
    std::fill(std::begin(record.szTip), std::end(record.szTip), ' ');
    const std::size_t length = std::min(tip.size(), sizeof record.szTip - 1);
    tip.copy(record.szTip, length);
    record.szTip[length] = '\0';
    return record;
}

} // namespace

void Hauptform::addSystray() {
    trayRecord_ = trayRecord(txtTooltip.hWnd(), txtTooltip.text());
    platform::Shell_NotifyIconA(addIcon, trayRecord_);
}

void Hauptform::delSystray() {
    platform::Shell_NotifyIconA(deleteIcon, trayRecord_);
}

} // namespace core
