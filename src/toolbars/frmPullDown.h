// frmPullDown: a small form that is never shown. Its toolbar has neither buttons nor pictures, and a click on
// it does nothing.
#pragma once

#include "forms/form.h"
#include "forms/toolbar.h"

namespace toolbars {

class frmPullDown : public forms::Form {
  public:
    frmPullDown();

    forms::Toolbar Toolbar1;
};

/// The one instance, made at the first call.
frmPullDown& pullDown();

} // namespace toolbars
