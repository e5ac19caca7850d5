#include "controlsForm.h"

#include "journal.h"
#include "store/iconExtract.h"
#include "store/state.h"
#include "store/textCatalogue.h"

#include <string>
#include <vector>

namespace controls {

namespace {

constexpr forms::Colour yellow = 0xFFFFC0;
constexpr forms::Colour red = 0xC00000;

/// A disc that fades out to its edge, so that what is behind it shows through.
forms::Picture fadingDisc(int size, forms::Colour colour) {
    std::vector<std::uint32_t> pixels;
    const int radius = size / 2;
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x) {
            const int distance = (x - radius) * (x - radius) + (y - radius) * (y - radius);
            const int inside = radius * radius - distance;
            const auto opacity =
                inside <= 0 ? 0U : static_cast<std::uint32_t>(255 * inside / (radius * radius));
            pixels.push_back(opacity << 24 | colour);
        }
    return {size, size, std::move(pixels)};
}

void note(const std::string& event, const std::string& detail) {
    journal::write(event + "\t" + detail);
}

std::string selectionOf(const forms::TextBox& box) {
    return std::to_string(box.selStart()) + "+" + std::to_string(box.selLength());
}

} // namespace

NameForm::NameForm() {
    borderStyle = forms::BorderStyle::fixedDialog;
    showInTaskbar = false;
    centreOnScreen = true;
    setCaption("Name");
    setClientSize(3600, 1500);
    labName.setCaption("&Name:");
    labName.place(*this, {150, 225, 900, 255});
    txtName.place(*this, {1200, 180, 2200, 315});
    btnDone.setCaption("&Done");
    btnDone.isDefault = true;
    btnDone.place(*this, {1200, 900, 1200, 375});
    btnDone.onClick = [this] {
        note("name", txtName.text());
        unload();
    };
}

void NameForm::Form_QueryUnload(bool& /*cancel*/) {
    note("name form", "closes");
}

ControlsForm::ControlsForm() {
    borderStyle = forms::BorderStyle::fixedSingle;
    setCaption("Controls");
    setClientSize(6780, 6600);
    setPosition({600, 600, width(), height()});
    buildPages();
    btnName.setCaption("Na&me...");
    btnName.place(*this, {300, 6120, 1200, 315});
    btnName.setToolTipText("Asks for a name & waits");
    btnName.onClick = [this] {
        nameForm.showModal();
        note("back from", "the name form");
    };
    for (std::size_t index = 0; index < btnIcon.size(); ++index) {
        auto& button = btnIcon[index];
        button.setCaption(index == 0 ? "&Icon..." : "S&ymbol...");
        button.place(*this, {1600 + 950 * static_cast<float>(index), 6120, 900, 315});
        button.onClick = [this, index] {
            store::languageOffset = index == 0 ? store::englishBank : 0;
            note("icon", store::chooseIconFile(txtField[0].text(), window()));
        };
    }
    btnOk.setCaption("O&k");
    btnOk.isDefault = true;
    btnOk.place(*this, {3600, 6120, 1200, 315});
    btnOk.onClick = [] { note("ok", "pressed"); };
    btnCancel.setCaption("Cancel");
    btnCancel.isCancel = true;
    btnCancel.place(*this, {5100, 6120, 1200, 315});
    btnCancel.onClick = [this] { unload(); };
}

void ControlsForm::Form_Unload() {
    note("form", "closes");
}

void ControlsForm::buildPages() {
    tabPages.setTabs(3);
    tabPages.setTabCaption(0, "Fields");
    tabPages.setTabCaption(1, "Lists");
    tabPages.setTabCaption(2, "Looks");
    tabPages.place(*this, {150, 120, 6495, 5850});
    tabPages.onClick = [this] { note("page", std::to_string(tabPages.tab())); };
    for (int page = 0; page < 3; ++page) {
        auto& frame = fraPage[static_cast<std::size_t>(page)];
        frame.border = false;
        tabPages.placeOnTab(page, frame, {150, 450, 6195, 5280});
    }
    buildFields();
    buildOptions();
    buildLists();
    buildLooks();
}

void ControlsForm::buildFields() {
    fraFields.setCaption("Fields && marks");
    fraFields.place(fraPage[0], {150, 120, 5895, 1900});
    const std::array captions{"&Plain:", "N&umber:", "&Five at most:"};
    for (std::size_t index = 0; index < labField.size(); ++index) {
        const auto top = 360 + 480 * static_cast<float>(index);
        auto& label = labField[index];
        // For the Tab key the last comes first; a label's mnemonic leads to the box behind it.
        label.tabIndex = static_cast<int>(2 * (labField.size() - index));
        label.setCaption(captions[index]);
        label.alignment = forms::Alignment::right;
        label.place(fraFields, {150, top + 45, 1335, 255});
        auto& box = txtField[index];
        box.tabIndex = *label.tabIndex + 1;
        box.place(fraFields, {1620, top, 3000, 315});
        const std::string name = "field " + std::to_string(index);
        box.onChange = [&box, name] { note(name + " change", box.text() + " " + selectionOf(box)); };
        box.onKeyUp = [name](int keyCode, int shift) {
            note(name + " key up", std::to_string(keyCode) + " " + std::to_string(shift));
        };
    }
    txtField[1].setText("1.5");
    txtField[1].onKeyPress = [](int& keyAscii) {
        if (keyAscii == ',')
            keyAscii = '.';
    };
    txtField[1].onMouseDown = [this](int button, int /*shift*/, float /*x*/, float /*y*/) {
        note("field 1 mouse down", std::to_string(button) + " " + selectionOf(txtField[1]));
        txtField[1].setSelStart(0);
        txtField[1].setSelLength(static_cast<int>(txtField[1].text().size()));
    };
    labField[1].setToolTipText("Takes a comma for a dot");
    txtField[2].maxLength = 5;
}

