#include "runtime/version.h"

namespace runtime {

const char* const version = KESTREL_VERSION;

} // namespace runtime
