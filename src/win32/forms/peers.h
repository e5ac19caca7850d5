// One maker for each kind of control that has a window.
#pragma once

#include "forms/peer.h"

#include <memory>

namespace forms {
class CheckBox;
class ComboBox;
class CommandButton;
class Frame;
class IconGrid;
class Image;
class Label;
class Line;
class ListBox;
class OptionButton;
class PictureBox;
class TabStrip;
class TextBox;
class Toolbar;
} // namespace forms

namespace win32 {

std::unique_ptr<forms::Peer> makeFormPeer(forms::Form& form);
std::unique_ptr<forms::Peer> makeFramePeer(forms::Frame& frame);
std::unique_ptr<forms::Peer> makeToolbarPeer(forms::Toolbar& toolbar);
std::unique_ptr<forms::Peer> makeLabelPeer(forms::Label& label);
std::unique_ptr<forms::Peer> makeLinePeer(forms::Line& line);
std::unique_ptr<forms::Peer> makeImagePeer(forms::Image& image);
std::unique_ptr<forms::Peer> makePictureBoxPeer(forms::PictureBox& box);
std::unique_ptr<forms::Peer> makeTextBoxPeer(forms::TextBox& box);
std::unique_ptr<forms::Peer> makeCommandButtonPeer(forms::CommandButton& button);
std::unique_ptr<forms::Peer> makeCheckBoxPeer(forms::CheckBox& box);
std::unique_ptr<forms::Peer> makeOptionButtonPeer(forms::OptionButton& button);
std::unique_ptr<forms::Peer> makeListBoxPeer(forms::ListBox& list);
std::unique_ptr<forms::Peer> makeComboBoxPeer(forms::ComboBox& list);
std::unique_ptr<forms::Peer> makeTabStripPeer(forms::TabStrip& tabs);
std::unique_ptr<forms::Peer> makeIconGridPeer(forms::IconGrid& grid);

} // namespace win32
