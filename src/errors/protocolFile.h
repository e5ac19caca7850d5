// Where protocols are kept.
#pragma once

#include "platform/executable.h"
#include "runtime/characters.h"

#include <string>
#include <string_view>

namespace errors {

/// Path of the file beside the executable that has its name and this extension, dot included.
inline std::string protocolFile(std::string_view extension) {
    std::string path = platform::programFolder();
    if (!runtime::endsInCharacter(path, "\\"))
        path += '\\';
    return path.append(platform::executableName()).append(extension);
}

} // namespace errors
