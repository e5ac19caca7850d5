#include "journal.h"

#include <windows.h>

namespace journal {

namespace {

/// Open until the process ends; others may read it meanwhile.
HANDLE file() {
    static const HANDLE opened = [] {
        std::string path(MAX_PATH, '\0');
        path.resize(GetModuleFileNameA(nullptr, path.data(), MAX_PATH));
        path = path.substr(0, path.rfind('\\') + 1) + "controls-journal.txt";
        return CreateFileA(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS, 0, nullptr);
    }();
    return opened;
}

} // namespace

void write(const std::string& line) {
    const std::string whole = line + "\n";
    DWORD written = 0;
    WriteFile(file(), whole.data(), static_cast<DWORD>(whole.size()), &written, nullptr);
}

} // namespace journal
