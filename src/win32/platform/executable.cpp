#include "platform/executable.h"

#include "runtime/characters.h"
#include "win32/common/wide.h"
#include "win32/platform/paths.h"

namespace platform {

const std::string& executableName() {
    static const std::string name = [] {
        const std::wstring& path = win32::ownPath();
        const std::wstring wide = path.substr(path.find_last_of(L'\\') + 1);
        std::string file = win32::toText(wide);
        if (win32::toWide(file) != wide) {
            const std::string whole = win32::pathText(path);
            file = whole.substr(runtime::findLastText(whole, "\\") + 1);
        }
        // Files are called by it: it must not hold what no file's name does.
        const bool lost = file.find('?') != std::string::npos;
        return lost ? std::string("kestrel") : file.substr(0, file.find_last_of('.'));
    }();
    return name;
}

const std::string& programFolder() {
    return win32::programFolderText();
}

} // namespace platform
