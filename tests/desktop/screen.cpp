#include "platform/screen.h"

#include "desktop/desktop.h"
#include "desktop/faults.h"

namespace {

using desktop::world;

} // namespace

namespace platform {

int screenWidth() {
    const desktop::Call call("screenWidth");
    if (call.fails())
        return 0;
    return world().screenWidth;
}

int screenHeight() {
    const desktop::Call call("screenHeight");
    if (call.fails())
        return 0;
    return world().screenHeight;
}

RECT workArea() {
    const desktop::Call call("workArea");
    if (call.fails())
        return {0, 0, world().screenWidth, world().screenHeight};
    return world().workArea;
}

RECT workAreaAt(const RECT& place) {
    const desktop::Call call("workAreaAt");
    if (call.fails())
        return workArea();
    return world().workAreaAt(place);
}

int screenDpi() {
    const desktop::Call call("screenDpi");
    if (call.fails())
        return 0;
    return world().awareness == desktop::Awareness::unaware ? forms::Resolution::designDpi
                                                            : world().screens.front().dpi;
}

void resetMousePointer() {
    world().waitingPointer = false;
}

} // namespace platform
