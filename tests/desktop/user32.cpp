#include "platform/user32.h"

#include "platform/awareness.h"

#include "desktop/codePage.h"
#include "desktop/desktop.h"
#include "desktop/faults.h"
#include "desktop/surfaces.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

using desktop::Window;
using desktop::world;

std::string number(std::intptr_t value) {
    return std::to_string(value);
}

std::string number(platform::HWND window) {
    return std::to_string(static_cast<std::uintptr_t>(window));
}

void noteCall(const char* name, std::initializer_list<std::string> arguments) {
    std::string call = name;
    for (const std::string& argument : arguments)
        call += " " + argument;
    world().note(call);
}

void raise(platform::HWND window) {
    world().partFromSilentHosts();
    world().leaveTo(window, [window] {
        if (world().find(window) != nullptr)
            world().raise(window);
    });
}

/// A pixel with another one drawn over it, as far as that is opaque.
std::uint32_t covered(std::uint32_t below, std::uint32_t above) {
    constexpr std::uint32_t opaque = 0xFF;
    const std::uint32_t opacity = above >> 24U;
    std::uint32_t result = opaque << 24U;
    for (const unsigned shift : {0U, 8U, 16U}) {
        const std::uint32_t mixed =
            (above >> shift & 0xFFU) * opacity + (below >> shift & 0xFFU) * (opaque - opacity);
        result |= (mixed + opaque / 2) / opaque << shift;
    }
    return result;
}

/// What the thread sees of a length that a window sees, and the way back.
int fromWindow(platform::HWND window, int length) {
    const desktop::Awareness own = world().window(window).awareness;
    if (own == world().awareness)
        return length;
    return length * world().dpiSeen(world().awareness, window) / world().dpiSeen(own, window);
}

int toWindow(platform::HWND window, int length) {
    const desktop::Awareness own = world().window(window).awareness;
    if (own == world().awareness)
        return length;
    return length * world().dpiSeen(own, window) / world().dpiSeen(world().awareness, window);
}

platform::RECT seen(platform::HWND window, const platform::RECT& rect) {
    return {fromWindow(window, rect.left), fromWindow(window, rect.top), fromWindow(window, rect.right),
            fromWindow(window, rect.bottom)};
}

} // namespace

