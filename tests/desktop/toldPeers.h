// What controls tell their windows. On the simulated desktop only forms and frames have one; as long as one
// of these is there, each other control that is placed on a loaded form has a peer as well, which only
// listens.
#pragma once

#include "forms/control.h"

#include <memory>
#include <vector>

namespace desktop {

class ToldPeers {
  public:
    ToldPeers();
    ~ToldPeers();
    ToldPeers(const ToldPeers&) = delete;
    ToldPeers& operator=(const ToldPeers&) = delete;

    /// What the window of this control has been told, in order.
    std::vector<forms::Property> told(const forms::Control& control) const;
    /// As if nothing had been told yet.
    void forget();

    /// How often a window was to do what it had put off.
    int caughtUp = 0;
    /// Those whose windows were to take the keyboard, in order.
    std::vector<const forms::Control*> focused;

  private:
    friend void noteTold(const forms::Control& control, forms::Property property);

    struct Change {
        const forms::Control* control;
        forms::Property property;
    };
    std::vector<Change> changes_;
};

/// A window has been told of a change.
void noteTold(const forms::Control& control, forms::Property property);

/// None unless somebody listens.
std::unique_ptr<forms::Peer> listeningPeer(const forms::Control& control);

} // namespace desktop
