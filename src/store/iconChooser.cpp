#include "store/iconChooser.h"

#include "platform/system.h"
#include "store/frmIconChooser.h"

#include <algorithm>

namespace store {

int pickIcon(platform::HWND owner, std::span<char16_t> file, std::int32_t& index) {
    const auto end = std::find(file.begin(), file.end(), u'\0');
    frmIconChooser form(owner, platform::toAnsi(std::u16string_view(file.begin(), end)), index);
    form.showModal();
    const std::optional<ChosenIcon>& chosen = form.chosen();
    if (!chosen)
        return 0;
    const std::u16string wide = platform::toUtf16(chosen->file);
    std::fill(file.begin(), file.end(), u'\0');
    std::copy_n(wide.begin(), std::min(wide.size(), file.size() - 1), file.begin());
    index = chosen->index;
    return 1;
}

} // namespace store
