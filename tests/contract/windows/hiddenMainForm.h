// The program's hidden window, which owns its message boxes, as a test has it.
#pragma once

#include "forms/form.h"
#include "forms/mainForm.h"

namespace contract {

/// Stands from its making to its end.
class MainForm : public forms::Form {
  public:
    MainForm() {
        forms::mainForm = this;
        borderStyle = forms::BorderStyle::none;
        showInTaskbar = false;
        load();
    }
    ~MainForm() override { forms::mainForm = nullptr; }
    MainForm(const MainForm&) = delete;
    MainForm& operator=(const MainForm&) = delete;
};

} // namespace contract
