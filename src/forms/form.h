// A form: a top-level window, or one that is put into a window of another program.
//
// Events are virtual routines under the field's names. A form is made as a plain object; loading it makes its
// window and raises Form_Load, and happens at the first use that needs the window. When the window dies with its
// host the object lives on, loaded and without a window.
#pragma once

#include "forms/control.h"

#include <string>

namespace forms {

enum class BorderStyle {
    none,
    fixedSingle,       ///< title bar, fixed size
    fixedDialog,       ///< like fixedSingle, without an icon
    sizableToolWindow, ///< small title bar, frame that the user can drag
};

enum class MousePointer { standard = 0, hourglass = 11 };

class Form : public Container {
  public:
    Form() : Container(ControlKind::form) { setVisible(false); }
    /// Unloads without asking.
    ~Form() override;

    // Design, to be set before the form is loaded.
    BorderStyle borderStyle = BorderStyle::fixedSingle;
    bool controlBox = true;      ///< system menu and close box
    bool showInTaskbar = true;
    bool centreOnScreen = false;
    bool activates = true;       ///< takes the focus when it is shown or clicked; a hosted form must not
    /// Sets the client size, in twips; the outer size follows from the border.
    void setClientSize(float width, float height);

    const std::string& caption() const { return caption_; }
    void setCaption(std::string_view caption);

    bool loaded() const { return loaded_; }
    /// Makes the window and raises Form_Load; does nothing if the form is loaded.
    void load();
    /// Loads if needed and shows the form without waiting.
    void show();
    /// Loads if needed, shows the form and returns when it has been hidden or unloaded.
    void showModal();
    void hide();
    /// Asks Form_QueryUnload, then raises Form_Unload and drops the window. A refused unload changes nothing.
    void unload();

    /// The form's window; loads the form if needed.
    platform::HWND window();

    // Outer size (width, height) and client size, all in twips. Assigning the outer size raises Form_Resize
    // inside the assignment if it really changes.
    void setWidth(float twips) override;
    void setHeight(float twips) override;
    float scaleWidth() const { return scaleWidth_; }
    float scaleHeight() const { return scaleHeight_; }

    MousePointer mousePointer() const { return mousePointer_; }
    void setMousePointer(MousePointer pointer);

    // Called by the peer.
    /// The window has another size, in pixels. Aligned toolbars follow first, then Form_Resize is raised.
    void windowResized(int outerWidth, int outerHeight, int clientWidth, int clientHeight);
    /// The user wants to close the window.
    void closeRequested() { unload(); }

    virtual void Form_Load() {}
    virtual void Form_QueryUnload(bool& /*cancel*/) {}
    virtual void Form_Unload() {}
    virtual void Form_Resize() {}
    virtual void Form_MouseMove(int /*button*/, int /*shift*/, float /*x*/, float /*y*/) {}
    virtual void Form_Click() {}

  private:
    void resizeAligned();
    void adoptSize(float width, float height, float clientWidth, float clientHeight);

    std::string caption_;
    bool loaded_ = false;
    bool unloading_ = false;
    float scaleWidth_ = 0;
    float scaleHeight_ = 0;
    MousePointer mousePointer_ = MousePointer::standard;
};

} // namespace forms
