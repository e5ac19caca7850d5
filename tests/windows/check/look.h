// What stands in a window at a moment, as the witness has written it down (see windowTree.h), and the toolbar
// that Kestrel has put there. Only windows of ours are ever looked at.
#pragma once
#include "check/stageProgram.h"

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

// All rectangles are in the witness's pixels: those of a program that takes every screen for one of 96 dpi,
// as EAGLE does. Places to click at are in the screen's own.
struct Button {
    RECT place;
    int state;
    int style;
};

struct Window {
    HWND handle;
    HWND parent;
    std::wstring className;
    bool visible;
    RECT place;
    RECT client;
    std::wstring text;
    std::vector<Button> buttons;

    // A rectangle of the witness's within this window, in pixels of the screen.
    [[nodiscard]] RECT onScreen(const RECT& inside) const;
};

struct Toolbar {
    Window form;
    Window bar;
    std::vector<Button> buttons; // those that can be clicked
};

struct Look {
    std::vector<Window> windows; // the window that was asked for, then all that is in it
    HWND foreground = nullptr;
    HWND focus = nullptr;

    [[nodiscard]] std::vector<Toolbar> toolbars() const;
    // The editor's command field.
    [[nodiscard]] HWND field() const;
};

class Eyes {
  public:
    Eyes(const workplace::Workplace& place, const std::wstring& folder);
    [[nodiscard]] Look look(HWND window);

  private:
    StageProgram witness_;
    std::wstring dump_;
};
