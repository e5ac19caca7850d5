// A form with a toolbar, made as the program's toolbar forms are.
#pragma once

#include "contract/toolForm.h"
#include "forms/toolbar.h"
#include "forms/units.h"

#include <string>
#include <string_view>

namespace contract {

class BarForm : public ToolForm {
  public:
    BarForm() {
        bar.setImageList(&images);
        bar.place(*this, {});
    }
    forms::ImageList images;
    forms::Toolbar bar;
    std::string tip; ///< of each button

    /// A button for each 'b', with the first picture if there is one, and a separator for each '|'.
    void fill(std::string_view pattern) {
        bar.clearButtons();
        for (const char sign : pattern)
            if (sign == '|')
                bar.addButton("", "", forms::ButtonStyle::separator, 0);
            else
                bar.addButton("", "", forms::ButtonStyle::standard, images.count() > 0 ? 1 : 0).toolTipText =
                    tip;
    }

    void setClientWidth(int pixels) {
        const float frame = width() - scaleWidth();
        setWidth(resolution().toTwips(pixels) + frame);
    }
};

} // namespace contract
