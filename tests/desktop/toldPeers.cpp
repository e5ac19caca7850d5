#include "desktop/toldPeers.h"

namespace desktop {

namespace {

ToldPeers* listener = nullptr;

class ListeningPeer : public forms::Peer {
  public:
    explicit ListeningPeer(const forms::Control& control) : control_(control) {}

    platform::HWND window() const override { return platform::HWND{1}; }
    void changed(forms::Property property) override { noteTold(control_, property); }
    void setFocus() override {
        if (listener != nullptr)
            listener->focused.push_back(&control_);
    }
    void catchUp() override {
        if (listener != nullptr)
            ++listener->caughtUp;
    }

  private:
    const forms::Control& control_;
};

} // namespace

ToldPeers::ToldPeers() {
    listener = this;
}

ToldPeers::~ToldPeers() {
    listener = nullptr;
}

std::vector<forms::Property> ToldPeers::told(const forms::Control& control) const {
    std::vector<forms::Property> found;
    for (const Change& change : changes_)
        if (change.control == &control)
            found.push_back(change.property);
    return found;
}

void ToldPeers::forget() {
    changes_.clear();
    caughtUp = 0;
    focused.clear();
}

void noteTold(const forms::Control& control, forms::Property property) {
    if (listener != nullptr)
        listener->changes_.push_back({&control, property});
}

std::unique_ptr<forms::Peer> listeningPeer(const forms::Control& control) {
    return listener == nullptr ? nullptr : std::make_unique<ListeningPeer>(control);
}

} // namespace desktop
