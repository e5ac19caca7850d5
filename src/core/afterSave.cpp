// What stands in EAGLE's windows follows a save of the setup, where the settings ask for it.
#include "core/hauptform.h"
#include "platform/user32.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <vector>

namespace core {

namespace {

using Windows = std::vector<platform::HWND>;

int collect(platform::HWND window, std::intptr_t into) {
    std::bit_cast<Windows*>(into)->push_back(window);
    return 1;
}

} // namespace

void Hauptform::followSave() {
    for (const store::EditorKind kind : store::editorKinds)
        store::loadList(kind);
    // A toolbar that finds its height raises its host: from the back to the front the hosts keep their order.
    Windows inOrder;
    platform::EnumWindows(collect, std::bit_cast<std::intptr_t>(&inOrder));
    std::ranges::reverse(inOrder);
    for (const platform::HWND host : inOrder)
        for (const store::EditorKind kind : store::editorKinds)
            for (const auto& toolbar : toolbarsOf(kind))
                if (toolbar->eagHND == host && platform::IsWindow(toolbar->window()))
                    toolbar->rebuild();
    for (const auto& calculator : calculators)
        if (calculator != nullptr)
            calculator->followSave();
}

} // namespace core
