// The launcher: starts EAGLE or brings a running one to the front.
#pragma once

namespace core {

/// Not built yet: does nothing.
void startEagle();

} // namespace core
