#include "core/splash.h"

namespace core {

void showSplash() {}

} // namespace core
