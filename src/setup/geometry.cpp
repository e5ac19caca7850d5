// The order of the rows is that of the Tab key; a label stands before the field that its mnemonic leads to.
#include "setup/geometry.h"

#include "forms/control.h"
#include "setup/frmSetup.h"

#include <cstddef>
#include <span>

namespace setup {

namespace {

enum class Start { enabled, disabled, hidden };

struct Placing {
    forms::Control& (*control)(frmSetup& form, std::size_t page);
    forms::Container& (*container)(frmSetup& form, std::size_t page);
    forms::Position place; ///< twips, in the container's client area
    Start start = Start::enabled;
};

/// The frame of each tab, as an index of fraSetup: the options, then the lists by their numbers.
constexpr std::array<std::size_t, 4> frameOfTab = {1, 0, 2, 3};

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
    return form.fraSetup[frameOfTab[page + 1]];
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

/// What stands on each of the three list pages.
constexpr Placing listPage[] = {
    {ofPage<&S::fraCommand>, inListPage, {150, 120, 5955, 3525}},
    {ofPage<&S::labTitle>, inCommand, {120, 360, 1335, 255}},
    {ofPage<&S::txtTitle>, inCommand, {1620, 300, 4035, 315}, disabled},
    {ofPage<&S::labPath>, inCommand, {60, 840, 1395, 255}},
    {ofPage<&S::txtPath>, inCommand, {1620, 780, 4035, 315}, disabled},
    {ofPage<&S::labTooltip>, inCommand, {180, 1320, 1275, 255}},
    {ofPage<&S::txtTooltip>, inCommand, {1620, 1260, 4035, 315}, disabled},
    {ofPage<&S::labPara>, inCommand, {180, 1770, 1275, 255}},
    {ofPage<&S::txtPara>, inCommand, {1620, 1740, 4035, 315}, disabled},
    {ofPage<&S::labIcon>, inCommand, {480, 2460, 915, 255}},
    {ofPage<&S::imgIcon>, inCommand, {300, 2400, 375, 345}, Start::hidden},
    {ofPage<&S::picView>, inCommand, {1680, 2430, 345, 345}},
    {ofPage<&S::btnIcon>, inCommand, {720, 3000, 1335, 315}, disabled},
    {option<0>, inCommand, {2760, 2340, 2895, 315}, disabled},
    {option<1>, inCommand, {2760, 2700, 2955, 315}, disabled},
    {option<2>, inCommand, {2760, 3090, 2955, 315}, disabled},
    {ofPage<&S::lstApps>, inListPage, {150, 3840, 3045, 3765}},
    {ofPage<&S::fraActions>, inListPage, {3450, 3750, 2655, 3855}},
    {ofPage<&S::btnAdd>, inActions, {240, 300, 2115, 315}},
    {ofPage<&S::btnAddEAGLE>, inActions, {240, 810, 2115, 315}},
    {ofPage<&S::btnAddSep>, inActions, {240, 1320, 2115, 315}},
    {ofPage<&S::btnRemove>, inActions, {240, 1800, 2115, 315}},
    {ofPage<&S::btnH>, inActions, {240, 2310, 525, 585}},
    {ofPage<&S::btnL>, inActions, {240, 3060, 555, 555}},
};

/// What stands on the page of global options. The page number given to the rows does not matter.
constexpr Placing options[] = {
    {single<&S::fraEAGLE>, inOptionsPage, {150, 150, 5955, 3135}},
    {single<&S::chkEAGLE>, inEAGLE, {330, 330, 4155, 315}},
    {single<&S::chkClose>, inEAGLE, {330, 750, 5475, 315}},
    {single<&S::labEAGLE>, inEAGLE, {90, 1260, 1245, 345}},
    {single<&S::txtEAGLE>, inEAGLE, {330, 1560, 4035, 315}},
    {single<&S::btnEAGLE>, inEAGLE, {4560, 1560, 1155, 315}},
    {single<&S::labLastOpen>, inEAGLE, {330, 1950, 4455, 315}},
    {single<&S::chkLastBRD>, inEAGLE, {330, 2280, 1545, 315}},
    {single<&S::chkLastSCH>, inEAGLE, {1980, 2280, 1545, 315}},
    {single<&S::chkLastLBR>, inEAGLE, {3750, 2280, 1545, 315}},
    {single<&S::chkOneInst>, inEAGLE, {330, 2670, 5295, 315}},
    {single<&S::fraOptions>, inOptionsPage, {150, 3510, 5955, 2805}},
    {single<&S::chkUnitCalc>, inOptions, {330, 360, 4155, 315}},
    {element<&S::Label1, 0>, inOptions, {870, 900, 2055, 225}},
    {element<&S::cboUnit, 0>, inOptions, {1080, 1140, 1500, 315}},
    {element<&S::Label1, 1>, inOptions, {3720, 900, 2055, 225}},
    {element<&S::cboUnit, 1>, inOptions, {3900, 1170, 1500, 315}},
    {element<&S::Line1, 0>, inOptions, {3030, 780, 0, 1770}},
    {element<&S::Label1, 2>, inOptions, {810, 1770, 2055, 225}},
    {element<&S::cboAccur, 0>, inOptions, {1080, 2040, 1500, 315}},
    {element<&S::Label1, 3>, inOptions, {3690, 1770, 2055, 225}},
    {element<&S::cboAccur, 1>, inOptions, {3900, 2040, 1500, 315}},
    {single<&S::fraGlobal>, inOptionsPage, {150, 6450, 5955, 1095}},
    {single<&S::labLanguage>, inGlobal, {2010, 510, 1815, 375}},
    {single<&S::cboLanguage>, inGlobal, {3900, 450, 1500, 315}},
};

/// What stands beneath the tabs. The page number does not matter.
constexpr Placing buttons[] = {
    {single<&S::btnHelp>, inForm, {1440, 8910, 1125, 315}},
    {single<&S::btnCancel>, inForm, {3660, 8910, 1185, 315}},
    {single<&S::btnOk>, inForm, {5160, 8910, 1155, 315}},
};

/// Client area of the form, in twips.
constexpr float formWidth = 6780;
constexpr float formHeight = 9375;
constexpr forms::Position tabStripPlace{150, 120, 6495, 8625};
/// Place of every page's frame on the tab strip.
constexpr forms::Position pagePlace{150, 660, 6195, 7755};

void place(frmSetup& form, std::span<const Placing> rows, std::size_t page) {
    for (const Placing& row : rows) {
        forms::Control& control = row.control(form, page);
        control.setEnabled(row.start != Start::disabled);
        control.setVisible(row.start != Start::hidden);
        control.place(row.container(form, page), row.place);
    }
}

} // namespace

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
