#include "core/launcher.h"

namespace core {

void startEagle() {}

} // namespace core
