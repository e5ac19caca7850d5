// The pictures that the program carries as resources: GIF files.
#include "forms/picture.h"

#include "forms/gif.h"

#include <windows.h>

#include <cstdint>
#include <string>

namespace forms {

Picture loadPicture(std::string_view name) {
    const HRSRC found = FindResourceA(nullptr, std::string(name).c_str(), "GIF");
    const HGLOBAL loaded = found == nullptr ? nullptr : LoadResource(nullptr, found);
    const auto* const bytes =
        loaded == nullptr ? nullptr : static_cast<const std::uint8_t*>(LockResource(loaded));
    if (bytes == nullptr)
        return {};
    return readGif({bytes, SizeofResource(nullptr, found)});
}

} // namespace forms
