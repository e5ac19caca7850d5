#include "desktop/desktop.h"

#include "desktop/faults.h"
#include "desktop/modules.h"
#include "runtime/characters.h"
#include "runtime/guard.h"

#include <algorithm>

namespace desktop {

namespace {
std::unique_ptr<World> theWorld;
} // namespace

World& world() {
    if (!theWorld)
        theWorld = std::make_unique<World>();
    return *theWorld;
}

Session::Session() {
    resetModules();
    theWorld = std::make_unique<World>();
}

// The forms must not outlive their desktop.
Session::~Session() {
    resetModules();
}

World::World() = default;
World::~World() = default;

HWND World::openWindow(const std::string& title, RECT rect, std::uint32_t process) {
    Window made;
    made.title = title;
    made.rect = rect;
    made.process = process;
    const HWND handle = addWindow(std::move(made));
    foreground = handle;
    return handle;
}

HWND World::addWindow(Window made) {
    made.handle = nextHandle != HWND::none ? nextHandle : HWND{nextWindow_ += 4};
    nextHandle = HWND::none;
    const HWND handle = made.handle;
    if (made.parent == HWND::none)
        order.insert(order.begin(), handle);
    else
        window(made.parent).children.insert(window(made.parent).children.begin(), handle);
    windows_[handle] = std::move(made);
    return handle;
}

HWND World::makeGhost(HWND hung) {
    Window ghost;
    ghost.title = window(hung).title + " (Not Responding)";
    ghost.className = ghostClass;
    ghost.rect = window(hung).rect;
    constexpr std::uint32_t windowManager = 4;
    ghost.process = windowManager;
    const HWND made = addWindow(std::move(ghost));
    std::erase(order, made);
    order.insert(std::ranges::find(order, hung), made);
    window(hung).visible = false;
    return made;
}

void World::endGhost(HWND ghost, HWND awake) {
    closeWindow(ghost);
    window(awake).visible = true;
}

Window* World::find(HWND handle) {
    const auto found = windows_.find(handle);
    return found == windows_.end() ? nullptr : &found->second;
}

Window& World::window(HWND handle) {
    Window* found = find(handle);
    if (found == nullptr)
        throw std::logic_error("the test asks for a window that is not there");
    return *found;
}

void World::closeWindow(HWND handle) {
    if (find(handle) == nullptr)
        return;
    while (!window(handle).children.empty())
        closeWindow(window(handle).children.front());
    const Window gone = window(handle);
    auto& siblings = gone.parent == HWND::none ? order : window(gone.parent).children;
    std::erase(siblings, handle);
    windows_.erase(handle);
    if (foreground == handle)
        foreground = order.empty() ? HWND::none : order.front();
    if (gone.destroyed)
        gone.destroyed(gone);
}

bool World::creates(Creation kind) {
    const auto left = room.find(kind);
    if (left == room.end())
        return true;
    const bool made = left->second > 0 && left->second-- > 0;
    if (!made && kind == Creation::window)
        lastRefusal = now;
    return made;
}

void World::resizeWindow(HWND handle, int width, int height) {
    Window& sized = window(handle);
    const int oldWidth = sized.rect.right - sized.rect.left;
    const int oldHeight = sized.rect.bottom - sized.rect.top;
    sized.rect.right = sized.rect.left + width;
    sized.rect.bottom = sized.rect.top + height;
    if ((width != oldWidth || height != oldHeight) && sized.resized) {
        const auto resized = sized.resized;
        resized(sized);
    }
}

void World::raise(HWND handle) {
    const Window& raised = window(handle);
    auto& siblings = raised.parent == HWND::none ? order : window(raised.parent).children;
    std::erase(siblings, handle);
    siblings.insert(siblings.begin(), handle);
}

void World::show(HWND handle, bool visible) {
    Window& shown = window(handle);
    (shown.refused ? shown.toBeSeen : shown.visible) = visible;
}

bool World::isSeen(HWND handle) {
    for (const Window* seen = find(handle); seen != nullptr && seen->visible; seen = find(seen->parent))
        if (seen->parent == HWND::none)
            return true;
    return false;
}

HWND World::rootOf(HWND handle) {
    while (find(handle) != nullptr && window(handle).parent != HWND::none)
        handle = window(handle).parent;
    return handle;
}

void World::bringOthersToFront() {
    const auto first = std::ranges::find_if(order, [this](HWND handle) {
        return window(handle).process != programProcess && window(handle).visible && window(handle).enabled;
    });
    foreground = first == order.end() ? HWND::none : *first;
}

bool World::put(HWND child, HWND parent) {
    if (const Window* host = find(parent); host != nullptr && host->dying)
        closeWindow(parent);
    Window& moved = window(child);
    for (HWND above = parent; above != HWND::none; above = window(above).parent)
        if (find(above) == nullptr || window(above).elevated || above == child)
            return false;
    const int before = dpiSeen(moved.awareness, child);
    auto& from = moved.parent == HWND::none ? order : window(moved.parent).children;
    std::erase(from, child);
    auto& to = parent == HWND::none ? order : window(parent).children;
    to.insert(to.begin(), child);
    moved.parent = parent;
    if (const Window* host = find(parent); host != nullptr && host->awareness != moved.awareness) {
        moved.awareness = host->awareness;
        awareness = host->awareness;
        ++awarenessResets;
    }
    // Its place, which was one in its parent, is one on a screen from now on.
    if (parent == HWND::none)
        comeTo(child, screenAt(moved.rect), before);
    return true;
}

int World::dpiSeen(Awareness by, HWND handle) {
    constexpr int coarsest = 96;
    switch (by) {
    case Awareness::unaware:
        return coarsest;
    case Awareness::system:
        return screens.front().dpi;
    case Awareness::perMonitor:
        break;
    }
    return screens.at(window(rootOf(handle)).screen).dpi;
}

void World::moveToScreen(HWND handle, std::size_t screen, int left, int top) {
    Window& moved = window(handle);
    const int before = dpiSeen(moved.awareness, handle);
    const int width = moved.rect.right - moved.rect.left;
    const int height = moved.rect.bottom - moved.rect.top;
    moved.rect = {left, top, left + width, top + height};
    if (moved.moved)
        moved.moved(moved);
    comeTo(handle, screen, before);
}

void World::comeTo(HWND handle, std::size_t screen, int before) {
    Window& moved = window(handle);
    moved.screen = screen;
    const int dpi = dpiSeen(moved.awareness, handle);
    if (dpi == before || before <= 0 || !moved.dpiChanged)
        return;
    const auto [left, top, right, bottom] = moved.rect;
    const auto dpiChanged = moved.dpiChanged;
    dpiChanged(dpi, {left, top, left + (right - left) * dpi / before, top + (bottom - top) * dpi / before});
}

std::size_t World::screenAt(const RECT& place) const {
    for (std::size_t number = 1; number < screens.size(); ++number) {
        const RECT& area = screens[number].workArea;
        if (place.left >= area.left && place.left < area.right && place.top >= area.top &&
            place.top < area.bottom)
            return number;
    }
    return 0;
}

RECT World::workAreaAt(const RECT& place) const {
    const std::size_t screen = screenAt(place);
    return screen == 0 ? workArea : screens[screen].workArea;
}

RECT World::screenRect(HWND handle) {
    const Window& seen = window(handle);
    RECT rect = seen.rect;
    if (seen.parent != HWND::none) {
        const Window& parent = window(seen.parent);
        const RECT outer = screenRect(seen.parent);
        const int side = parent.frameWidth / 2;
        const int top = parent.frameHeight - side;
        rect.left += outer.left + side;
        rect.right += outer.left + side;
        rect.top += outer.top + top;
        rect.bottom += outer.top + top;
    }
    return rect;
}

void World::killProcess(std::uint32_t id) {
    std::erase_if(processes, [id](const Process& process) { return process.id == id; });
    const std::vector<HWND> all = order;
    for (const HWND handle : all)
        if (find(handle) != nullptr && window(handle).process == id)
            closeWindow(handle);
}

bool World::event(const std::function<void()>& code) {
    if (ended)
        return false;
    owedKeyboard = HWND::none;
    try {
        const Turn programs(true);
        runtime::guarded(code);
    } catch (const ProgramEnded&) {
        ended = true;
        timers.clear();
    }
    return !ended;
}

void World::run(std::int64_t milliseconds) {
    const std::int64_t limit = now + milliseconds;
    try {
        while (!ended && fireNext(limit)) {
        }
    } catch (const ProgramEnded&) {
        ended = true;
        timers.clear();
    }
    now = std::max(now, limit);
    wake();
}

bool World::fireNext(std::int64_t limit) {
    const auto first = std::min_element(timers.begin(), timers.end(),
                                        [](const auto& a, const auto& b) { return a.due < b.due; });
    if (first == timers.end() || first->due > limit)
        return false;
    now = std::max(now, first->due);
    wake();
    first->due = now + first->timer->interval();
    forms::Timer* const timer = first->timer;
    owedKeyboard = HWND::none;
    const Turn programs(true);
    runtime::guarded([timer] { timer->elapsed(); });
    return true;
}

std::string TypedKeys::text() const {
    std::u32string result;
    for (const platform::KeyStroke& stroke : strokes)
        result += stroke.key == platform::Key::enter ? U'\n' : stroke.character;
    return runtime::fromUtf32(result);
}

} // namespace desktop

