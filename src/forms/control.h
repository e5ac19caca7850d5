// What all controls have in common: place, state, tool tip, mouse and key events, and the peer.
//
// Assigning a property changes the state, tells the peer and raises the control's event at once, inside the
// assignment, wherever the dialogs rely on that. An event may assign again, replace handlers, rebuild lists
// and unload the form; only the objects themselves have to outlive their events. Positions and sizes are in
// twips, in the container's client area; those of a form are in screen coordinates, or in its host's client
// area.
#pragma once

#include "forms/peer.h"
#include "forms/picture.h"
#include "forms/units.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace forms {

class Container;
class Form;

struct Position {
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;

    bool operator==(const Position&) const = default;
};

struct Font {
    std::string name = "MS Sans Serif";
    float points = 8.25F;
    bool bold = false;
    bool italic = false;

    bool operator==(const Font&) const = default;
};

enum class Alignment { left, right, centre };

enum class ControlKind {
    form,
    frame,
    label,
    textBox,
    commandButton,
    checkBox,
    optionButton,
    listBox,
    comboBox,
    pictureBox,
    image,
    line,
    toolbar,
    tabStrip,
    iconGrid,
};

/// Buttons of a mouse event: 1 left, 2 right, 4 middle. Shift state: 1 Shift, 2 Ctrl, 4 Alt. X, y: twips.
using MouseEvent = std::function<void(int button, int shift, float x, float y)>;

class Control {
  public:
    explicit Control(ControlKind kind) : kind_(kind) {}
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    ControlKind kind() const { return kind_; }

    /// Puts the control into a container, behind those that stand there already (which is the tab order).
    void place(Container& container, const Position& position);
    Container* container() const { return container_; }
    /// The form that the control stands on, at whatever depth; null before it is placed.
    Form* form();
    /// That of the form; the design's before the control is placed.
    virtual Resolution resolution() const;

    Position position() const { return {left(), top(), width(), height()}; }
    float left() const { return position_.left; }
    float top() const { return position_.top; }
    float width() const { return position_.width; }
    virtual float height() const { return position_.height; }
    void setLeft(float twips);
    void setTop(float twips);
    void setWidth(float twips);
    void setHeight(float twips);
    virtual void setPosition(const Position& position);

    bool enabled() const { return enabled_; }
    void setEnabled(bool enabled);
    /// Whether the user's clicks and keys get here: the control and all that it stands in are enabled.
    bool acceptsInput() const;
    /// Whether the control itself is to be shown; a hidden container hides it all the same.
    bool visible() const { return visible_; }
    void setVisible(bool visible);

    const std::string& toolTipText() const;
    void setToolTipText(std::string_view text);

    const Font& font() const;
    void setFont(const Font& font);
    /// Without a colour of its own a control has the system's.
    std::optional<Colour> foreColour() const { return foreColour_; }
    std::optional<Colour> backColour() const { return backColour_; }
    void setForeColour(std::optional<Colour> colour);
    void setBackColour(std::optional<Colour> colour);

    /// Place in the tab order of the form; without one, the order of placing.
    std::optional<int> tabIndex;
    bool tabStop = true;

    MouseEvent onMouseDown;
    MouseEvent onMouseUp;
    MouseEvent onMouseMove;

    /// The control's window, made with its form; none if it has none or its host has taken it along.
    platform::HWND hWnd();
    Peer* peer() const { return peer_.get(); }
    void setFocus();

    /// The form that the control stands on, not deeper, has taken a client width, in twips: when the control
    /// is placed and whenever the form is resized, ahead of Form_Resize.
    virtual void containerResized(float /*clientWidth*/) {}

    /// The form has come to another resolution. What it shows is to be laid out anew.
    virtual void resolutionChanged() { tellPeer(Property::resolution); }

    /// For forms: makes and drops the peer of this control and of what stands in it.
    virtual void makePeers();
    virtual void dropPeers();

    /// There will be no window for this control and what stands in it until its form is loaded anew: it has
    /// died with its host, as its peer tells, or the system has made none. The peer goes, and with it all
    /// that was made for the window; the control lets go what it holds for showing alone.
    virtual void windowLost();
    bool lost() const { return lost_; }
    /// Whether each peer of this control and of what stands in it has its window.
    virtual bool windowsMade() const;

  protected:
    /// The peer lives at least until it has returned, even if the form is unloaded meanwhile.
    void tellPeer(Property property);
    /// The same: the peer does now what it has put off.
    void catchUpPeer() const;
    /// Takes over a place and size without telling the peer.
    void storePosition(const Position& position) { position_ = position; }

  private:
    friend class Container;

    ControlKind kind_;
    Container* container_ = nullptr;
    Position position_;
    bool enabled_ = true;
    bool visible_ = true;
    bool lost_ = false;
    std::shared_ptr<const std::string> toolTipText_; ///< none for no text
    std::shared_ptr<const Font> font_;               ///< none for the usual one
    std::optional<Colour> foreColour_;
    std::optional<Colour> backColour_;
    std::shared_ptr<Peer> peer_;
};

/// A control that others stand in. Does not own them: they are members of the form.
class Container : public Control {
  public:
    using Control::Control;
    ~Container() override;

    const std::vector<Control*>& controls() const { return controls_; }

    void resolutionChanged() override;
    void makePeers() override;
    void dropPeers() override;
    void windowLost() override;
    bool windowsMade() const override;

  protected:
    virtual void childPlaced(Control& /*child*/) {}
    virtual void childRemoved(Control& /*child*/) {}

  private:
    friend class Control;
    void remove(Control& child);

    std::vector<Control*> controls_;
};

} // namespace forms
