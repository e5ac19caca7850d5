#include "forms/form.h"

#include "forms/toolbar.h"
#include "forms/units.h"

#include <algorithm>

namespace forms {

namespace {

/// Holds a flag up for the length of a block, whichever way it is left.
class Raised {
  public:
    explicit Raised(bool& flag) : flag_(flag) { flag_ = true; }
    ~Raised() { flag_ = false; }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;

  private:
    bool& flag_;
};

} // namespace

Form::~Form() {
    // Here and not later: the window's last messages must still find a form.
    Container::dropPeers();
}

void Form::setClientSize(float width, float height) {
    const FrameExtent frame = frameExtent(*this);
    assignSize(toTwips(toPixels(width) + frame.width), toTwips(toPixels(height) + frame.height));
}

void Form::setCaption(std::string_view caption) {
    caption_ = std::string(caption);
    tellPeer(Property::text);
}

void Form::load() {
    if (loaded_)
        return;
    loaded_ = true;
    if (centreOnScreen) {
        const ScreenSize screen = screenSize();
        Position centred = position();
        centred.left = toTwips((screen.width - toPixels(width())) / 2);
        centred.top = toTwips((screen.height - toPixels(height())) / 2);
        storePosition(centred);
    }
    {
        const Raised loading(loading_);
        makePeers();
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
}

void Form::hide() {
    setVisible(false);
}

void Form::unload() {
    if (!loaded_ || unloading_)
        return;
    const Raised unloading(unloading_);
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
    if (wantedWidth == toPixels(this->width()) && wantedHeight == toPixels(this->height()))
        return;
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
        align(*child);
}

void Form::childPlaced(Control& child) {
    align(child);
}

void Form::align(Control& child) {
    if (child.kind() == ControlKind::toolbar && static_cast<Toolbar&>(child).alignTop)
        child.setPosition({0, 0, scaleWidth_, child.height()});
}

} // namespace forms