namespace forms {

void timerChanged(Timer& timer) {
    const desktop::Turn desktops(false);
    auto& timers = desktop::world().timers;
    std::erase_if(timers, [&timer](const auto& state) { return state.timer == &timer; });
    if (timer.enabled() && timer.interval() > 0)
        timers.push_back({&timer, desktop::world().now + timer.interval()});
}

void runModal(Form& form) {
    const desktop::Turn desktops(false);
    desktop::World& world = desktop::world();
    if (form.hWnd() == platform::HWND::none)
        return;
    world.modalForms.push_back(&form);
    struct Pop {
        ~Pop() {
            desktop::world().modalForms.pop_back();
            for (const platform::HWND window : held)
                if (desktop::Window* found = desktop::world().find(window))
                    found->enabled = true;
        }
        std::vector<platform::HWND> held; ///< what the user cannot reach meanwhile
    } pop;
    for (const platform::HWND window : world.order)
        if (desktop::Window& other = world.window(window);
            other.process == desktop::programProcess && window != form.hWnd() && other.enabled) {
            other.enabled = false;
            pop.held.push_back(window);
        }
    if (desktop::Window* own = world.find(form.hWnd()))
        own->enabled = true;
    if (!world.modalScripts.empty()) {
        const auto script = world.modalScripts.front();
        world.modalScripts.pop_front();
        const desktop::Turn programs(true);
        runtime::guarded([&] { script(form); });
    }
    // Far enough for any form that closes itself; a form that needs a user who does not come is stuck.
    const std::int64_t limit = world.now + 60'000;
    while (form.visible() && form.hWnd() != platform::HWND::none)
        if (!world.fireNext(limit))
            throw desktop::Stuck("a modal form is up and nobody closes it");
}

} // namespace forms
