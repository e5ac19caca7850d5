// From the form's button list to visible buttons.
#include "store/iconExtract.h"
#include "store/iconReference.h"
#include "store/mends.h"
#include "toolbars/buttonTag.h"
#include "toolbars/frmPullDown.h"
#include "toolbars/frmToolbar.h"
#include "toolbars/pictures.h"

#include <string>

namespace toolbars {

namespace {

constexpr const char* configKey = "Config";
constexpr const char* overKey = "Over";

} // namespace

void frmToolbar::loadVarBar() {
    if (differences_.touchesPullDown)
        pullDown().Toolbar1.setImageList(nullptr);
    // The first use of a control loads the form, so that the list below is fresh from the settings file.
    load();
    toolbar.setImageList(nullptr);
    ImageList1.clear();
    ImageList1.imageWidth = pictureSide;
    ImageList1.imageHeight = pictureSide;
    ImageList1.setResolution(resolution());
    toolbar.clearButtons();

    const store::ButtonList& buttons = *store::listOf(kind_).buttons;
    if (!buttons.allocated()) {
        addFixedPictures(0);
    } else {
        loadRowPictures(buttons);
        loadRowButtons(buttons);
    }
    forms::ToolbarButton& config = toolbar.addButton(configKey, "", forms::ButtonStyle::standard, configKey);
    config.toolTipText = "Configuration";
    config.description = "Configuration";
    config.tag = configKey;
    // Without a window, which the system has refused while the form was loaded, or which has gone with its
    // host, nobody will see what has just been filled in. The toolbar cannot refuse it piece by piece: a list
    // that is not as it should be fails here as in any other, and a key is one that is not there yet.
    if (lost())
        toolbar.windowLost();
    if (differences_.resizesAtEnd)
        Form_Resize();
}

void frmToolbar::loadRowPictures(const store::ButtonList& buttons) {
    int number = 0;
    for (std::int32_t row = 1; row <= buttons.upperBound(); ++row) {
        const store::ToolButton& button = buttons[row];
        if (!store::standsInToolbars(button))
            continue;
        ++number;
        if (!drawRowIcon(button.icon)) {
            ImageList1.add(number, "", fixedPictures(resolution()).picture(differences_.pictureKey));
            continue;
        }
        Picture2.setPicture(Picture1.image());
        ImageList1.add(number, "", Picture2.picture());
    }
    addFixedPictures(number);
}

/// Draws a row's icon on the surface. False if the row gets the picture of its kind.
bool frmToolbar::drawRowIcon(const std::string& reference) {
    if (store::mended(store::Mend::unreadableRows))
        return store::drawReference(reference, Picture1);
    if (reference.empty())
        return false;
    // Kept: a reference that cannot be read is an error, and an icon that cannot be had leaves the surface as
    // it was: the row gets the last good icon.
    const auto icon = store::IconReference::parse(reference);
    store::extractIconToPicture(icon.file, icon.index, Picture1);
    return true;
}

void frmToolbar::addFixedPictures(int rows) {
    const forms::ImageList& fixed = fixedPictures(resolution());
    ImageList1.add(rows + 1, configKey, fixed.picture(configKey));
    ImageList1.add(rows + 2, overKey, fixed.picture(overKey));
    toolbar.setImageList(&ImageList1);
}

void frmToolbar::loadRowButtons(const store::ButtonList& buttons) {
    int number = 0;
    for (std::int32_t row = 1; row <= buttons.upperBound(); ++row) {
        const store::ToolButton& button = buttons[row];
        if (!store::standsInToolbars(button))
            continue;
        ++number;
        if (button.type == store::entryType::separator) {
            toolbar.addButton("", "", forms::ButtonStyle::separator, 0);
            continue;
        }
        std::string key = button.name + std::to_string(row);
        // Kept: two rows can have the same key, "a1" in row 1 and "a" in row 11, and the toolbar refuses it.
        // No row's own key ends so.
        while (store::mended(store::Mend::noEnd) && toolbar.findButton(key) != nullptr)
            key += '\'';
        forms::ToolbarButton& added = toolbar.addButton(key, "", forms::ButtonStyle::standard, number);
        added.toolTipText = button.tooltip;
        added.description = button.name;
        added.tag = buttonTag(button);
    }
}

} // namespace toolbars
