// A form with the properties of the program's toolbar forms: a small title bar, no place in the task bar, and
// the user's click does not activate it.
#pragma once

#include "forms/form.h"

namespace contract {

class ToolForm : public forms::Form {
  public:
    ToolForm() {
        borderStyle = forms::BorderStyle::sizableToolWindow;
        showInTaskbar = false;
        activates = false;
        setClientSize(1800, 300);
    }
};

} // namespace contract