namespace platform {

int dpiOf(HWND window) {
    ++world().resolutionsAsked;
    const desktop::Call call("dpiOf");
    if (call.fails())
        return 0;
    const Window* found = world().find(window);
    return found == nullptr ? 0 : world().dpiSeen(found->awareness, window);
}

InAwarenessOf::InAwarenessOf(HWND window) : former_(static_cast<std::uintptr_t>(world().awareness)) {
    if (const Window* found = world().find(window))
        world().awareness = found->awareness;
}

InAwarenessOf::~InAwarenessOf() {
    world().awareness = static_cast<desktop::Awareness>(former_);
}

bool EnumWindows(EnumWindowsCallback callback, std::intptr_t extra) {
    const desktop::Call call("EnumWindows");
    if (call.fails())
        return false;
    // The platform walks a snapshot too: the callback may open or close windows.
    static std::vector<HWND> snapshot;
    snapshot = world().order;
    for (const HWND window : snapshot)
        if (const Window* seen = world().find(window);
            seen != nullptr && seen->className != desktop::ghostClass)
            if (const desktop::Turn programs(true); callback(window, extra) == 0)
                return false;
    return true;
}

int GetWindowTextA(HWND window, char* text, int size) {
    const desktop::Call call("GetWindowTextA");
    const bool fails = call.fails();
    if (world().onTitleRead)
        world().onTitleRead(window);
    const Window* found = fails ? nullptr : world().find(window);
    if (size <= 0)
        return 0;
    const std::size_t count =
        found == nullptr ? 0 : std::min(found->title.size(), static_cast<std::size_t>(size) - 1);
    if (count > 0)
        std::memcpy(text, found->title.data(), count);
    text[count] = '\0';
    return static_cast<int>(count);
}

int GetWindowTextLengthA(HWND window) {
    const desktop::Call call("GetWindowTextLengthA");
    if (call.fails())
        return 0;
    const Window* found = world().find(window);
    return found == nullptr ? 0 : static_cast<int>(found->title.size());
}

bool IsWindow(HWND window) {
    const desktop::Call call("IsWindow");
    if (call.fails())
        return false;
    return world().find(window) != nullptr;
}

bool IsIconic(HWND window) {
    const Window* found = world().find(window);
    return found != nullptr && found->minimised;
}

bool GetWindowRect(HWND window, RECT& rect) {
    const desktop::Call call("GetWindowRect");
    if (call.fails())
        return false;
    if (world().find(window) == nullptr)
        return false;
    rect = seen(window, world().screenRect(window));
    return true;
}

bool GetClientRect(HWND window, RECT& rect) {
    const desktop::Call call("GetClientRect");
    if (call.fails())
        return false;
    const Window* found = world().find(window);
    if (found == nullptr)
        return false;
    rect = seen(window, {0, 0, std::max(0, found->rect.right - found->rect.left - found->frameWidth),
                         std::max(0, found->rect.bottom - found->rect.top - found->frameHeight)});
    return true;
}

HWND SetParent(HWND child, HWND parent) {
    const desktop::Call call("SetParent");
    const bool refuses = call.fails();
    noteCall("SetParent", {number(child), number(parent)});
    if (world().onSetParent)
        world().onSetParent(parent);
    Window* moved = world().find(child);
    if (moved == nullptr)
        return HWND::none;
    const HWND former = moved->parent;
    const bool done = !refuses && world().put(child, parent);
    if (!done)
        world().lastRefusal = world().now;
    if (!done && !moved->refused) {
        moved->toBeSeen = std::exchange(moved->visible, false);
        moved->refused = true;
    } else if (done && moved->refused && parent != HWND::none) {
        moved->refused = false;
        moved->visible = moved->toBeSeen;
    }
    return done ? former : HWND::none;
}

bool MoveWindow(HWND window, int x, int y, int width, int height, bool repaint) {
    const desktop::Call call("MoveWindow");
    if (call.fails())
        return false;
    noteCall("MoveWindow",
             {number(window), number(x), number(y), number(width), number(height), number(repaint ? 1 : 0)});
    Window* moved = world().find(window);
    if (moved == nullptr || moved->elevated)
        return false;
    x = toWindow(window, x);
    y = toWindow(window, y);
    width = toWindow(window, width);
    height = toWindow(window, height);
    const int oldWidth = moved->rect.right - moved->rect.left;
    const int oldHeight = moved->rect.bottom - moved->rect.top;
    if (moved->process != desktop::programProcess)
        world().partFromSilentHosts();
    world().leaveTo(window, [=] {
        if (Window* awake = world().find(window)) {
            const bool elsewhere = awake->rect.left != x || awake->rect.top != y;
            awake->rect = {x, y, x + oldWidth, y + oldHeight};
            if (elsewhere && awake->moved)
                awake->moved(*awake);
            world().resizeWindow(window, width, height);
        }
    });
    return true;
}

bool SetWindowPos(HWND window, std::intptr_t insertAfter, int x, int y, int width, int height,
                  std::uint32_t flags) {
    const desktop::Call call("SetWindowPos");
    if (call.fails())
        return false;
    noteCall("SetWindowPos", {number(window), number(insertAfter), number(x), number(y), number(width),
                              number(height), number(static_cast<std::intptr_t>(flags))});
    const Window* found = world().find(window);
    if (found == nullptr || found->elevated)
        return false;
    // One of ours that nobody sees takes front and focus from nobody: no other thread has to hear of it.
    if (found->process == desktop::programProcess && !world().isSeen(window))
        world().raise(window);
    else
        raise(window);
    return true;
}

bool BringWindowToTop(HWND window) {
    const desktop::Call call("BringWindowToTop");
    if (call.fails())
        return false;
    noteCall("BringWindowToTop", {number(window)});
    if (world().find(window) == nullptr)
        return false;
    if (world().answers(window))
        world().foreground = window;
    else
        world().owedKeyboard = window;
    raise(window);
    return true;
}

bool ShowWindow(HWND window, int command) {
    const desktop::Call call("ShowWindow");
    if (call.fails())
        return false;
    noteCall("ShowWindow", {number(window), number(command)});
    Window* shown = world().find(window);
    if (shown == nullptr || shown->elevated)
        return false;
    const bool was = shown->visible;
    if (shown->busy)
        return was;
    world().whenAwake(window, [=] {
        if (Window* awake = world().find(window)) {
            world().show(window, command != 0);
            constexpr int minimise = 6;
            if (command == minimise || command == platform::restoreWindow)
                awake->minimised = command == minimise;
        }
    });
    return was;
}

std::intptr_t SendMessageA(HWND window, std::uint32_t message, std::uintptr_t wParam, std::intptr_t lParam) {
    const desktop::Call call("SendMessageA");
    if (call.fails())
        return 0;
    noteCall("SendMessage", {number(window), number(static_cast<std::intptr_t>(message)),
                             number(static_cast<std::intptr_t>(wParam)), number(lParam)});
    if (Window* receiver = world().find(window);
        receiver != nullptr && !receiver->elevated && message == 11) {
        // One that does not answer in time is told without being asked.
        static_cast<void>(world().answers(window));
        world().whenAwake(window, [=] {
            if (Window* awake = world().find(window)) {
                awake->redraw = wParam != 0;
                // The system shows a window whose drawing is switched on, even if it was hidden.
                if (awake->redraw)
                    world().show(window, true);
            }
        });
    }
    return 0;
}

bool RedrawWindow(HWND window, const RECT& rect, std::uint32_t flags) {
    const desktop::Call call("RedrawWindow");
    if (call.fails())
        return false;
    noteCall("RedrawWindow", {number(window), number(rect.right), number(rect.bottom),
                              number(static_cast<std::intptr_t>(flags))});
    return world().find(window) != nullptr;
}

bool DrawIconEx(HDC dc, int x, int y, HICON icon, int width, int height, std::uint32_t /*step*/,
                std::uint32_t flags) {
    const desktop::Call call("DrawIconEx");
    if (call.fails())
        return false;
    desktop::Pixels* target = desktop::pixelsOf(dc);
    const auto found = world().icons.find(static_cast<std::uintptr_t>(icon));
    if (target == nullptr || found == world().icons.end() || width != 0 || height != 0 || flags != 3)
        return false;
    const forms::Picture& picture = found->second;
    for (int row = 0; row < picture.height(); ++row)
        for (int column = 0; column < picture.width(); ++column)
            if (x + column < target->width && y + row < target->height) {
                auto& below =
                    target->values[static_cast<std::size_t>((y + row) * target->width + x + column)];
                below = covered(below, picture.pixel(column, row));
            }
    return true;
}

bool DestroyIcon(HICON icon) {
    const desktop::Call call("DestroyIcon");
    if (call.fails())
        return false;
    return world().icons.erase(static_cast<std::uintptr_t>(icon)) == 1;
}

void CharLowerBuffA(std::span<char> text) {
    desktop::foldCase(text);
}

} // namespace platform
