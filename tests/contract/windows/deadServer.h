// A server of the network that does not answer.
#pragma once

#include "contract/world.h"

#include <cstdint>
#include <string>

namespace contract {

/// From its making to its end what this program asks of the server takes half a minute and fails, as the
/// system has it for one that has been cut off. Calls that the system's own DLLs make are not met, so that
/// the real network is never asked for it either. One at a time.
class DeadServer {
  public:
    DeadServer(const std::string& name, Waiting waiting);
    /// Those who wait for it get their answer.
    ~DeadServer();
    DeadServer(const DeadServer&) = delete;
    DeadServer& operator=(const DeadServer&) = delete;

    /// It answers now, that there is no such file, to those who wait as well.
    static void revive();
    /// How often it was asked.
    static int calls();
    /// How many threads at most have asked it at the same time.
    static int mostAtOnce();
    /// How many threads ask it now.
    static int waiting();
};

/// A call that hangs, on a thread of its own. While there is a server that is waited for by the clock, who
/// waits for that thread lets the clock run ahead instead.
class Hanging {
  public:
    Hanging();
    ~Hanging();
    Hanging(const Hanging&) = delete;
    Hanging& operator=(const Hanging&) = delete;
};

/// The clock that the program reads, in milliseconds, runs ahead from now on until the end of the test's
/// world.
void passTime(int milliseconds);
/// What it shows.
std::int64_t clock();

} // namespace contract
