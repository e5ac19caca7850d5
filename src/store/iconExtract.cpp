#include "store/iconExtract.h"

#include "platform/shell32.h"
#include "platform/system.h"
#include "platform/user32.h"
#include "runtime/numbers.h"
#include "runtime/runtimeError.h"
#include "runtime/text.h"
#include "store/iconChooser.h"
#include "store/pathTokens.h"

#include <algorithm>
#include <array>

namespace store {

void extractIconToPicture(const std::string& file, std::int32_t index, forms::PictureBox& picture) {
    try {
        // Kept: the large icon is fetched with the small one, never used and never given back.
        platform::HICON largeIcon = platform::HICON::none;
        platform::HICON smallIcon = platform::HICON::none;
        if (platform::ExtractIconExA(expandTokens(file).c_str(), index, largeIcon, smallIcon) < 1)
            return;
        picture.setAutoRedraw(true);
        picture.cls();
        platform::DrawIconEx(picture.hDC(), 1, 1, smallIcon, 0, 0, 0, 3);
        platform::DestroyIcon(smallIcon);
        picture.refresh();
        picture.setAutoRedraw(false);
    } catch (const runtime::RuntimeError&) { // NOLINT(bugprone-empty-catch): silent by design
    }
}

std::string chooseIconFile(const std::string& reference, platform::HWND owner) {
    std::string file;
    std::int32_t index = 0;
    if (!reference.empty()) {
        const std::vector<std::string> parts = runtime::split(reference, ',');
        file = parts.front();
        index = runtime::toInt32(runtime::element(parts, 1));
    }
    // A start file that does not fit is cut: the last character stays the terminator.
    std::array<char16_t, iconPathSize> buffer = {};
    const std::u16string wide = platform::toUtf16(file);
    std::copy_n(wide.begin(), std::min(wide.size(), buffer.size() - 1), buffer.begin());
    int result = platform::PickIconDlg(owner, buffer, index);
    constexpr int noChooser = -1;
    if (result == noChooser)
        result = pickIcon(owner, buffer, index);
    if (result != 1)
        return {};
    const auto end = std::find(buffer.begin(), buffer.end(), u'\0');
    return platform::toAnsi(std::u16string_view(buffer.begin(), end)) + "," + std::to_string(index);
}

} // namespace store
