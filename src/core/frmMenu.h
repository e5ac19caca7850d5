// frmMenu: the form that carries the menu of the tray icon. It is never shown.
#pragma once

#include "forms/form.h"
#include "forms/menu.h"

namespace core {

class frmMenu : public forms::Form {
  public:
    frmMenu();

    /// Loads the form if needed and gives the entries their texts in the current language. Error 326 for a
    /// language without texts.
    void loadResources();
    void mnuTaskbar_Click(int index);

    /// Parent of the entries `mnuTaskbar`, which keep their indices.
    forms::Menu mnuTaskbarG;
};

/// The one instance, made at the first call.
frmMenu& menuForm();

} // namespace core
