#include "calculator/frmMil.h"

#include "forms/defaultInstance.h"
#include "runtime/numbers.h"
#include "runtime/runtimeError.h"
#include "runtime/text.h"
#include "store/settings.h"
#include "store/state.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace calculator {

namespace {

/// Micrometres per unit; 0 for a caption that is none.
double unitSize(std::string_view caption) {
    struct Unit {
        std::string_view caption;
        double micrometres;
    };
    constexpr Unit units[] = {{"mil", 25.4}, {"Inch", 25400}, {"mm", 1000}, {"cm", 10000}, {"um", 1}};
    for (const Unit& unit : units)
        if (unit.caption == caption)
            return unit.micrometres;
    return 0;
}

} // namespace

frmMil::frmMil() {
    borderStyle = forms::BorderStyle::none;
    showInTaskbar = false;
    activates = false;
    setClientSize(designWidth, 375);
    fraMil.border = false;
    fraMil.place(*this, {0, 0, 2925, 270});
    fraMil.setFont({"@Arial Unicode MS", 6.75F, false, false});
    labUnit[0].place(fraMil, {0, 30, 180, 195});
    labUnit[0].setCaption("mil");
    txtSize[0].place(fraMil, {360, 0, 1035, 270});
    labUnit[1].place(fraMil, {1440, 30, 240, 195});
    labUnit[1].setCaption("mm");
    txtSize[1].place(fraMil, {1800, 0, 1035, 270});
    // The Tab key goes to the right pair first. A label comes right before its field: a screen reader names a
    // field by what stands before it.
    labUnit[1].tabIndex = 0;
    txtSize[1].tabIndex = 1;
    labUnit[0].tabIndex = 2;
    txtSize[0].tabIndex = 3;
    for (forms::Label& label : labUnit) {
        label.autoSize = true;
        label.setToolTipText("For setup or help => click right mouse button");
    }
    for (std::size_t side = 0; side < txtSize.size(); ++side) {
        forms::TextBox& box = txtSize[side];
        box.setText("0");
        box.onKeyPress = [this, side](int& keyAscii) { txtSize_KeyPress(side, keyAscii); };
        box.onKeyUp = [this, side](int, int) { txtSize_KeyUp(side); };
        box.onMouseDown = [this, side](int, int, float, float) { txtSize_MouseDown(side); };
    }
}

void frmMil::loadResources() {
    for (std::size_t side = 0; side < labUnit.size(); ++side)
        labUnit[side].setCaption(store::unitName[side]);
}

void frmMil::followSave() {
    loadResources();
    constexpr std::int16_t toRight = 1;
    try {
        convert(toRight);
    } catch (const runtime::RuntimeError&) {
        // A number beyond the range of a double, which nobody has left the field with yet: the right one
        // stays.
    }
}

void frmMil::txtSize_KeyPress(std::size_t /*index*/, int& keyAscii) {
    if (keyAscii == ',')
        keyAscii = '.';
}

void frmMil::txtSize_KeyUp(std::size_t index) {
    store::currentRoutine = "txtSize_KeyUp";
    convert(index == 0 ? 1 : 0);
}

void frmMil::txtSize_MouseDown(std::size_t index) {
    store::currentRoutine = "txtSize_MouseDown";
    forms::TextBox& box = txtSize[index];
    box.setSelStart(0);
    box.setSelLength(static_cast<int>(box.text().size()));
}

void frmMil::convert(std::int16_t direction) {
    store::currentRoutine = "convert";
    const double left = unitSize(labUnit[0].caption());
    const double right = unitSize(labUnit[1].caption());
    // The ratio first, then the product: another order gives other last digits. A unit of size 0 gives an
    // infinite ratio.
    const bool toRight = direction == 1;
    const double value = runtime::readNumber(txtSize[toRight ? 0 : 1].text());
    const double ratio = toRight ? left / right : right / left;
    const double result = ratio * value;
    if (direction < 0 || direction > 1)
        throw runtime::RuntimeError(runtime::ErrorNumber::subscriptOutOfRange);
    const auto side = static_cast<std::size_t>(direction);
    if (result == 0)
        txtSize[side].setText("0");
    else
        txtSize[side].setText(
            runtime::replaceAll(runtime::formatNumber(result, store::unitAccuracy[side]), ",", "."));
}

frmMil& defaultMil() {
    return forms::defaultInstance<frmMil>();
}

} // namespace calculator
