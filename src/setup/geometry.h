// Where the controls of the setup dialog stand: the one table of their containers, places and start states.
// The order of the rows is that of the Tab key; a label stands before the field that its mnemonic leads to.
#pragma once

#include "forms/control.h"
#include "setup/frmSetup.h"

#include <cstddef>
#include <span>

namespace setup {

enum class Start { enabled, disabled, hidden };

struct Placing {
    const char* name;
    forms::Control& (*control)(frmSetup& form, std::size_t page);
    forms::Container& (*container)(frmSetup& form, std::size_t page);
    forms::Position place; ///< twips, in the container's client area
    Start start = Start::enabled;
};

/// Client area of the form, in twips.
inline constexpr float formWidth = 6780;
inline constexpr float formHeight = 9375;
/// Place of every page's frame on the tab strip.
inline constexpr forms::Position pagePlace{150, 660, 6195, 7755};

/// The frame of each tab, as an index of fraSetup.
inline constexpr std::array<std::size_t, 4> frameOfTab = {1, 0, 2, 3};
/// The frame of a list page, as an index of fraSetup; its tab is the page's number plus 1.
constexpr std::size_t frameOfList(std::size_t page) {
    return frameOfTab[page + 1];
}

/// What stands on each of the three list pages.
std::span<const Placing> listPagePlacings();
/// What stands on the page of global options. The page number given to the rows does not matter.
std::span<const Placing> optionsPlacings();
/// What stands beneath the tabs. The page number does not matter.
std::span<const Placing> buttonPlacings();

/// Places all controls of a new form and gives them their start states.
void placeControls(frmSetup& form);

} // namespace setup
