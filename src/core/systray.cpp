// The tray icon of Hauptform and its menu.
#include "core/frmMenu.h"
#include "core/hauptform.h"
#include "platform/shell32.h"
#include "runtime/numbers.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>

namespace core {

namespace {

constexpr std::uint32_t addIcon = 0;
constexpr std::uint32_t deleteIcon = 2;

/// While the shell is busy, as it is at logon, it refuses icons: so often is it asked again, once a second.
constexpr int mostTries = 120;

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
    trayTries_ = 0;
    tryAddSystray();
}

void Hauptform::tryAddSystray() {
    const bool added = platform::Shell_NotifyIconA(addIcon, trayRecord_);
    ++trayTries_;
    tmrSystray.setEnabled(!added && trayTries_ < mostTries);
}

void Hauptform::delSystray() {
    tmrSystray.setEnabled(false);
    platform::Shell_NotifyIconA(deleteIcon, trayRecord_);
}

void Hauptform::Form_TaskbarCreated() {
    // Only what has been added before is added again.
    if (trayTries_ > 0)
        addSystray();
}

void Hauptform::txtTooltip_MouseMove(float x) {
    // What the tray sends stands in the low half of the message's second number, where a mouse move has its
    // pixel column: the mouse message times 15.
    constexpr std::int32_t leftReleased = 0x1E1E;
    constexpr std::int32_t rightReleased = 0x1E4B;
    const std::int32_t message = runtime::roundToInt32(x);
    if (message == leftReleased || message == rightReleased)
        forms::popUp(*this, menuForm().mnuTaskbarG);
}

} // namespace core
