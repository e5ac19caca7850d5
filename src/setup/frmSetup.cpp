// The frame of the dialog: its design, its opening and closing, the working copies, the preview's pause.
#include "setup/frmSetup.h"

#include "forms/defaultInstance.h"
#include "forms/event.h"
#include "platform/types.h"
#include "setup/arrows.h"
#include "setup/geometry.h"
#include "store/mends.h"
#include "store/settings.h"

#include <memory>

namespace setup {

namespace {

/// What the option buttons of the second and third page keep in both languages.
constexpr std::array<const char*, 3> optionCaptions = {"None", "Add Input Dialog for Parameters",
                                                       "Add 'Open File Dialog'"};
constexpr std::array<const char*, 4> tabCaptions = {"General Options", "Button Options BRD",
                                                    "Button Options SCH", "Button Options LBR"};

} // namespace

frmSetup& setupForm() {
    std::unique_ptr<frmSetup>& form = forms::defaultSlot<frmSetup>();
    if (!form) {
        form = std::make_unique<frmSetup>();
    } else if (form->closed()) {
        auto made = std::make_unique<frmSetup>();
        made->workList = form->workList;
        form = std::move(made);
    }
    return *form;
}

bool openSetup(std::int16_t page) {
    const std::unique_ptr<frmSetup>& form = forms::defaultSlot<frmSetup>();
    if (form && form->visible())
        return false;
    frmSetup::anythingSaved = false;
    setupForm().loadResources();
    setupForm().setType(page);
    setupForm().showModal();
    // Kept: toolbars keep their buttons, but for the one that opened the dialog, and calculators their units.
    if (!frmSetup::anythingSaved || !store::mended(store::Mend::afterSave))
        return false;
    forms::raise(frmSetup::onSaved);
    return true;
}

frmSetup::frmSetup() {
    borderStyle = forms::BorderStyle::fixedSingle;
    placeControls(*this);
    design();
    wire();
}

void frmSetup::design() {
    setCaption("Setup");
    showInTaskbar = false;
    centreOnScreen = true;
    followsScreen = true;
    for (std::size_t tab = 0; tab < tabCaptions.size(); ++tab)
        TabStrip1.setTabCaption(static_cast<int>(tab), tabCaptions[tab]);
    for (forms::Frame& frame : fraSetup)
        frame.border = false;
    for (std::size_t page = 0; page < listPages; ++page)
        designListPage(page);
    labEAGLE.alignment = forms::Alignment::right;
    labLastOpen.autoSize = true;
    for (forms::Label& label : Label1)
        label.autoSize = true;
    labLanguage.alignment = forms::Alignment::right;
    labLanguage.setCaption("Sprache/Language:");
    fillChoices();
    btnOk.isDefault = true;
    btnCancel.isCancel = true;
}

void frmSetup::designListPage(std::size_t page) {
    for (forms::Label* label :
         {&labTitle[page], &labPath[page], &labTooltip[page], &labPara[page], &labIcon[page]})
        label->alignment = forms::Alignment::right;
    labIcon[page].setCaption("Icon:");
    // What shows no icon looks like the page that it stands on.
    imgIcon[page].setBackColour(forms::white);
    picView[page].setBackColour(forms::white);
    btnH[page].setPicture(upArrow());
    btnH[page].drawnFor = [](forms::Resolution resolution) { return upArrow(resolution.scaled(arrowSide)); };
    btnL[page].setPicture(downArrow());
    btnL[page].drawnFor = [](forms::Resolution resolution) {
        return downArrow(resolution.scaled(arrowSide));
    };
    for (std::size_t option = 0; option < optionCaptions.size(); ++option)
        chkAdd[3 * page + option].setCaption(optionCaptions[option]);
}

void frmSetup::wire() {
    for (std::size_t page = 0; page < listPages; ++page)
        wireListPage(page);
    std::int16_t number = 0;
    for (forms::OptionButton& option : chkAdd) {
        option.onClick = [this, Index = number] { chkAdd_Click(Index); };
        ++number;
    }
    btnEAGLE.onClick = [this] { btnEAGLE_Click(); };
    cboLanguage.onClick = [this] { cboLanguage_Click(); };
    btnHelp.onClick = [] { btnHelp_Click(); };
    btnCancel.onClick = [this] { btnCancel_Click(); };
    btnOk.onClick = [this] { btnOk_Click(); };
}

void frmSetup::wireListPage(std::size_t page) {
    using store::ToolButton;
    const auto Index = static_cast<std::int16_t>(page);
    lstApps[page].onClick = [this, Index] { lstApps_Click(Index); };
    lstApps[page].onKey = [this, Index](const auto& stroke) { return listKey(Index, stroke); };
    lstApps[page].onFiles = [this, Index](const auto& files) { filesDropped(Index, files); };
    txtTitle[page].onChange = [this, Index] { txtTitle_Change(Index); };
    txtPath[page].onChange = [this, Index] { txtPath_Change(Index); };
    txtTooltip[page].onChange = [this, Index] { txtTooltip_Change(Index); };
    txtPara[page].onChange = [this, Index] { txtPara_Change(Index); };
    btnIcon[page].onClick = [this, Index] { btnIcon_Click(Index); };
    btnAdd[page].onClick = [this, Index] { btnAdd_Click(Index); };
    btnAddEAGLE[page].onClick = [this, Index] { btnAddEAGLE_Click(Index); };
    btnAddSep[page].onClick = [this, Index] { btnAddSep_Click(Index); };
    btnRemove[page].onClick = [this, Index] { btnRemove_Click(Index); };
    btnH[page].onClick = [this, Index] { btnH_Click(Index); };
    btnL[page].onClick = [this, Index] { btnL_Click(Index); };
    Timer1[page].onTimer = [this, Index] { Timer1_Timer(Index); };
}

void frmSetup::setType(const std::int16_t& page) {
    for (std::int16_t list = 0; list < static_cast<std::int16_t>(listPages); ++list) {
        workList[static_cast<std::size_t>(list)] = *store::listOf(store::EditorKind{list}).buttons;
        fillList(list);
    }
    TabStrip1.setTab(page);
}

/// The preview shows again after a pause, which lets the picture be painted that has just been assigned.
void frmSetup::refreshPreview(std::size_t page) {
    picView[page].setVisible(false);
    Timer1[page].setEnabled(true);
}

void frmSetup::Timer1_Timer(std::int16_t Index) {
    const auto page = static_cast<std::size_t>(Index);
    picView[page].setVisible(true);
    Timer1[page].setEnabled(false);
}

void frmSetup::btnCancel_Click() {
    store::currentRoutine = "btnCancel_Click";
    forms::raise(onWindowReset);
    unload();
}

/// Kept: the same steps as of the Cancel button, which therefore run twice when that is pressed. The unload
/// is under way already.
void frmSetup::Form_QueryUnload(bool& /*cancel*/) {
    store::currentRoutine = "Form_QueryUnload";
    forms::raise(onWindowReset);
    unload();
}

void frmSetup::Form_Unload() {
    for (forms::Timer& timer : Timer1)
        timer.setEnabled(false);
    closed_ = true;
}

} // namespace setup
