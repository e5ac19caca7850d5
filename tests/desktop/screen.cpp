#include "platform/screen.h"

#include "desktop/desktop.h"
#include "desktop/faults.h"

namespace {

using desktop::world;

} // namespace

namespace platform {

int screenWidth() {
    if (desktop::Call("screenWidth").fails())
        return 0;
    return world().screenWidth;
}

int screenHeight() {
    if (desktop::Call("screenHeight").fails())
        return 0;
    return world().screenHeight;
}

RECT workArea() {
    if (desktop::Call("workArea").fails())
        return {0, 0, world().screenWidth, world().screenHeight};
    return world().workArea;
}

RECT workAreaAt(const RECT& place) {
    if (desktop::Call("workAreaAt").fails())
        return workArea();
    return world().workAreaAt(place);
}

int screenDpi() {
    if (desktop::Call("screenDpi").fails())
        return 0;
    return world().awareness == desktop::Awareness::unaware ? forms::Resolution::designDpi
                                                            : world().screens.front().dpi;
}

void resetMousePointer() {
    world().waitingPointer = false;
}

} // namespace platform
