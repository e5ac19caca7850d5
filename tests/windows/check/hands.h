// The check's own mouse and keyboard, by SendInput. Nothing is clicked and nothing typed where a window of
// another program would get it: Failure is thrown instead.
#pragma once
#include <windows.h>

#include <string>

namespace hands {

// A click with the main button in the middle of a rectangle of the screen, which a window of ours has to
// show.
void click(const RECT& place);
void type(const std::wstring& text);
void press(WORD key);

// Where the pointer is at first; it is put back at the end.
class KeptPointer {
  public:
    KeptPointer() { GetCursorPos(&place_); }
    ~KeptPointer() { SetCursorPos(place_.x, place_.y); }
    KeptPointer(const KeptPointer&) = delete;
    KeptPointer& operator=(const KeptPointer&) = delete;

  private:
    POINT place_ = {};
};

} // namespace hands
