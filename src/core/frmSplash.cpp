#include "core/frmSplash.h"

#include "forms/defaultInstance.h"
#include "forms/picture.h"
#include "runtime/version.h"

#include <string>

namespace core {

namespace {

constexpr forms::Colour lightYellow = 0xFFFFC0;

forms::Font italic(float points, bool bold = false) {
    return {"MS Sans Serif", points, bold, true};
}

} // namespace

frmSplash::frmSplash() {
    controlBox = false;
    showInTaskbar = false;
    centreOnScreen = true;
    followsScreen = true;
    setBackColour(lightYellow);
    setClientSize(6030, 2865);
    Image2.place(*this, {240, 180, 1395, 1395});
    Image2.setPicture(forms::loadPicture("splashSquare"));
    Image2.drawnFor = [](forms::Resolution) { return forms::loadPicture("splashSquare2"); };
    labAuthor.place(*this, {2640, 2160, 3375, 675});
    labAuthor.setFont(italic(9.75F, true));
    labAuthor.setCaption("The Kestrel team");
    labVersion.place(*this, {180, 2220, 3375, 375});
    labVersion.setFont(italic(13.5F));
    labVersion.setCaption("Version");
    labCaption.place(*this, {2040, 420, 3795, 1335});
    labCaption.setFont(italic(18));
    labCaption.setCaption("Kestrel Strip for EAGLE");
    Image1.place(*this, {420, 1020, 5415, 1140});
    Image1.setPicture(forms::loadPicture("splashWide"));
    Image1.drawnFor = [](forms::Resolution) { return forms::loadPicture("splashWide2"); };

    const auto close = [this] { Timer1_Timer(); };
    Timer1.onTimer = close;
    Image1.onClick = close;
    Image2.onClick = close;
    labAuthor.onClick = close;
    labCaption.onClick = close;
    labVersion.onClick = close;
}

void frmSplash::Form_Load() {
    labVersion.setCaption(std::string("Version ") + runtime::version);
    Timer1.setEnabled(true);
}

void frmSplash::Form_Unload() {
    Timer1.setEnabled(false);
}

void frmSplash::Form_Click() {
    Timer1_Timer();
}

void frmSplash::Timer1_Timer() {
    unload();
}

frmSplash& splashForm() {
    return forms::defaultInstance<frmSplash>();
}

} // namespace core
