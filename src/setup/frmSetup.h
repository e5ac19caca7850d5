// frmSetup: the setup dialog. It edits working copies of the three button lists and the global options, and
// commits them with its OK button; only a change of the language takes effect at once.
//
// The controls of the three list pages are arrays numbered by EditorKind, and an event of theirs brings that
// number as `Index`. Some of the option buttons are wired across the pages; that is required, see
// listPages.cpp.
#pragma once

#include "forms/button.h"
#include "forms/form.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/listBox.h"
#include "forms/pictureBox.h"
#include "forms/tabStrip.h"
#include "forms/textBox.h"
#include "forms/timer.h"
#include "store/buttonLists.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace setup {

inline constexpr std::size_t listPages = 3;

template <typename Control>
using PerPage = std::array<Control, listPages>;

class frmSetup : public forms::Form {
  public:
    frmSetup();

    /// Loads the form if needed, gives all controls their texts in the current language, then fills lists and
    /// options from the form's own state.
    void loadResources();
    /// Takes the working copies anew from the saved lists and selects a tab, 0 to 3. Error 5 for another one.
    void setType(const std::int16_t& page);
    /// Shows a working copy in its list box, without a selection, and drops its removed records.
    /// Error 6 for a list beyond the 16-bit counter.
    void fillList(const std::int16_t& list);
    /// Fills the page of global options from the settings.
    void fillEAGLE();

    /// The previews are drawn anew, from the icons' larger pictures.
    void resolutionChanged() override;

    void Form_QueryUnload(bool& cancel) override;
    void Form_Unload() override;

    // What the program's main form is told; it wires all three. They are the dialog's and not an instance's:
    // each closing ends one.
    /// The user has chosen a language: the dialog's own texts follow it already.
    static inline std::function<void()> onNewLanguage;
    /// The dialog is about to close, and the records of EAGLE's windows are to be put back.
    static inline std::function<void()> onWindowReset;

    /// The dialog has closed after a save, however it closed. Only where that is mended.
    static inline std::function<void()> onSaved;
    /// Whether the OK button has saved anything since the dialog was opened.
    static inline bool anythingSaved = false;

    /// Whether the form has been closed. It is not opened again: setupForm() makes a new one.
    bool closed() const { return closed_; }

    /// The working copies, by EditorKind. They outlive the closing.
    PerPage<store::ButtonList> workList;
    /// Non-zero while an add routine fills the fields: their events change nothing.
    std::int16_t noUpdate = 0;

    forms::TabStrip TabStrip1;
    std::array<forms::Frame, 4> fraSetup; ///< 0 board, 1 options, 2 schematic, 3 library
    forms::CommandButton btnHelp;
    forms::CommandButton btnCancel;
    forms::CommandButton btnOk;

    // A list page.
    PerPage<forms::Frame> fraCommand;
    PerPage<forms::Label> labTitle;
    PerPage<forms::TextBox> txtTitle;
    PerPage<forms::Label> labPath;
    PerPage<forms::TextBox> txtPath;
    PerPage<forms::Label> labTooltip;
    PerPage<forms::TextBox> txtTooltip;
    PerPage<forms::Label> labPara;
    PerPage<forms::TextBox> txtPara;
    PerPage<forms::Label> labIcon;
    PerPage<forms::PictureBox> imgIcon; ///< hidden: the surface that icons are drawn on
    PerPage<forms::PictureBox> picView; ///< the preview
    PerPage<forms::CommandButton> btnIcon;
    std::array<forms::OptionButton, 3 * listPages> chkAdd; ///< none, input box, file dialog; three to a page
    PerPage<forms::Timer> Timer1{forms::Timer(previewPause), forms::Timer(previewPause),
                                 forms::Timer(previewPause)};
    PerPage<forms::ListBox> lstApps;
    PerPage<forms::Frame> fraActions;
    PerPage<forms::CommandButton> btnAdd;
    PerPage<forms::CommandButton> btnAddEAGLE;
    PerPage<forms::CommandButton> btnAddSep;
    PerPage<forms::CommandButton> btnRemove;
    PerPage<forms::CommandButton> btnH; ///< up
    PerPage<forms::CommandButton> btnL; ///< down

