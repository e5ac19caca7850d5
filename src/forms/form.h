// A form: a top-level window, or one that is put into a window of another program.
//
// Events are virtual routines under the field's names. A form is made as a plain object; loading it makes its
// window and raises Form_Load, and happens at the first use that needs the window. When the window dies with
// its host the object lives on, loaded and without a window, and so it does if the system could not make the
// window with all that stands on it. Then the form has none at all.
#pragma once

#include "forms/captioned.h"

namespace forms {

enum class BorderStyle {
    none,
    fixedSingle,       ///< title bar, fixed size
    fixedDialog,       ///< like fixedSingle, without an icon
    sizableToolWindow, ///< small title bar, frame that the user can drag
};

enum class MousePointer { standard = 0, hourglass = 11 };

class Form : public Captioned<Container> {
  public:
    Form() : Captioned(ControlKind::form) { setVisible(false); }
    /// Unloads without asking.
    ~Form() override;

    // Design, to be set before the form is loaded.
    BorderStyle borderStyle = BorderStyle::fixedSingle;
    bool controlBox = true; ///< system menu and close box
    bool showInTaskbar = true;
    /// Stands in the middle of the screen when it is loaded, moved only as far as the work area needs it.
    bool centreOnScreen = false;
    /// A dialog: as large as the screen that it opens on shows what is of its size, but no larger than the
    /// work area has room for; and so on each screen that it is moved to.
    bool followsScreen = false;
    /// The window that the form stays in front of and goes with; without one the program's own choice.
    platform::HWND ownerWindow = platform::HWND::none;
    /// Has the keyboard first if it can; without one the first stop of the Tab key has it.
    Control* firstFocus = nullptr;
    bool activates = true; ///< takes the focus when it is shown or clicked; a hosted form must not
    Resolution resolution() const override { return resolution_; }
    /// Of the screen that the form is to be seen on. Keeps the client size, in twips, and raises Form_Resize
    /// if there is a window; its place stays the same in pixels.
    void setResolution(Resolution resolution);
    /// Of the screen itself: by this the system draws title bar and frame.
    Resolution frameResolution() const { return frameResolution_; }
    /// The resolution that a form which follows its screen has on one of `screen`, with a work area in its
    /// pixels: the finest up to the screen's at which the form is neither too high nor too wide. At 96 dpi it
    /// is always the design's.
    Resolution fitting(Resolution screen, const platform::RECT& workArea) const;
    /// Sets the client size, in twips; the outer size follows from the border style, to be set before.
    void setClientSize(float width, float height);

    bool loaded() const { return loaded_; }
    /// Makes the window with all that stands on it, then raises Form_Load. Does nothing if that is done.
    void load();
    /// Loads if needed and shows the form without waiting.
    void show();
    /// Loads if needed, shows the form and returns when it has been hidden or unloaded; at once if it has no
    /// window. One that has lost its window is loaded anew the next time.
    void showModal();
    void hide();
    /// Asks Form_QueryUnload, then raises Form_Unload and drops the window. A refused unload changes nothing,
    /// and neither does an unload that one of these two events asks for.
    void unload();

    /// The form's window; loads the form if needed.
    platform::HWND window();

    // Outer size (width, height) and client size, all in twips and always whole pixels. Assigning the outer
    // size raises Form_Resize inside the assignment if it really changes. Without a window it is only stored.
    void setPosition(const Position& position) override;
    float scaleWidth() const { return scaleWidth_; }
    float scaleHeight() const { return scaleHeight_; }

    MousePointer mousePointer() const { return mousePointer_; }
    void setMousePointer(MousePointer pointer);

    // Called by the peer.
    /// The window has the size given, in pixels. If that is another one than before, aligned toolbars follow
    /// first, then Form_Resize is raised, unless the window is only just being made.
    void windowResized(int outerWidth, int outerHeight, int clientWidth, int clientHeight);
    /// The window has been moved: pixels, on the screen or in the client area of its host. Raises nothing. A
    /// form that did not hear of it would go back to its old place with the next assignment of a size.
    void windowMoved(int left, int top);
    /// The window has come to another screen, or the user has changed the screen's resolution: the form takes
    /// the size that it has there, at the corner of `place`, in screen pixels. `frame` is the resolution by
    /// which the system draws title bar and frame. Nothing unless the form follows its screen.
    void screenChanged(Resolution screen, Resolution frame, const platform::RECT& place);
    /// The user, or the system, wants to close the window. With the main form the program ends, at once: what
    /// has been going on meanwhile, a dialog or the start itself, does not go on without it.
    void closeRequested();
    /// The user has pressed the help key in the form's window.
    void helpRequested();

    /// The program's help, the same for every form.
    static inline std::function<void()> onHelp;

    virtual void Form_Load() {}
    virtual void Form_QueryUnload(bool& /*cancel*/) {}
    virtual void Form_Unload() {}
    virtual void Form_Resize() {}
    virtual void Form_MouseMove(int /*button*/, int /*shift*/, float /*x*/, float /*y*/) {}
    virtual void Form_Click() {}
    /// The shell has made its task bar, anew or for the first time.
    virtual void Form_TaskbarCreated() {}

  protected:
    void childPlaced(Control& child) override;

  private:
    void assignSize(float width, float height);
    void assignPixels(int width, int height);
    void adoptResolution(Resolution resolution, Resolution frame);
    int toPixels(float twips) const { return resolution_.toPixels(twips); }
    float toTwips(int pixels) const { return resolution_.toTwips(pixels); }
    void adoptSize(int width, int height, int clientWidth, int clientHeight);

    bool loaded_ = false;
    bool loading_ = false;      ///< the windows are being made
    bool unloading_ = false;    ///< QueryUnload or Unload is running
    bool sizeAssigned_ = false; ///< a size has been stored that the window has not confirmed yet
    Resolution resolution_;
    Resolution frameResolution_;
    float scaleWidth_ = 0;
    float scaleHeight_ = 0;
    MousePointer mousePointer_ = MousePointer::standard;
};

} // namespace forms