void ControlsForm::buildOptions() {
    fraOptions.setCaption("Size");
    fraOptions.place(fraPage[0], {150, 2200, 2800, 1700});
    const std::array captions{"&Small", "&Large", "&Huge"};
    for (std::size_t index = 0; index < optSize.size(); ++index) {
        auto& option = optSize[index];
        option.setCaption(captions[index]);
        option.place(fraOptions, {240, 330 + 420 * static_cast<float>(index), 2000, 315});
        option.onClick = [index] { note("size", std::to_string(index)); };
    }
    for (std::size_t index = 0; index < chkPart.size(); ++index) {
        auto& box = chkPart[index];
        box.setCaption(index == 0 ? "&Board" : "Sc&hematic, always");
        box.place(fraPage[0], {3300, 2300 + 420 * static_cast<float>(index), 2400, 315});
        box.onClick = [&box, index] { note("part " + std::to_string(index), std::to_string(box.value())); };
    }
    chkPart[1].setValue(1);
    chkPart[1].setEnabled(false);
    btnLock.setCaption("Lock si&zes");
    btnLock.place(fraPage[0], {3300, 3300, 1800, 375});
    btnLock.onClick = [this] { btnLock_Click(); };
}

void ControlsForm::buildLists() {
    lstRows.place(fraPage[1], {150, 300, 3045, 3765});
    lstRows.onClick = [this] {
        labRow.setCaption("Row: " + lstRows.list(lstRows.listIndex()));
        note("row", std::to_string(lstRows.listIndex()));
    };
    cboUnit.place(fraPage[1], {3600, 300, 1500, 315});
    for (const char* unit : {"mil", "Inch", "um", "mm"})
        cboUnit.addItem(unit);
    cboUnit.setListIndex(3);
    cboUnit.onClick = [this] { note("unit", cboUnit.text()); };
    btnFill.setCaption("&Fill");
    btnFill.place(fraPage[1], {3600, 900, 1500, 375});
    btnFill.onClick = [this] { btnFill_Click(); };
    labRow.autoSize = true;
    labRow.border = true;
    labRow.setCaption("Row:");
    labRow.place(fraPage[1], {3600, 1500, 600, 255});
}

void ControlsForm::buildLooks() {
    auto& page = fraPage[2];
    const std::array alignments{forms::Alignment::left, forms::Alignment::centre, forms::Alignment::right};
    for (std::size_t index = 0; index < labLook.size(); ++index) {
        auto& label = labLook[index];
        label.alignment = alignments[index % alignments.size()];
        label.setCaption(
            index < alignments.size() ? "Side" : "Words that go on in the next line as they are too many");
        label.border = index == 2;
        label.place(page, {150, 200 + 450 * static_cast<float>(index), 2400, index < 3 ? 255.0F : 420.0F});
    }
    labLook[1].setBackColour(yellow);
    labLook[1].setForeColour(red);
    labLook[4].setEnabled(false);
    labLook[0].setFont({"Arial", 18, true, true});
    labLook[0].autoSize = true;
    labLook[0].onClick = [] { note("label", "clicked"); };
    linDivider.place(page, {2800, 200, 0, 2300});
    linPlain.setForeColour(red);
    linPlain.place(page, {150, 2700, 5000, 0});
    imgSeen.setPicture(fadingDisc(60, 0x0000C0));
    imgSeen.place(page, {3200, 300, 900, 900});
    imgSeen.onClick = [] { note("image", "clicked"); };
    picDrawn.setPicture(fadingDisc(40, 0x008000));
    picDrawn.place(page, {4400, 300, 600, 600});
    btnUp.setCaption("Up");
    btnUp.setPicture(fadingDisc(24, 0xC00000));
    btnUp.place(page, {3200, 1500, 600, 600});
    btnUp.onClick = [this] {
        note("up", "clicked");
        picDrawn.setPicture({});
    };
}

void ControlsForm::btnFill_Click() {
    constexpr int rows = 5000;
    lstRows.clear();
    for (int row = 0; row < rows; ++row)
        lstRows.addItem("Row number " + std::to_string(row));
    note("filled", std::to_string(lstRows.listCount()));
    lstRows.setListIndex(rows / 2);
}

void ControlsForm::btnLock_Click() {
    fraOptions.setEnabled(!fraOptions.enabled());
    for (auto& option : optSize)
        option.setEnabled(fraOptions.enabled());
    btnLock.setCaption(fraOptions.enabled() ? "Lock si&zes" : "Unlock si&zes");
}

} // namespace controls