    // The page of global options. Pairs: 0 left, 1 right.
    forms::Frame fraEAGLE;
    forms::CheckBox chkEAGLE;
    forms::CheckBox chkClose;
    forms::Label labEAGLE;
    forms::TextBox txtEAGLE;
    forms::CommandButton btnEAGLE;
    forms::Label labLastOpen;
    forms::CheckBox chkLastBRD;
    forms::CheckBox chkLastSCH;
    forms::CheckBox chkLastLBR;
    forms::CheckBox chkOneInst;
    forms::Frame fraOptions;
    forms::CheckBox chkUnitCalc;
    std::array<forms::Label, 4> Label1; ///< 0, 1 of the units, 2, 3 of the accuracies
    std::array<forms::ComboBox, 2> cboUnit;
    std::array<forms::ComboBox, 2> cboAccur;
    std::array<forms::Line, 1> Line1;
    forms::Frame fraGlobal;
    forms::Label labLanguage;
    forms::ComboBox cboLanguage; ///< 0 English, 1 German

  private:
    static constexpr int previewPause = 50; ///< milliseconds
    /// Of the file dialogs: the file has to exist, no box for reading only, the current folder stays.
    static constexpr std::int32_t fileDialogFlags = 2103308;

    // loadResources.cpp
    void loadOptionTexts();
    // frmSetup.cpp
    void design();
    void designListPage(std::size_t page);
    void wire();
    void wireListPage(std::size_t page);
    void refreshPreview(std::size_t page);
    void Timer1_Timer(std::int16_t Index);
    void btnCancel_Click();
    // listPages.cpp
    void showEntryFields(std::int16_t list, const std::int16_t& type);
    void swapEntries(std::int16_t list, const std::int16_t& a, const std::int16_t& b);
    store::ToolButton& append(std::int16_t list, std::int16_t type);
    void emptyFields(std::int16_t list);
    void selectLast(std::int16_t list);
    void drawIcon(std::int16_t list, const std::string& reference);
    void lstApps_Click(std::int16_t Index);
    void storeText(std::int16_t Index, std::string store::ToolButton::*field, const forms::TextBox& box);
    void txtTitle_Change(std::int16_t Index);
    void txtPath_Change(std::int16_t Index);
    void txtTooltip_Change(std::int16_t Index);
    void txtPara_Change(std::int16_t Index);
    void btnAdd_Click(std::int16_t Index);
    void beginProgram(std::int16_t list);
    void addProgram(std::int16_t list, const std::string& file);
    void endProgram(std::int16_t list);
    void btnAddSep_Click(std::int16_t Index);
    void btnRemove_Click(std::int16_t Index);
    void btnH_Click(std::int16_t Index);
    void btnL_Click(std::int16_t Index);
    void chkAdd_Click(std::int16_t Index);
    // optionButtons.cpp
    void enableQuestion(std::size_t page, bool enabled);
    void showDialogKind(std::int16_t list);
    void storeDialogKind(std::int16_t Index);
    // eagleEntries.cpp
    void btnAddEAGLE_Click(std::int16_t Index);
    void btnIcon_Click(std::int16_t Index);
    void useIcon(std::int16_t list, const std::string& reference);
    // listKeys.cpp
    bool listKey(std::int16_t Index, const platform::KeyStroke& stroke);
    void selectRow(std::int16_t list, int row);
    void removeSelected(std::int16_t list);
    void copySelected(std::int16_t list);
    void paste(std::int16_t list);
    void doubleSelected(std::int16_t list);
    bool hasRoom(std::int16_t list, std::size_t rows) const;
    void insert(std::int16_t list, const std::vector<store::ToolButton>& rows);
    void moveUp(std::int16_t list, int target, int begin, int end);
    // dropping.cpp
    void filesDropped(std::int16_t Index, const std::vector<std::string>& files);
    bool programsDropped(std::int16_t list, const std::vector<std::string>& files);
    bool iconDropped(std::int16_t list, const std::string& file);
    // optionsPage.cpp
    void fillChoices();
    void cboLanguage_Click();
    void btnEAGLE_Click();
    static void btnHelp_Click();
    // saving.cpp
    void saveOptions();
    void saveUnits();
    void commitLists();
    static void showWrongPath();
    void btnOk_Click();

    bool closed_ = false;
};

/// The one instance, made at first use and anew after each closing. A new one starts with the controls as
/// designed and with the working copies of the one before.
frmSetup& setupForm();

/// Opens the dialog on a tab, 0 to 3, and returns once it has closed. If it is up already it stays as it is,
/// edits included, and the call returns at once. True if what stands in EAGLE's windows has been built anew.
bool openSetup(std::int16_t page);

} // namespace setup
