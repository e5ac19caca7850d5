// A form with the controls of the form library but for the toolbar, on three pages; the icon grid is in the
// chooser that it opens. What its events tell goes into the journal.
#pragma once

#include "forms/button.h"
#include "forms/form.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/listBox.h"
#include "forms/pictureBox.h"
#include "forms/tabStrip.h"
#include "forms/textBox.h"

#include <array>

namespace controls {

/// What the modal form asks for.
class NameForm : public forms::Form {
  public:
    NameForm();

    void Form_QueryUnload(bool& cancel) override;

  private:
    forms::Label labName;
    forms::TextBox txtName;
    forms::CommandButton btnDone;
};

class ControlsForm : public forms::Form {
  public:
    ControlsForm();

    void Form_Unload() override;

  private:
    void buildPages();
    void buildFields();
    void buildOptions();
    void buildLists();
    void buildLooks();
    void btnFill_Click();
    void btnLock_Click();

    forms::TabStrip tabPages;
    std::array<forms::Frame, 3> fraPage;

    forms::Frame fraFields;
    std::array<forms::Label, 3> labField;
    std::array<forms::TextBox, 3> txtField; ///< a plain one, one for numbers, one of five characters
    forms::Frame fraOptions;
    std::array<forms::OptionButton, 3> optSize;
    std::array<forms::CheckBox, 2> chkPart;
    forms::CommandButton btnLock;

    forms::ListBox lstRows;
    forms::ComboBox cboUnit;
    forms::CommandButton btnFill;
    forms::Label labRow;

    std::array<forms::Label, 5> labLook;
    forms::Line linDivider;
    forms::Line linPlain;
    forms::Image imgSeen;
    forms::PictureBox picDrawn;
    forms::CommandButton btnUp;

    forms::CommandButton btnName;
    std::array<forms::CommandButton, 2> btnIcon; ///< icon chooser in English and in German
    forms::CommandButton btnCancel;
    forms::CommandButton btnOk;
    NameForm nameForm;
};

} // namespace controls
