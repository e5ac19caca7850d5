// All controls of the setup dialog, by name.
#pragma once

#include "setup/frmSetup.h"
#include "setup/geometry.h"

#include <span>
#include <string>
#include <vector>

namespace setup {

/// A control with the name that the table of places gives it, behind it its page.
struct Named {
    std::string name;
    forms::Control* control;
    forms::Container* container;
};

inline std::vector<Named> controlsOf(frmSetup& form) {
    std::vector<Named> all;
    const auto add = [&](std::span<const Placing> rows, std::size_t page, const std::string& ending) {
        for (const Placing& row : rows)
            all.push_back({row.name + ending, &row.control(form, page), &row.container(form, page)});
    };
    for (std::size_t page = 0; page < setup::listPages; ++page)
        add(setup::listPagePlacings(), page, "/" + std::to_string(page));
    add(setup::optionsPlacings(), 0, {});
    add(setup::buttonPlacings(), 0, {});
    return all;
}

} // namespace setup
