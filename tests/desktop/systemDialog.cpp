#include "desktop/systemDialog.h"

#include "desktop/desktop.h"

namespace {

/// Disables the owner's top window from its making on.
class OwnerDisabled {
  public:
    explicit OwnerDisabled(platform::HWND owner) {
        desktop::World& desk = desktop::world();
        desktop::Window* root = desk.find(desk.rootOf(owner));
        if (root == nullptr || !desk.answers(root->handle))
            return;
        if (!root->enabled) {
            desk.foundDisabled.push_back(root->handle);
            foundDisabled_ = true;
        } else {
            root->enabled = false;
            desk.disabledHosts.push_back(root->handle);
            disabled_ = root->handle;
        }
    }
    void close() const {
        if (desktop::Window* root = desktop::world().find(disabled_))
            root->enabled = true;
        std::erase(desktop::world().disabledHosts, disabled_);
        if (foundDisabled_)
            desktop::world().bringOthersToFront();
    }

  private:
    platform::HWND disabled_ = platform::HWND::none;
    bool foundDisabled_ = false;
};

} // namespace

namespace desktop {

void whileUp(platform::HWND owner, const std::function<void()>& during) {
    const OwnerDisabled disabled(owner);
    if (const auto running = during)
        running();
    if (world().ended)
        throw ProgramEnded();
    disabled.close();
}

} // namespace desktop
