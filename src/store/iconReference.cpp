#include "store/iconReference.h"

#include "runtime/numbers.h"
#include "runtime/text.h"

#include <vector>

namespace store {

IconReference IconReference::parse(const std::string& text) {
    const std::vector<std::string> parts = runtime::split(text, ",");
    const std::int32_t index = runtime::toInt32(runtime::element(parts, 1));
    return {parts.front(), index};
}

std::string IconReference::text() const {
    return file + "," + std::to_string(index);
}

} // namespace store
