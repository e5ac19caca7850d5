#include "store/mends.h"

#include "runtime/runtimeError.h"
#include "store/settings.h"

namespace store {

bool mendSetting() {
    try {
        return getFlag(section::global, key::mend);
    } catch (const runtime::RuntimeError&) {
        // A number that is too large for a double is none the less not 0.
        return true;
    }
}

} // namespace store
