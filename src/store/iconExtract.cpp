#include "store/iconExtract.h"

#include "platform/shell32.h"
#include "platform/user32.h"
#include "runtime/runtimeError.h"
#include "store/frmIconChooser.h"
#include "store/iconReference.h"
#include "store/mends.h"
#include "store/pathTokens.h"

#include <optional>

namespace store {

namespace {

/// An icon is given back at the end of the block, also where there is no memory to draw it.
class GivenBack {
  public:
    explicit GivenBack(platform::HICON icon) : icon_(icon) {}
    ~GivenBack() { platform::DestroyIcon(icon_); }
    GivenBack(const GivenBack&) = delete;
    GivenBack& operator=(const GivenBack&) = delete;

  private:
    platform::HICON icon_;
};

} // namespace

bool extractIconToPicture(const std::string& file, std::int32_t index, forms::PictureBox& picture) {
    try {
        // Kept: the large icon is fetched with the small one, never used and never given back. The platform
        // ends it with the next extraction.
        platform::HICON largeIcon = platform::HICON::none;
        platform::HICON smallIcon = platform::HICON::none;
        const forms::Resolution resolution = picture.resolution();
        const int side = resolution.scaled(platform::smallIconSide);
        if (platform::ExtractIconExA(expandTokens(file).c_str(), index, largeIcon, smallIcon, side) < 1)
            return false;
        {
            const GivenBack afterDrawing(smallIcon);
            picture.setAutoRedraw(true);
            picture.cls();
            // As much as the box, two pixels of the design wider than the icon, leaves at each side of it.
            const int margin = resolution.scaledDown(1);
            platform::DrawIconEx(picture.hDC(), margin, margin, smallIcon, 0, 0, 0, platform::drawNormally);
        }
        picture.refresh();
        picture.setAutoRedraw(false);
        return true;
    } catch (const runtime::RuntimeError&) { // silent by design
        return false;
    }
}

bool drawReference(const std::string& reference, forms::PictureBox& picture) {
    const std::optional<IconReference> icon = IconReference::readable(reference);
    return icon && extractIconToPicture(icon->file, icon->index, picture);
}

std::string chooseIconFile(const std::string& reference, platform::HWND owner,
                           const IconReference& otherwise) {
    IconReference icon;
    // Kept: without a reference there is no file, and one that cannot be read is an error.
    if (mended(Mend::unreadableRows))
        icon = IconReference::readable(reference).value_or(otherwise);
    else if (!reference.empty())
        icon = IconReference::parse(reference);
    const int result = platform::PickIconDlg(owner, icon.file, icon.index);
    if (result == platform::noIconChooser) {
        const std::optional<IconReference> picked = pickIcon(owner, icon);
        return picked ? picked->text() : std::string();
    }
    return result == platform::iconPicked ? icon.text() : std::string();
}

} // namespace store
