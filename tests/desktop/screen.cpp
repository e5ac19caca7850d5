#include "platform/screen.h"

#include "desktop/desktop.h"

namespace {

using desktop::world;

} // namespace

namespace platform {

int screenWidth() {
    return world().screenWidth;
}

int screenHeight() {
    return world().screenHeight;
}

RECT workArea() {
    return world().workArea;
}

void resetMousePointer() {
    world().waitingPointer = false;
}

} // namespace platform
