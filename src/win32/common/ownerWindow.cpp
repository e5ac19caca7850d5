#include "win32/common/ownerWindow.h"

#include "forms/mainForm.h"
#include "win32/common/native.h"

namespace win32 {

HWND ownerWindow() {
    return forms::mainForm == nullptr ? nullptr : native(forms::mainForm->hWnd());
}

} // namespace win32
