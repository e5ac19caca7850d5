#include "platform/shortcut.h"

#include "desktop/desktop.h"
#include "desktop/faults.h"

namespace desktop {

void World::addShortcut(const std::string& path, const std::string& target, const std::string& arguments) {
    writeFile(path, "shortcut");
    shortcuts[pathKey(path)] = {target, arguments};
}

} // namespace desktop

namespace platform {

std::optional<Shortcut> readShortcut(std::string_view path) {
    const desktop::Call call("readShortcut");
    if (call.fails())
        return {};
    desktop::World& desk = desktop::world();
    const std::string whole(path);
    const auto found = desk.shortcuts.find(desktop::pathKey(whole));
    if (!desk.reach(whole) || desk.file(whole) == nullptr || found == desk.shortcuts.end())
        return {};
    return found->second;
}

} // namespace platform
