#include "setup/geometry.h"

namespace setup {

namespace {

/// A control of its own.
template <auto Member>
forms::Control& single(frmSetup& form, std::size_t /*page*/) {
    return form.*Member;
}

/// A control with a fixed number in its array.
template <auto Member, std::size_t Index>
forms::Control& element(frmSetup& form, std::size_t /*page*/) {
    return (form.*Member)[Index];
}

/// The control of an array that belongs to the page.
template <auto Member>
forms::Control& ofPage(frmSetup& form, std::size_t page) {
    return (form.*Member)[page];
}

template <std::size_t Option>
forms::Control& option(frmSetup& form, std::size_t page) {
    return form.chkAdd[3 * page + Option];
}

template <auto Member>
forms::Container& in(frmSetup& form, std::size_t /*page*/) {
    return form.*Member;
}

template <auto Member>
forms::Container& inOfPage(frmSetup& form, std::size_t page) {
    return (form.*Member)[page];
}

forms::Container& inForm(frmSetup& form, std::size_t /*page*/) {
    return form;
}

forms::Container& inListPage(frmSetup& form, std::size_t page) {
    return form.fraSetup[frameOfList(page)];
}

forms::Container& inOptionsPage(frmSetup& form, std::size_t /*page*/) {
    return form.fraSetup[frameOfTab[0]];
}

using S = frmSetup;
constexpr auto inCommand = inOfPage<&S::fraCommand>;
constexpr auto inActions = inOfPage<&S::fraActions>;
constexpr auto inEAGLE = in<&S::fraEAGLE>;
constexpr auto inOptions = in<&S::fraOptions>;
constexpr auto inGlobal = in<&S::fraGlobal>;
constexpr Start disabled = Start::disabled;

constexpr Placing listPage[] = {
    {"fraCommand", ofPage<&S::fraCommand>, inListPage, {150, 120, 5955, 3525}},
    {"labTitle", ofPage<&S::labTitle>, inCommand, {120, 360, 1335, 255}},
    {"txtTitle", ofPage<&S::txtTitle>, inCommand, {1620, 300, 4035, 315}, disabled},
    {"labPath", ofPage<&S::labPath>, inCommand, {60, 840, 1395, 255}},
    {"txtPath", ofPage<&S::txtPath>, inCommand, {1620, 780, 4035, 315}, disabled},
    {"labTooltip", ofPage<&S::labTooltip>, inCommand, {180, 1320, 1275, 255}},
    {"txtTooltip", ofPage<&S::txtTooltip>, inCommand, {1620, 1260, 4035, 315}, disabled},
    {"labPara", ofPage<&S::labPara>, inCommand, {180, 1770, 1275, 255}},
    {"txtPara", ofPage<&S::txtPara>, inCommand, {1620, 1740, 4035, 315}, disabled},
    {"labIcon", ofPage<&S::labIcon>, inCommand, {480, 2460, 915, 255}},
    {"imgIcon", ofPage<&S::imgIcon>, inCommand, {300, 2400, 375, 345}, Start::hidden},
    {"picView", ofPage<&S::picView>, inCommand, {1680, 2430, 345, 345}},
    {"btnIcon", ofPage<&S::btnIcon>, inCommand, {720, 3000, 1335, 315}, disabled},
    {"chkAdd, no dialog", option<0>, inCommand, {2760, 2340, 2895, 315}, disabled},
    {"chkAdd, input dialog", option<1>, inCommand, {2760, 2700, 2955, 315}, disabled},
    {"chkAdd, file dialog", option<2>, inCommand, {2760, 3090, 2955, 315}, disabled},
    {"lstApps", ofPage<&S::lstApps>, inListPage, {150, 3840, 3045, 3765}},
    {"fraActions", ofPage<&S::fraActions>, inListPage, {3450, 3750, 2655, 3855}},
    {"btnAdd", ofPage<&S::btnAdd>, inActions, {240, 300, 2115, 315}},
    {"btnAddEAGLE", ofPage<&S::btnAddEAGLE>, inActions, {240, 810, 2115, 315}},
    {"btnAddSep", ofPage<&S::btnAddSep>, inActions, {240, 1320, 2115, 315}},
    {"btnRemove", ofPage<&S::btnRemove>, inActions, {240, 1800, 2115, 315}},
    {"btnH", ofPage<&S::btnH>, inActions, {240, 2310, 525, 585}},
    {"btnL", ofPage<&S::btnL>, inActions, {240, 3060, 555, 555}},
};

constexpr Placing options[] = {
    {"fraEAGLE", single<&S::fraEAGLE>, inOptionsPage, {150, 150, 5955, 3135}},
    {"chkEAGLE", single<&S::chkEAGLE>, inEAGLE, {330, 330, 4155, 315}},
    {"chkClose", single<&S::chkClose>, inEAGLE, {330, 750, 5475, 315}},
    {"labEAGLE", single<&S::labEAGLE>, inEAGLE, {90, 1260, 1245, 345}},
    {"txtEAGLE", single<&S::txtEAGLE>, inEAGLE, {330, 1560, 4035, 315}},
    {"btnEAGLE", single<&S::btnEAGLE>, inEAGLE, {4560, 1560, 1155, 315}},
    {"labLastOpen", single<&S::labLastOpen>, inEAGLE, {330, 1950, 4455, 315}},
    {"chkLastBRD", single<&S::chkLastBRD>, inEAGLE, {330, 2280, 1545, 315}},
    {"chkLastSCH", single<&S::chkLastSCH>, inEAGLE, {1980, 2280, 1545, 315}},
    {"chkLastLBR", single<&S::chkLastLBR>, inEAGLE, {3750, 2280, 1545, 315}},
    {"chkOneInst", single<&S::chkOneInst>, inEAGLE, {330, 2670, 5295, 315}},
    {"fraOptions", single<&S::fraOptions>, inOptionsPage, {150, 3510, 5955, 2805}},
    {"chkUnitCalc", single<&S::chkUnitCalc>, inOptions, {330, 360, 4155, 315}},
    {"Label1(0)", element<&S::Label1, 0>, inOptions, {870, 900, 2055, 225}},
    {"cboUnit(0)", element<&S::cboUnit, 0>, inOptions, {1080, 1140, 1500, 315}},
    {"Label1(1)", element<&S::Label1, 1>, inOptions, {3720, 900, 2055, 225}},
    {"cboUnit(1)", element<&S::cboUnit, 1>, inOptions, {3900, 1170, 1500, 315}},
    {"Line1(0)", element<&S::Line1, 0>, inOptions, {3030, 780, 0, 1770}},
    {"Label1(2)", element<&S::Label1, 2>, inOptions, {810, 1770, 2055, 225}},
    {"cboAccur(0)", element<&S::cboAccur, 0>, inOptions, {1080, 2040, 1500, 315}},
    {"Label1(3)", element<&S::Label1, 3>, inOptions, {3690, 1770, 2055, 225}},
    {"cboAccur(1)", element<&S::cboAccur, 1>, inOptions, {3900, 2040, 1500, 315}},
    {"fraGlobal", single<&S::fraGlobal>, inOptionsPage, {150, 6450, 5955, 1095}},
    {"labLanguage", single<&S::labLanguage>, inGlobal, {2010, 510, 1815, 375}},
    {"cboLanguage", single<&S::cboLanguage>, inGlobal, {3900, 450, 1500, 315}},
};

constexpr Placing buttons[] = {
    {"btnHelp", single<&S::btnHelp>, inForm, {1440, 8910, 1125, 315}},
    {"btnCancel", single<&S::btnCancel>, inForm, {3660, 8910, 1185, 315}},
    {"btnOk", single<&S::btnOk>, inForm, {5160, 8910, 1155, 315}},
};

constexpr forms::Position tabStripPlace{150, 120, 6495, 8625};

void place(frmSetup& form, std::span<const Placing> rows, std::size_t page) {
    for (const Placing& row : rows) {
        forms::Control& control = row.control(form, page);
        control.setEnabled(row.start != Start::disabled);
        control.setVisible(row.start != Start::hidden);
        control.place(row.container(form, page), row.place);
    }
}

} // namespace

std::span<const Placing> listPagePlacings() {
    return listPage;
}

std::span<const Placing> optionsPlacings() {
    return options;
}

std::span<const Placing> buttonPlacings() {
    return buttons;
}

void placeControls(frmSetup& form) {
    form.setClientSize(formWidth, formHeight);
    form.TabStrip1.place(form, tabStripPlace);
    form.TabStrip1.setTabs(static_cast<int>(frameOfTab.size()));
    for (std::size_t tab = 0; tab < frameOfTab.size(); ++tab)
        form.TabStrip1.placeOnTab(static_cast<int>(tab), form.fraSetup[frameOfTab[tab]], pagePlace);
    place(form, options, 0);
    for (std::size_t page = 0; page < listPages; ++page)
        place(form, listPage, page);
    place(form, buttons, 0);
}

} // namespace setup
