// The texts of the dialog. A text is read anew each time; only what stands here follows the language.
#include "setup/frmSetup.h"

#include "store/mends.h"
#include "store/state.h"
#include "store/textCatalogue.h"

namespace setup {

using store::languageOffset;
using store::LoadResString;

void frmSetup::loadResources() {
    setCaption(LoadResString(1017 + languageOffset));
    for (std::size_t i = 0; i < listPages; ++i) {
        fraCommand[i].setCaption(LoadResString(1000 + languageOffset));
        labTitle[i].setCaption(LoadResString(1001 + languageOffset));
        labPath[i].setCaption(LoadResString(1002 + languageOffset));
        labTooltip[i].setCaption(LoadResString(1003 + languageOffset));
        labPara[i].setCaption(LoadResString(1004 + languageOffset));
        btnIcon[i].setCaption(LoadResString(1005 + languageOffset));
        btnAddEAGLE[i].setCaption(LoadResString(1010 + languageOffset));
        btnAddSep[i].setCaption(LoadResString(1011 + languageOffset));
        btnRemove[i].setCaption(LoadResString(1012 + languageOffset));
        btnAdd[i].setCaption(LoadResString(1009 + languageOffset));
    }
    // Kept: only the first page's option buttons follow the language.
    const std::size_t pages = store::mended(store::Mend::optionButtons) ? listPages : 1;
    for (std::size_t page = 0; page < pages; ++page) {
        chkAdd[3 * page].setCaption(LoadResString(1006 + languageOffset));
        chkAdd[3 * page + 1].setCaption(LoadResString(1007 + languageOffset));
        chkAdd[3 * page + 2].setCaption(LoadResString(1008 + languageOffset));
    }
    btnHelp.setCaption(LoadResString(1014 + languageOffset));
    btnCancel.setCaption(LoadResString(1015 + languageOffset));
    btnOk.setCaption(LoadResString(1016 + languageOffset));
    loadOptionTexts();
    TabStrip1.setTabCaption(0, LoadResString(1070 + languageOffset));
    // Kept: these endings are English in both languages.
    TabStrip1.setTabCaption(1, LoadResString(1071 + languageOffset) + " - Board");
    TabStrip1.setTabCaption(2, LoadResString(1071 + languageOffset) + " - Schematic");
    TabStrip1.setTabCaption(3, LoadResString(1071 + languageOffset) + " - Library");
    // With their texts, so that no window is given another one right away.
    load();
    for (std::int16_t list = 0; list < static_cast<std::int16_t>(listPages); ++list)
        fillList(list);
    fillEAGLE();
}

void frmSetup::loadOptionTexts() {
    chkEAGLE.setCaption(LoadResString(1053 + languageOffset));
    chkClose.setCaption(LoadResString(1075 + languageOffset));
    btnEAGLE.setCaption(LoadResString(1054 + languageOffset));
    labEAGLE.setCaption(LoadResString(1055 + languageOffset));
    labLastOpen.setCaption(LoadResString(1060 + languageOffset));
    chkOneInst.setCaption(LoadResString(1061 + languageOffset));
    chkUnitCalc.setCaption(LoadResString(1062 + languageOffset));
    Label1[0].setCaption(LoadResString(1063 + languageOffset));
    Label1[1].setCaption(LoadResString(1064 + languageOffset));
    Label1[2].setCaption(LoadResString(1065 + languageOffset));
    Label1[3].setCaption(LoadResString(1066 + languageOffset));
    fraEAGLE.setCaption(LoadResString(1067 + languageOffset));
    fraOptions.setCaption(LoadResString(1068 + languageOffset));
    fraGlobal.setCaption(LoadResString(1069 + languageOffset));
    chkLastBRD.setCaption(LoadResString(1072 + languageOffset));
    chkLastSCH.setCaption(LoadResString(1073 + languageOffset));
    chkLastLBR.setCaption(LoadResString(1074 + languageOffset));
}

} // namespace setup
