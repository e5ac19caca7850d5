// A text box of one line.
#pragma once

#include "forms/control.h"

namespace forms {

class TextBox : public Control {
  public:
    TextBox() : Control(ControlKind::textBox) {}

    const std::string& text() const { return text_; }
    /// The selection goes to the start. Raises onChange inside the assignment if the text really changes.
    void setText(std::string_view text);

    /// Selection in characters from 0; values beyond the text are held to its end. Error 5 below 0. A new
    /// start leaves nothing selected.
    int selStart() const { return selStart_; }
    int selLength() const { return selLength_; }
    void setSelStart(int start);
    void setSelLength(int length);

    /// Most characters that the user can type; 0 means no limit.
    int maxLength = 0;

    std::function<void()> onChange;
    /// A character is about to be taken, by its code in the code page in force (runtime::characterCode); the
    /// handler may replace it, 0 drops it.
    std::function<void(int& keyAscii)> onKeyPress;
    std::function<void(int keyCode, int shift)> onKeyDown;
    std::function<void(int keyCode, int shift)> onKeyUp;

    // Called by the peer.
    /// The character as the key press event leaves it.
    int keyPressed(int keyAscii);
    /// The text has been edited in the window: takes it over and raises onChange if it is another one,
    /// without telling the peer.
    void edited(std::string_view text);
    /// The same, with the selection as it stands after the edit.
    void edited(std::string_view text, int start, int length);
    /// The selection has been moved in the window.
    void selected(int start, int length);

  private:
    std::string text_;
    int selStart_ = 0;
    int selLength_ = 0;
};

} // namespace forms
