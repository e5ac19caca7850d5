#include "win32/platform/iconChooser.h"

#include "platform/shell32.h"
#include "win32/common/components.h"
#include "win32/common/systemDialog.h"
#include "win32/platform/hosts.h"
#include "win32/platform/paths.h"

#include <algorithm>
#include <array>

namespace win32 {

int callIconChooser(IconChooser choose, HWND owner, std::string& file, std::int32_t& index) {
    std::array<wchar_t, platform::iconPathSize> buffer = {};
    // The chooser reads the file on our thread, for as long as a host that does not answer takes. Without a
    // file it begins with icons of its own.
    const std::wstring start = widePath(hostAnswers(file) ? file : std::string());
    std::copy_n(start.begin(), std::min(start.size(), buffer.size() - 1), buffer.begin());
    int chosen = index;
    keepComponents();
    const SystemDialog shown(owner);
    const int result = choose(shown.owner(), buffer.data(), static_cast<UINT>(buffer.size()), &chosen);
    if (result == platform::iconPicked) {
        const auto end = std::find(buffer.begin(), buffer.end(), L'\0');
        file = pathText({buffer.begin(), end});
        index = chosen;
    }
    return result;
}

} // namespace win32
