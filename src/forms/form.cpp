#include "forms/form.h"

#include "forms/event.h"
#include "forms/mainForm.h"
#include "platform/programs.h"
#include "platform/screen.h"
#include "runtime/raised.h"

#include <algorithm>

namespace forms {

namespace {

/// Where a window of this length begins along one side of the screen, all in pixels: in the middle, but moved
/// as far as it has to be to stand between the two ends. One that is too long keeps its beginning inside,
/// with the title bar.
int centred(int length, int screen, int begin, int end) {
    return std::max(begin, std::min((screen - length) / 2, end - length));
}

} // namespace

Form::~Form() {
    // Here and not later: the window's last messages must still find a form.
    Container::dropPeers();
}

void Form::setClientSize(float width, float height) {
    const FrameExtent frame = frameExtent(*this);
    assignSize(toTwips(toPixels(width) + frame.width), toTwips(toPixels(height) + frame.height));
}

void Form::setResolution(Resolution resolution) {
    adoptResolution(resolution, resolution);
}

void Form::adoptResolution(Resolution resolution, Resolution frame) {
    if (resolution == resolution_ && frame == frameResolution_)
        return;
    const float width = scaleWidth_;
    const float height = scaleHeight_;
    resolution_ = resolution;
    frameResolution_ = frame;
    const FrameExtent extent = frameExtent(*this);
    resolutionChanged();
    assignPixels(toPixels(width) + extent.width, toPixels(height) + extent.height);
    // In a host of the older view of each screen the system draws the frame as the main screen has it.
    // What the client area has got by that would count as assigned on the next screen. The height may be
    // the form's own choice by now.
    if (const int missing = toPixels(width) - toPixels(scaleWidth_); missing != 0)
        assignPixels(toPixels(this->width()) + missing, toPixels(this->height()));
}

Resolution Form::fitting(Resolution screen, const platform::RECT& workArea) const {
    if (screen == Resolution())
        return screen;
    const FrameExtent frame = frameExtent(*this, screen);
    const auto fits = [&](Resolution resolution) {
        return resolution.toPixels(scaleWidth_) + frame.width <= workArea.right - workArea.left &&
               resolution.toPixels(scaleHeight_) + frame.height <= workArea.bottom - workArea.top;
    };
    Resolution found = screen;
    for (int dpi = screen.dpi() - 1; !fits(found) && found != Resolution::reduced(dpi); --dpi)
        found = Resolution::reduced(dpi);
    return found;
}

void Form::screenChanged(Resolution screen, Resolution frame, const platform::RECT& place) {
    if (!followsScreen)
        return;
    const Resolution wanted = fitting(screen, platform::workAreaAt(place));
    // Its old place is not to be taken for one in the new pixels.
    Position moved = position();
    moved.left = wanted.toTwips(place.left);
    moved.top = wanted.toTwips(place.top);
    storePosition(moved);
    if (wanted == resolution_ && frame == frameResolution_)
        tellPeer(Property::position);
    else
        adoptResolution(wanted, frame);
}

void Form::load() {
    if (loaded_)
        return;
    loaded_ = true;
    if (followsScreen) {
        const Resolution screen(platform::screenDpi());
        adoptResolution(fitting(screen, platform::workArea()), screen);
    }
    if (centreOnScreen) {
        const platform::RECT area = platform::workArea();
        Position place = position();
        place.left = toTwips(centred(toPixels(width()), platform::screenWidth(), area.left, area.right));
        place.top = toTwips(centred(toPixels(height()), platform::screenHeight(), area.top, area.bottom));
        storePosition(place);
    }
    {
        const runtime::Raised loading(loading_);
        makePeers();
        // Half a form is no use to anybody, and a host would have to bear it.
        if (!windowsMade())
            windowLost();
    }
    Form_Load();
}

void Form::show() {
    load();
    // Form_Load may have unloaded it.
    if (loaded_)
        setVisible(true);
}

void Form::showModal() {
    show();
    if (visible())
        runModal(*this);
    if (!loaded_ || !lost())
        return;
    // Nobody could see it, or it has gone with its owner: made anew the next time.
    setVisible(false);
    dropPeers();
    loaded_ = false;
}

void Form::hide() {
    setVisible(false);
}

void Form::unload() {
    if (!loaded_ || unloading_)
        return;
    const runtime::Raised unloading(unloading_);
    bool cancel = false;
    Form_QueryUnload(cancel);
    if (cancel)
        return;
    Form_Unload();
    // Hidden before it goes, so that a modal loop gives the other forms back while the window still stands.
    setVisible(false);
    dropPeers();
    loaded_ = false;
}

void Form::closeRequested() {
    unload();
    if (this == mainForm && !loaded_)
        platform::endProgram();
}

void Form::helpRequested() {
    raise(onHelp);
}

platform::HWND Form::window() {
    load();
    return hWnd();
}

void Form::setPosition(const Position& position) {
    Position moved = this->position();
    moved.left = position.left;
    moved.top = position.top;
    Container::setPosition(moved);
    assignSize(position.width, position.height);
}

void Form::setMousePointer(MousePointer pointer) {
    if (pointer == mousePointer_)
        return;
    mousePointer_ = pointer;
    tellPeer(Property::mousePointer);
}

void Form::assignSize(float width, float height) {
    const int wantedWidth = std::max(0, toPixels(width));
    const int wantedHeight = std::max(0, toPixels(height));
    if (wantedWidth != toPixels(this->width()) || wantedHeight != toPixels(this->height()))
        assignPixels(wantedWidth, wantedHeight);
}

void Form::assignPixels(int wantedWidth, int wantedHeight) {
    if (hWnd() == platform::HWND::none) {
        const FrameExtent frame = frameExtent(*this);
        adoptSize(wantedWidth, wantedHeight, wantedWidth - frame.width, wantedHeight - frame.height);
        return;
    }
    const Position former = position();
    Position wanted = former;
    wanted.width = toTwips(wantedWidth);
    wanted.height = toTwips(wantedHeight);
    storePosition(wanted);
    sizeAssigned_ = true;
    tellPeer(Property::position);
    if (sizeAssigned_) { // refused
        sizeAssigned_ = false;
        storePosition(former);
    }
}

void Form::windowResized(int outerWidth, int outerHeight, int clientWidth, int clientHeight) {
    const bool same = toTwips(outerWidth) == width() && toTwips(outerHeight) == height() &&
                      toTwips(clientWidth) == scaleWidth_ && toTwips(clientHeight) == scaleHeight_;
    if (same && !sizeAssigned_)
        return;
    sizeAssigned_ = false;
    adoptSize(outerWidth, outerHeight, clientWidth, clientHeight);
    if (!loading_)
        Form_Resize();
}

void Form::windowMoved(int left, int top) {
    Position moved = position();
    moved.left = toTwips(left);
    moved.top = toTwips(top);
    storePosition(moved);
}

void Form::adoptSize(int width, int height, int clientWidth, int clientHeight) {
    Position sized = position();
    sized.width = toTwips(width);
    sized.height = toTwips(height);
    storePosition(sized);
    scaleWidth_ = toTwips(std::max(0, clientWidth));
    scaleHeight_ = toTwips(std::max(0, clientHeight));
    for (Control* child : controls())
        child->containerResized(scaleWidth_);
}

void Form::childPlaced(Control& child) {
    child.containerResized(scaleWidth_);
}

} // namespace forms
