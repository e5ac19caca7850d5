// Windows of forms and frames on the simulated desktop, and drawing surfaces. Other controls need no window
// here: a test does to them what a user would do by calling what their window would call.
#include "desktop/desktop.h"
#include "desktop/faults.h"
#include "desktop/surfaces.h"
#include "desktop/toldPeers.h"

#include "forms/frame.h"
#include "forms/menu.h"
#include "forms/surface.h"

#include <algorithm>

namespace desktop {

namespace {

RECT pixelRect(const forms::Control& control) {
    const forms::Resolution resolution = control.resolution();
    const int left = resolution.toPixels(control.left());
    const int top = resolution.toPixels(control.top());
    return {left, top, left + resolution.toPixels(control.width()),
            top + resolution.toPixels(control.height())};
}

/// What the system draws around a form.
forms::FrameExtent drawnFrame(const forms::Form& form) {
    return world().framesOfMainScreen
               ? forms::frameExtent(form, forms::Resolution(world().screens.front().dpi))
               : forms::frameExtent(form);
}

class WindowPeer : public forms::Peer {
  public:
    explicit WindowPeer(forms::Control& control) : control_(control), position_(pixelRect(control)) {
        Window made;
        made.rect = position_;
        made.process = programProcess;
        made.awareness = world().awareness;
        made.visible = control.visible();
        made.enabled = control.enabled();
        made.destroyed = [this](const Window& gone) { died(gone.parent); };
        if (auto* form = dynamic_cast<forms::Form*>(&control)) {
            const forms::FrameExtent extent = drawnFrame(*form);
            made.frameWidth = extent.width;
            made.frameHeight = extent.height;
            made.title = form->caption();
            made.owner = form->ownerWindow;
            made.moved = [this, form](const Window& window) {
                const Turn programs(true);
                form->windowMoved(window.rect.left, window.rect.top);
                position_ = pixelRect(*form);
            };
            made.dpiChanged = [form](int dpi, const RECT& suggested) {
                form->screenChanged(forms::Resolution(dpi), forms::Resolution(dpi), suggested);
            };
            made.resized = [form](const Window& window) {
                const Turn programs(true);
                const int width = window.rect.right - window.rect.left;
                const int height = window.rect.bottom - window.rect.top;
                form->windowResized(width, height, std::max(0, width - window.frameWidth),
                                    std::max(0, height - window.frameHeight));
            };
        } else {
            made.frameWidth = 0;
            made.frameHeight = 0;
            made.parent = control.form()->hWnd();
            if (made.parent == HWND::none)
                return;
        }
        if (!world().creates(Creation::window))
            return;
        form_ = made.parent;
        handle_ = world().addWindow(std::move(made));
    }

    ~WindowPeer() override {
        const Turn desktops(false);
        if (Window* window = world().find(handle_)) {
            window->destroyed = nullptr;
            world().closeWindow(handle_);
        }
    }

    HWND window() const override { return handle_; }

    void changed(forms::Property property) override {
        const Turn desktops(false);
        noteTold(control_, property);
        Window* window = world().find(handle_);
        if (window == nullptr)
            return;
        if (property == forms::Property::enabled)
            window->enabled = control_.enabled();
        if (property == forms::Property::visible)
            world().show(handle_, control_.visible());
        if (property == forms::Property::text)
            if (const auto* form = dynamic_cast<forms::Form*>(&control_))
                window->title = form->caption();
        const bool anew = property == forms::Property::resolution;
        if (const auto* form = dynamic_cast<forms::Form*>(&control_); form != nullptr && anew) {
            // The system draws title bar and frame as large as the screen has them.
            window->frameWidth = drawnFrame(*form).width;
            window->frameHeight = drawnFrame(*form).height;
        }
        if (property == forms::Property::position || (anew && control_.kind() == forms::ControlKind::frame))
            move(*window);
    }

  private:
    /// With its host. A form whose frame has died elsewhere is of no more use.
    void died(HWND stoodIn) {
        const HWND idle = stoodIn == form_ ? HWND::none : form_;
        handle_ = HWND::none;
        if (control_.peer() == this)
            control_.windowLost(); // and this peer is gone
        world().closeWindow(idle);
    }

    /// Only what has been assigned moves: a frame does not hear where others have put its window.
    void move(Window& window) {
        const RECT wanted = pixelRect(control_);
        const int dx = wanted.left != position_.left ? wanted.left - window.rect.left : 0;
        const int dy = wanted.top != position_.top ? wanted.top - window.rect.top : 0;
        position_ = wanted;
        window.rect.left += dx;
        window.rect.right += dx;
        window.rect.top += dy;
        window.rect.bottom += dy;
        world().resizeWindow(handle_, wanted.right - wanted.left, wanted.bottom - wanted.top);
    }

    forms::Control& control_;
    RECT position_;
    HWND handle_ = HWND::none;
    HWND form_ = HWND::none; ///< window of the form that a frame stands on
};

std::map<std::uintptr_t, Pixels*>& surfaces() {
    static std::map<std::uintptr_t, Pixels*> all;
    return all;
}

} // namespace

Pixels* pixelsOf(platform::HDC dc) {
    const auto found = surfaces().find(static_cast<std::uintptr_t>(dc));
    return found == surfaces().end() ? nullptr : found->second;
}

std::size_t surfaceCount() {
    return surfaces().size();
}

} // namespace desktop

namespace forms {

std::unique_ptr<Peer> makePeer(Control& control) {
    const desktop::Turn desktops(false);
    if (control.kind() != ControlKind::form && control.kind() != ControlKind::frame)
        return desktop::listeningPeer(control);
    if (control.kind() == ControlKind::frame && control.form() == nullptr)
        return nullptr;
    return std::make_unique<desktop::WindowPeer>(control);
}

FrameExtent frameExtent(const Form& form) {
    return frameExtent(form, form.frameResolution());
}

FrameExtent frameExtent(const Form& form, Resolution resolution) {
    switch (form.borderStyle) {
    case BorderStyle::none:
        return {0, 0};
    case BorderStyle::sizableToolWindow:
        return {resolution.scaled(2 * 4), resolution.scaled(4 + 18 + 4)};
    case BorderStyle::fixedSingle:
    case BorderStyle::fixedDialog:
        break;
    }
    return {resolution.scaled(2 * 3), resolution.scaled(3 + 23 + 3)};
}

void popUp(Form& /*owner*/, Menu& menu) {
    desktop::world().menuOpened(menu);
}

struct Surface::Impl {
    desktop::Pixels pixels;
    std::uintptr_t dc = 0;
};

Surface::Surface(int width, int height, Colour colour) : impl_(std::make_unique<Impl>()) {
    const desktop::Turn desktops(false);
    static std::uintptr_t next = 0;
    impl_->dc = ++next;
    if (!desktop::world().creates(desktop::Creation::picture))
        return;
    impl_->pixels.width = width;
    impl_->pixels.height = height;
    impl_->pixels.values.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    desktop::surfaces()[impl_->dc] = &impl_->pixels;
    clear(colour);
}

Surface::~Surface() {
    desktop::surfaces().erase(impl_->dc);
}

platform::HDC Surface::dc() const {
    return platform::HDC{impl_->dc};
}

void Surface::clear(Colour colour) {
    for (std::uint32_t& value : impl_->pixels.values)
        value = opaque | colour;
}

Picture Surface::copy() const {
    return {impl_->pixels.width, impl_->pixels.height, impl_->pixels.values};
}

} // namespace forms
