#include "win32/common/processSettings.h"

#include <windows.h>

namespace win32 {

void settleProcess() {
    BOOL swallow = FALSE;
    // A Windows 7 without its updates does not know it, and goes on as it does.
    SetUserObjectInformationA(GetCurrentProcess(), UOI_TIMERPROC_EXCEPTION_SUPPRESSION, &swallow,
                              sizeof swallow);
}

} // namespace win32
