// The check's own mouse and keyboard, by SendInput. Nothing is clicked and nothing typed where a window of
// another program would get it: Failure is thrown instead.
#pragma once
#include <windows.h>

#include <string>

namespace hands {

// Waits until the user has let go of mouse and keyboard: no input has come for two seconds. Ten
// are waited at most.
void awaitRest();
// Whether a click in the middle of a rectangle of the screen would reach this top-level window or what is in
// it.
[[nodiscard]] bool reach(HWND window, const RECT& place);
// A click there with the main button; the window may take a moment to be reached.
void click(HWND window, const RECT& place);
// The pointer goes to the middle of a rectangle of the screen.
void point(const RECT& place);
void type(const std::wstring& text);
void press(WORD key);

// Where the pointer is at first; it is put back at the end.
class KeptPointer {
  public:
    KeptPointer() { GetCursorPos(&place_); }
    ~KeptPointer();
    KeptPointer(const KeptPointer&) = delete;
    KeptPointer& operator=(const KeptPointer&) = delete;

  private:
    POINT place_ = {};
};

} // namespace hands
