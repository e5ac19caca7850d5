// A function of the system that this program calls, replaced for a time.
#pragma once

namespace contract {

/// The replacement stands from its making to its end; it has to be called as the function is. Calls of the
/// system's own DLLs are not met. Nothing happens if the program does not import the function.
class ImportHook {
  public:
    ImportHook(const char* function, void* replacement);
    /// The same for a replacement that calls the system's own function, which it finds in `original`.
    template <typename Function>
    ImportHook(const char* function, Function* replacement, Function*& original) : ImportHook(function) {
        original = reinterpret_cast<Function*>(original_);
        replaceBy(reinterpret_cast<void*>(replacement));
    }
    ~ImportHook();
    ImportHook(const ImportHook&) = delete;
    ImportHook& operator=(const ImportHook&) = delete;

    /// The system's own function; null if the program does not import it.
    void* original() const { return original_; }

  private:
    explicit ImportHook(const char* function);
    void replaceBy(void* replacement);

    void** place_ = nullptr;
    void* original_ = nullptr;
};

} // namespace contract
