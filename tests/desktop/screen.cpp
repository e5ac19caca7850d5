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

void resetMousePointer() {
    world().waitingPointer = false;
}

} // namespace platform
