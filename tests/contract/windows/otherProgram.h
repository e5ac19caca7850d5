// The test's end of the line to the process that plays the other program.
#pragma once

#include <windows.h>

#include <string>

namespace contract {

/// A process and our ends of its line; null where there is none.
struct OrderedProcess {
    HANDLE process = nullptr;
    HANDLE orders = nullptr;  ///< to its standard input
    HANDLE answers = nullptr; ///< from its standard output
};

class OtherProgram {
  public:
    /// The process for the first order is under way from here on.
    OtherProgram();
    /// Ends the process.
    ~OtherProgram();
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

    /// Gives an order, to a new process if there is none, and waits for its answer. This thread's messages
    /// are served meanwhile: the order may concern windows that ours stand in.
    std::string order(const std::string& line);
    /// Ends the process from outside and returns when it has gone.
    void end();

    /// The one that comes up beside the test would take time from what is measured: it is waited for.
    static void awaitNext();

  private:
    OrderedProcess own_;
};

} // namespace contract
