#include "win32/forms/peers.h"

#include "forms/button.h"
#include "forms/form.h"
#include "forms/frame.h"
#include "forms/iconGrid.h"
#include "forms/label.h"
#include "forms/listBox.h"
#include "forms/pictureBox.h"
#include "forms/tabStrip.h"
#include "forms/textBox.h"
#include "forms/toolbar.h"

namespace forms {

std::unique_ptr<Peer> makePeer(Control& control) {
    switch (control.kind()) {
    case ControlKind::form:
        return win32::makeFormPeer(static_cast<Form&>(control));
    case ControlKind::frame:
        return win32::makeFramePeer(static_cast<Frame&>(control));
    case ControlKind::toolbar:
        return win32::makeToolbarPeer(static_cast<Toolbar&>(control));
    case ControlKind::label:
        return win32::makeLabelPeer(static_cast<Label&>(control));
    case ControlKind::line:
        return win32::makeLinePeer(static_cast<Line&>(control));
    case ControlKind::image:
        return win32::makeImagePeer(static_cast<Image&>(control));
    case ControlKind::pictureBox:
        return win32::makePictureBoxPeer(static_cast<PictureBox&>(control));
    case ControlKind::textBox:
        return win32::makeTextBoxPeer(static_cast<TextBox&>(control));
    case ControlKind::commandButton:
        return win32::makeCommandButtonPeer(static_cast<CommandButton&>(control));
    case ControlKind::checkBox:
        return win32::makeCheckBoxPeer(static_cast<CheckBox&>(control));
    case ControlKind::optionButton:
        return win32::makeOptionButtonPeer(static_cast<OptionButton&>(control));
    case ControlKind::listBox:
        return win32::makeListBoxPeer(static_cast<ListBox&>(control));
    case ControlKind::comboBox:
        return win32::makeComboBoxPeer(static_cast<ComboBox&>(control));
    case ControlKind::tabStrip:
        return win32::makeTabStripPeer(static_cast<TabStrip&>(control));
    case ControlKind::iconGrid:
        return win32::makeIconGridPeer(static_cast<IconGrid&>(control));
    }
    return nullptr;
}

} // namespace forms
