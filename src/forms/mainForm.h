// The program's main form: hidden, it owns what has no other owner.
#pragma once

#include "forms/form.h"

namespace forms {

/// Set by that form itself for as long as it is there; null before and after.
inline Form* mainForm = nullptr;

} // namespace forms
