// What a new editor window gets, made by the system's calls alone: a toolbar and a calculator.
//
// The calls are those that the program's routines are told to make, as often and in this order, each as a
// plain program would make it:
//
// - The toolbar's form is made on the desktop, filled, shown, put into the host and placed.
// - Its resize routine raises the host, switches the drawing of both off, takes the form out, sets the height
//   that the rows need, puts it in again and has both drawn at once. It runs with each new size, so also
//   inside itself when it sets the height, and once by itself. Where the form is already, it stays.
// - The calculator's form is made with frame, labels and fields, shown and narrowed; the frame goes into the
//   host, is placed and shown. The form stays behind and goes with the frame. Tips come with the mouse alone.
//
// What the program adds to that is not here: waiting for a host that hangs, following the host's screen,
// giving back, one window of settings and events for each control, the large icon beside each small one.
//
// Beside the program as beside the bare calls the host is a window of the same thread; an editor of EAGLE is
// one of another process, and would have to answer each message that goes to it.
#pragma once

#include <windows.h>

#include <string>

namespace bench {

/// The file that a button's icon comes from.
std::string iconFile(int button);

/// Gives a toolbar control buttons with icons by the shortest way, in place of those that it has: those go
/// from the last on, and nothing is painted before all are there.
void fillBare(HWND bar, int buttonCount);

/// To be made for a host of this thread, and to go right after it.
class BareEditor {
  public:
    BareEditor(HWND host, int buttonCount);
    ~BareEditor();
    BareEditor(const BareEditor&) = delete;
    BareEditor& operator=(const BareEditor&) = delete;

  private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static const char* formClass();

    void makeToolbar(int buttonCount);
    void fitBar() const;
    void resizeForm() const;
    void makeCalculator();
    HWND makeControl(const char* className, const char* text, DWORD style, DWORD exStyle,
                     const RECT& place) const;

    HWND host_;
    HWND form_ = nullptr;
    HWND bar_ = nullptr;
    HWND calculator_ = nullptr;
    HWND frame_ = nullptr;
    HFONT font_;
};

} // namespace bench
