#include "store/eaglePath.h"

#include "platform/files.h"
#include "runtime/text.h"

namespace store {

bool isEaglePath(std::string_view path) {
    return runtime::lowerCase(platform::dir(path)) == "eagle.exe";
}

} // namespace store
