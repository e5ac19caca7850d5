// frmIconChooser: lets the user pick an icon of a file. Above, the file with a button to look for another
// one; below it, the file's icons, or a text that says why there are none.
//
// What the grid shows always belongs to the file that is named above: with the first change of the name the
// icons go, and Enter or OK brings those of the new file.
#pragma once

#include "forms/button.h"
#include "forms/form.h"
#include "forms/iconGrid.h"
#include "forms/label.h"
#include "forms/textBox.h"
#include "store/iconReference.h"

#include <cstdint>
#include <optional>
#include <string>

namespace store {

/// Of a file with more icons only the first ones are shown.
inline constexpr int mostIcons = 1000;

class frmIconChooser : public forms::Form {
  public:
    /// Begins with the icon `start`, a name that is too long for the chooser being cut. With another index
    /// than one of the file's icons none is selected.
    frmIconChooser(platform::HWND owner, const IconReference& start);

    /// What the user has confirmed; nothing after a cancel.
    const std::optional<IconReference>& chosen() const { return chosen_; }

    void Form_Load() override;

    forms::Label labFile;
    forms::TextBox txtFile;
    forms::CommandButton btnBrowse;
    forms::Label labIcons;
    forms::IconGrid grdIcons;
    forms::Label labMessage; ///< in the place of the grid
    forms::CommandButton btnOk;
    forms::CommandButton btnCancel;

  private:
    void build();
    void setTexts();
    void txtFile_Change();
    void btnBrowse_Click();
    void btnOk_Click();

    /// Shows the icons of the file that is named, that number `index` selected if it is there.
    void readFile(std::int32_t index);
    void say(const std::string& message);
    void enableOk();
    void focusIcons();

    std::int32_t startIndex_;
    bool unread_ = false; ///< the name has been edited, the icons are not shown yet
    std::optional<IconReference> chosen_;
};

/// Lets the user pick an icon with this form, beginning with `start`; nothing after a cancel.
std::optional<IconReference> pickIcon(platform::HWND owner, const IconReference& start);

} // namespace store
