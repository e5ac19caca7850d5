// The system's component objects, which dialogs, the shell and shortcuts stand on. Their library is bound
// when it is first needed: with what it needs itself it is the dearest that a program can start with, and an
// icon in the tray has no use for it.
#pragma once

#include <windows.h>

namespace win32 {

/// Component objects are there for the thread that makes it, from its making to its end; if the system has
/// none, nothing happens.
class Components {
  public:
    Components();
    ~Components();
    Components(const Components&) = delete;
    Components& operator=(const Components&) = delete;

    /// The caller's to release; null on failure. For the thread of these components.
    void* make(const GUID& what, const GUID& kind) const;

  private:
    void(WINAPI* end_)(); ///< null if there are none
};

/// The program's own thread, which calls it, has them from then on until it ends: for dialogs that extensions
/// of the shell run in, and before another thread gets any, since the first one to have them is to be the
/// last.
void keepComponents();

} // namespace win32
