// The program as a test runs it: a fresh desktop and Hauptform.
#pragma once

#include "core/hauptform.h"
#include "desktop/desktop.h"

#include <memory>

namespace desktop {

class Program {
  public:
    Program();

    /// Loads Hauptform, as the start of the program does. False if the program has ended by it.
    bool start();
    /// Lets `count` ticks of the tracker pass.
    void ticks(int count);
    core::Hauptform& form() { return *form_; }
    World& desk() { return world(); }

    toolbars::frmToolbar& toolbar(store::EditorKind kind, std::size_t index);
    /// Number of toolbars that stand in hosts.
    std::size_t hosted(store::EditorKind kind);

  private:
    Session session_;
    std::unique_ptr<core::Hauptform> form_;
};

} // namespace desktop
