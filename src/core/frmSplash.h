// The splash: shown for two seconds at the start of the program, and as its about box from the tray's menu.
#pragma once

#include "forms/form.h"
#include "forms/label.h"
#include "forms/timer.h"

namespace core {

class frmSplash : public forms::Form {
  public:
    frmSplash();

    void Form_Load() override;
    void Form_Unload() override;
    void Form_Click() override;

    forms::Timer Timer1{2000}; ///< runs from the load on
    forms::Image Image2;
    forms::Label labAuthor;
    forms::Label labVersion;
    forms::Label labCaption;
    forms::Image Image1;

  private:
    /// However the splash is closed, it is by this routine.
    void Timer1_Timer();
};

/// The one instance, made at the first call. Each showing loads it anew.
frmSplash& splashForm();

} // namespace core
