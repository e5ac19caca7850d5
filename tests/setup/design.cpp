#include "setup/design.h"

namespace setup {

namespace {

std::vector<Designed> onListPage(frmSetup& form, std::size_t n) {
    forms::Frame* page = &form.fraSetup[n == 0 ? 0 : n + 1];
    const std::string ending = "/" + std::to_string(n);
    return {
        {"fraCommand" + ending, &form.fraCommand[n], page, {150, 120, 5955, 3525}},
        {"labTitle" + ending, &form.labTitle[n], &form.fraCommand[n], {120, 360, 1335, 255}},
        {"txtTitle" + ending, &form.txtTitle[n], &form.fraCommand[n], {1620, 300, 4035, 315}},
        {"labPath" + ending, &form.labPath[n], &form.fraCommand[n], {60, 840, 1395, 255}},
        {"txtPath" + ending, &form.txtPath[n], &form.fraCommand[n], {1620, 780, 4035, 315}},
        {"labTooltip" + ending, &form.labTooltip[n], &form.fraCommand[n], {180, 1320, 1275, 255}},
        {"txtTooltip" + ending, &form.txtTooltip[n], &form.fraCommand[n], {1620, 1260, 4035, 315}},
        {"labPara" + ending, &form.labPara[n], &form.fraCommand[n], {180, 1770, 1275, 255}},
        {"txtPara" + ending, &form.txtPara[n], &form.fraCommand[n], {1620, 1740, 4035, 315}},
        {"labIcon" + ending, &form.labIcon[n], &form.fraCommand[n], {480, 2460, 915, 255}},
        {"imgIcon" + ending, &form.imgIcon[n], &form.fraCommand[n], {300, 2400, 375, 345}},
        {"picView" + ending, &form.picView[n], &form.fraCommand[n], {1680, 2430, 345, 345}},
        {"btnIcon" + ending, &form.btnIcon[n], &form.fraCommand[n], {720, 3000, 1335, 315}},
        {"chkAdd, no dialog" + ending, &form.chkAdd[3 * n], &form.fraCommand[n], {2760, 2340, 2895, 315}},
        {"chkAdd, input dialog" + ending,
         &form.chkAdd[3 * n + 1],
         &form.fraCommand[n],
         {2760, 2700, 2955, 315}},
        {"chkAdd, file dialog" + ending,
         &form.chkAdd[3 * n + 2],
         &form.fraCommand[n],
         {2760, 3090, 2955, 315}},
        {"lstApps" + ending, &form.lstApps[n], page, {150, 3840, 3045, 3765}},
        {"fraActions" + ending, &form.fraActions[n], page, {3450, 3750, 2655, 3855}},
        {"btnAdd" + ending, &form.btnAdd[n], &form.fraActions[n], {240, 300, 2115, 315}},
        {"btnAddEAGLE" + ending, &form.btnAddEAGLE[n], &form.fraActions[n], {240, 810, 2115, 315}},
        {"btnAddSep" + ending, &form.btnAddSep[n], &form.fraActions[n], {240, 1320, 2115, 315}},
        {"btnRemove" + ending, &form.btnRemove[n], &form.fraActions[n], {240, 1800, 2115, 315}},
        {"btnH" + ending, &form.btnH[n], &form.fraActions[n], {240, 2310, 525, 585}},
        {"btnL" + ending, &form.btnL[n], &form.fraActions[n], {240, 3060, 555, 555}},
    };
}

std::vector<Designed> elsewhere(frmSetup& form) {
    return {
        {"TabStrip1", &form.TabStrip1, &form, {150, 120, 6495, 8625}},
        {"fraEAGLE", &form.fraEAGLE, &form.fraSetup[1], {150, 150, 5955, 3135}},
        {"chkEAGLE", &form.chkEAGLE, &form.fraEAGLE, {330, 330, 4155, 315}},
        {"chkClose", &form.chkClose, &form.fraEAGLE, {330, 750, 5475, 315}},
        {"labEAGLE", &form.labEAGLE, &form.fraEAGLE, {90, 1260, 1245, 345}},
        {"txtEAGLE", &form.txtEAGLE, &form.fraEAGLE, {330, 1560, 4035, 315}},
        {"btnEAGLE", &form.btnEAGLE, &form.fraEAGLE, {4560, 1560, 1155, 315}},
        {"labLastOpen", &form.labLastOpen, &form.fraEAGLE, {330, 1950, 4455, 315}},
        {"chkLastBRD", &form.chkLastBRD, &form.fraEAGLE, {330, 2280, 1545, 315}},
        {"chkLastSCH", &form.chkLastSCH, &form.fraEAGLE, {1980, 2280, 1545, 315}},
        {"chkLastLBR", &form.chkLastLBR, &form.fraEAGLE, {3750, 2280, 1545, 315}},
        {"chkOneInst", &form.chkOneInst, &form.fraEAGLE, {330, 2670, 5295, 315}},
        {"fraOptions", &form.fraOptions, &form.fraSetup[1], {150, 3510, 5955, 2805}},
        {"chkUnitCalc", &form.chkUnitCalc, &form.fraOptions, {330, 360, 4155, 315}},
        {"Label1(0)", &form.Label1[0], &form.fraOptions, {870, 900, 2055, 225}},
        {"cboUnit(0)", &form.cboUnit[0], &form.fraOptions, {1080, 1140, 1500, 315}},
        {"Label1(1)", &form.Label1[1], &form.fraOptions, {3720, 900, 2055, 225}},
        {"cboUnit(1)", &form.cboUnit[1], &form.fraOptions, {3900, 1170, 1500, 315}},
        {"Line1(0)", &form.Line1[0], &form.fraOptions, {3030, 780, 0, 1770}},
        {"Label1(2)", &form.Label1[2], &form.fraOptions, {810, 1770, 2055, 225}},
        {"cboAccur(0)", &form.cboAccur[0], &form.fraOptions, {1080, 2040, 1500, 315}},
        {"Label1(3)", &form.Label1[3], &form.fraOptions, {3690, 1770, 2055, 225}},
        {"cboAccur(1)", &form.cboAccur[1], &form.fraOptions, {3900, 2040, 1500, 315}},
        {"fraGlobal", &form.fraGlobal, &form.fraSetup[1], {150, 6450, 5955, 1095}},
        {"labLanguage", &form.labLanguage, &form.fraGlobal, {2010, 510, 1815, 375}},
        {"cboLanguage", &form.cboLanguage, &form.fraGlobal, {3900, 450, 1500, 315}},
        {"btnHelp", &form.btnHelp, &form, {1440, 8910, 1125, 315}},
        {"btnCancel", &form.btnCancel, &form, {3660, 8910, 1185, 315}},
        {"btnOk", &form.btnOk, &form, {5160, 8910, 1155, 315}},
    };
}

} // namespace

std::vector<Designed> designOf(frmSetup& form) {
    std::vector<Designed> all = elsewhere(form);
    for (std::size_t n = 0; n < listPages; ++n)
        for (const Designed& each : onListPage(form, n))
            all.push_back(each);
    return all;
}

} // namespace setup
