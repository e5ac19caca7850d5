#include "core/taskMenu.h"

namespace core {

void loadMenuTexts() {}

} // namespace core
