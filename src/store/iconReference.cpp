#include "store/iconReference.h"

#include "platform/executable.h"
#include "runtime/characters.h"
#include "runtime/numbers.h"
#include "runtime/runtimeError.h"
#include "runtime/text.h"
#include "store/mends.h"

#include <array>

#include <vector>

namespace store {

IconReference IconReference::parse(const std::string& text) {
    // Kept: a reference is split at its first comma, so that one whose file has a comma is an error.
    if (mended(Mend::unreadableRows)) {
        const std::size_t comma = runtime::findLastText(text, ",");
        if (comma == std::string::npos)
            throw runtime::RuntimeError(runtime::ErrorNumber::subscriptOutOfRange);
        return {text.substr(0, comma), runtime::toInt32(text.substr(comma + 1))};
    }
    const std::vector<std::string> parts = runtime::split(text, ",");
    const std::int32_t index = runtime::toInt32(runtime::element(parts, 1));
    return {parts.front(), index};
}

std::optional<IconReference> IconReference::readable(const std::string& text) {
    try {
        return parse(text);
    } catch (const runtime::RuntimeError&) {
        return std::nullopt;
    }
}

std::string IconReference::text() const {
    return file + "," + std::to_string(index);
}

IconReference kindIcon(EditorKind kind) {
    constexpr std::array<const char*, 3> files = {"\\brd.ico", "\\sch.ico", "\\lbr.ico"};
    return {platform::programFolder() + files[static_cast<std::size_t>(kind)]};
}

} // namespace store
