// Programs that take no messages for a time.
#include "desktop/desktop.h"

#include <algorithm>

namespace desktop {

namespace {

constexpr std::int64_t patience = 200;      // milliseconds that the program waits for an answer
constexpr std::int64_t knownToHang = 5'000; // from then on the system answers for it at once
constexpr std::int64_t betweenLooks = 50;

} // namespace

void World::hang(HWND hung, std::int64_t milliseconds) {
    hangs_[window(hung).process] = {now, now + milliseconds, false, {}};
}

bool World::hangs(HWND asked) {
    wake();
    const Window* found = find(asked);
    return found != nullptr && hangs_.contains(found->process);
}

bool World::answers(HWND asked) {
    if (!hangs(asked))
        return find(asked) != nullptr;
    Hang& hang = hangs_.at(window(asked).process);
    hang.missed = true;
    if (now - hang.since >= knownToHang)
        return false;
    now = std::min(now + patience, hang.until);
    return !hangs(asked);
}

bool World::isJoined(std::uint32_t process) {
    return std::ranges::any_of(windows_, [&](const auto& one) {
        return one.second.process == programProcess && window(rootOf(one.first)).process == process;
    });
}

void World::partFromSilentHosts() {
    wake();
    std::vector<HWND> asked;
    for (const HWND host : order)
        if (const auto hang = hangs_.find(window(host).process);
            hang != hangs_.end() && !hang->second.missed && isJoined(hang->first))
            asked.push_back(host);
    for (const HWND host : asked)
        if (hangs(host) && !hangs_.at(window(host).process).missed)
            static_cast<void>(answers(host));
}

void World::leaveTo(HWND told, const std::function<void()>& change) {
    if (hangs(told))
        if (const Hang& hang = hangs_.at(window(told).process);
            !hang.missed && isJoined(window(told).process)) {
            now = hang.until;
            wake();
        }
    whenAwake(told, change);
}

void World::whenAwake(HWND told, const std::function<void()>& change) {
    if (hangs(told))
        hangs_.at(window(told).process).changes.push_back(change);
    else
        change();
}

void World::wake() {
    for (auto hang = hangs_.begin(); hang != hangs_.end();) {
        if (hang->second.until > now) {
            ++hang;
            continue;
        }
        const std::vector<std::function<void()>> changes = std::move(hang->second.changes);
        hang = hangs_.erase(hang);
        for (const auto& change : changes)
            change();
    }
}

void World::serveUntil(const std::function<bool()>& condition, std::int64_t milliseconds) {
    const std::int64_t limit = now + milliseconds;
    while (!condition() && now < limit) {
        const std::int64_t next = std::min(now + betweenLooks, limit);
        while (fireNext(next)) {
        }
        now = std::max(now, next);
    }
}

} // namespace desktop
