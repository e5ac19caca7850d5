// A function of the system that this program calls, replaced for a time.
#pragma once

namespace contract {

/// The replacement stands from its making to its end; it has to be called as the function is. Calls of the
/// system's own DLLs are not met. Nothing happens if the program does not import the function.
class ImportHook {
  public:
    ImportHook(const char* function, void* replacement);
    ~ImportHook();
    ImportHook(const ImportHook&) = delete;
    ImportHook& operator=(const ImportHook&) = delete;

    /// The system's own function; null if the program does not import it.
    void* original() const { return original_; }

  private:
    void** place_ = nullptr;
    void* original_ = nullptr;
};

} // namespace contract
