// The toolbar forms: one lives as a child window inside each of EAGLE's editor windows.
//
// The three forms are one set of routines with the small differences of kinds.h.
#pragma once

#include "forms/form.h"
#include "forms/imageList.h"
#include "forms/pictureBox.h"
#include "forms/toolbar.h"
#include "platform/types.h"
#include "store/buttonLists.h"
#include "toolbars/kinds.h"

#include <cstdint>
#include <string>

namespace toolbars {

/// List selector of the toolbar that was clicked last; nothing reads it.
inline std::int16_t lastToolbarKind = 0;

class frmToolbar : public forms::Form {
  public:
    explicit frmToolbar(store::EditorKind kind);

    /// The editor window that the form stands in; the identity of the toolbar. EAGLE can close it at any
    /// moment.
    platform::HWND eagHND = platform::HWND::none;
    /// Index of the calculator of the same host, 0 for none.
    std::int32_t milIndex = 0;
    /// Written once, read by nothing.
    platform::HWND oldParent = platform::HWND::none;

    /// Builds the buttons anew from the form's list. Errors: 9 for an icon reference without a comma, 13 for
    /// an icon index that is no number, 35602 for two buttons with the same key.
    void loadVarBar();
    /// The same, with the height of the new rows for each kind.
    void rebuild();
    /// Reloads the form's list from the settings file.
    void loadLists();

    void Form_Load() override;
    /// Makes the form just high enough for its rows of buttons.
    void Form_Resize() override;
    /// The host has come to a screen of another resolution: size, place in the host and buttons follow, these
    /// as the list has them now. No window is raised, so that hosts behind others can be followed too. Errors
    /// as by loadVarBar.
    void followResolution(forms::Resolution resolution);
    void Form_MouseMove(int button, int shift, float x, float y) override;
    void Toolbar_MouseMove();
    void Toolbar_ButtonClick(forms::ToolbarButton& button);

    forms::Toolbar toolbar;
    forms::ImageList ImageList1; ///< rebuilt by every loadVarBar
    forms::PictureBox Picture1;  ///< an icon is drawn on it
    forms::PictureBox Picture2;  ///< holds the finished picture

  private:
    void loadRowPictures(const store::ButtonList& buttons);
    bool drawRowIcon(const std::string& reference);
    void addFixedPictures(int rows);
    void loadRowButtons(const store::ButtonList& buttons);
    void openSetup();

    store::EditorKind kind_;
    bool following_ = false; ///< followResolution sees to place and height
    const Differences& differences_;
};

/// The three forms under their names.
template <store::EditorKind ofKind>
struct ToolbarOfKind final : frmToolbar {
    ToolbarOfKind() : frmToolbar(ofKind) {}
};
using frmToolbarBRD = ToolbarOfKind<store::EditorKind::board>;
using frmToolbarSCH = ToolbarOfKind<store::EditorKind::schematic>;
using frmToolbarLBR = ToolbarOfKind<store::EditorKind::library>;

} // namespace toolbars
