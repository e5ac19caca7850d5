#include "win32/common/processEnd.h"

#include <cstdlib>

namespace win32 {

void endProcess() {
    std::_Exit(EXIT_SUCCESS);
}

} // namespace win32
