// The test's end of the line to the process that plays the other program.
#pragma once

#include <windows.h>

#include <string>

namespace contract {

class OtherProgram {
  public:
    OtherProgram() = default;
    /// Ends the process.
    ~OtherProgram();
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

    /// Gives an order, starting the process if need be, and waits for its answer. This thread's messages are
    /// served meanwhile: the order may concern windows that ours stand in.
    std::string order(const std::string& line);
    /// Ends the process from outside and returns when it has gone.
    void end();

  private:
    void start();
    std::string answer();

    HANDLE process_ = nullptr;
    HANDLE orders_ = nullptr;  ///< to its standard input
    HANDLE answers_ = nullptr; ///< from its standard output
};

} // namespace contract
