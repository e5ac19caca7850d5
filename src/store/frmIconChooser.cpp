#include "store/frmIconChooser.h"

#include "platform/comdlg32.h"
#include "platform/files.h"
#include "platform/shell32.h"
#include "runtime/characters.h"
#include "runtime/text.h"
#include "store/iconChooserTexts.h"
#include "store/iconPicture.h"

#include <algorithm>
#include <array>

namespace store {

using platform::iconPathSize;

namespace {

/// A name as users bring it: the shell copies a path with quotes around it.
std::string cleaned(std::string_view name) {
    name = runtime::trim(name);
    if (name.size() >= 2 && name.starts_with('"') && name.ends_with('"'))
        name = runtime::trim(name.substr(1, name.size() - 2));
    return std::string(name);
}

bool exists(const std::string& file) {
    return file.find_first_of("*?") == std::string::npos && !platform::dir(file).empty();
}

/// The file dialog's list of filters.
std::string filterList(const IconChooserTexts& texts) {
    constexpr std::string_view patterns = "*.ico;*.exe;*.dll";
    const auto entry = [](std::string_view text, std::string_view pattern) {
        return std::string(text).append(1, '\0').append(pattern).append(1, '\0');
    };
    const std::string shown = std::string(texts.iconFiles).append(" (").append(patterns).append(")");
    return entry(shown, patterns) + entry(texts.allFiles, "*.*").append(1, '\0');
}

} // namespace

frmIconChooser::frmIconChooser(platform::HWND owner, const IconReference& start) : startIndex_(start.index) {
    ownerWindow = owner;
    borderStyle = forms::BorderStyle::fixedDialog;
    showInTaskbar = false;
    centreOnScreen = true;
    followsScreen = true;
    firstFocus = &grdIcons;
    setTexts();
    setClientSize(7350, 6255);
    build();
    txtFile.setText(runtime::cutToSize(start.file, iconPathSize - 1));
    txtFile.maxLength = static_cast<int>(iconPathSize) - 1;
    txtFile.onChange = [this] { txtFile_Change(); };
    btnBrowse.onClick = [this] { btnBrowse_Click(); };
    grdIcons.onClick = [this] { enableOk(); };
    grdIcons.onDblClick = [this] { btnOk_Click(); };
    btnOk.onClick = [this] { btnOk_Click(); };
    btnCancel.onClick = [this] { unload(); };
}

void frmIconChooser::Form_Load() {
    readFile(startIndex_);
}

void frmIconChooser::setTexts() {
    const IconChooserTexts& texts = iconChooserTexts();
    setCaption(texts.title);
    labFile.setCaption(texts.file);
    btnBrowse.setCaption(texts.browse);
    btnOk.setCaption(texts.ok);
    btnCancel.setCaption(texts.cancel);
}

void frmIconChooser::build() {
    constexpr forms::Position gridPlace{150, 960, 7050, 4590};
    labFile.place(*this, {150, 180, 600, 240});
    txtFile.place(*this, {750, 150, 4950, 315});
    btnBrowse.place(*this, {5790, 120, 1410, 375});
    labIcons.place(*this, {150, 660, 7050, 240});
    grdIcons.place(*this, gridPlace);
    labMessage.alignment = forms::Alignment::centre;
    labMessage.place(*this, {gridPlace.left, gridPlace.top + 1200, gridPlace.width, 240});
    btnOk.isDefault = true;
    btnOk.place(*this, {4440, 5730, 1320, 375});
    btnCancel.isCancel = true;
    btnCancel.place(*this, {5880, 5730, 1320, 375});
}

void frmIconChooser::readFile(std::int32_t index) {
    const IconChooserTexts& texts = iconChooserTexts();
    const std::string file = cleaned(txtFile.text());
    txtFile.setText(file);
    unread_ = false;
    const int count = file.size() < iconPathSize ? platform::iconCount(file.c_str()) : 0;
    if (count < 1) {
        say(file.empty() ? texts.noFile : exists(file) ? texts.noIcons : texts.notFound);
        return;
    }
    const int shown = std::min(count, mostIcons);
    std::string heading = texts.icons;
    if (shown < count)
        heading.append(" (").append(texts.onlyTheFirst).append(" " + std::to_string(shown) + ")");
    labIcons.setCaption(heading + ":");
    labMessage.setVisible(false);
    grdIcons.show(shown, [file](int icon, int side) { return iconPicture(file, icon, side); });
    grdIcons.setVisible(true);
    if (index >= 0 && index < shown)
        grdIcons.setSelectedIndex(index);
    enableOk();
}

void frmIconChooser::say(const std::string& message) {
    grdIcons.clear();
    grdIcons.setVisible(false);
    labIcons.setCaption(iconChooserTexts().icons + ":");
    labMessage.setCaption(message);
    labMessage.setVisible(true);
    enableOk();
}

/// OK takes the icon that is selected, or looks for those of a file that has just been named.
void frmIconChooser::enableOk() {
    btnOk.setEnabled(unread_ || grdIcons.selectedIndex() >= 0);
}

/// To the icons, or back to the name if it leads to none.
void frmIconChooser::focusIcons() {
    if (grdIcons.count() > 0) {
        grdIcons.setFocus();
        return;
    }
    txtFile.setFocus();
    txtFile.setSelStart(0);
    txtFile.setSelLength(static_cast<int>(runtime::characterCount(txtFile.text())));
}

void frmIconChooser::txtFile_Change() {
    const IconChooserTexts& texts = iconChooserTexts();
    unread_ = !cleaned(txtFile.text()).empty();
    say(unread_ ? texts.unread : texts.noFile);
}

void frmIconChooser::btnBrowse_Click() {
    // A start name that is no file's would keep the dialog from coming up at all.
    const std::string present = cleaned(txtFile.text());
    std::array<char, iconPathSize> buffer = {};
    if (present.size() < buffer.size() && exists(present))
        std::copy(present.begin(), present.end(), buffer.begin());
    const IconChooserTexts& texts = iconChooserTexts();
    const std::string filter = filterList(texts);
    constexpr std::uint32_t hideReadOnly = 0x4;
    constexpr std::uint32_t keepFolder = 0x8;
    constexpr std::uint32_t pathMustExist = 0x800;
    constexpr std::uint32_t fileMustExist = 0x1000;
    constexpr std::uint32_t explorer = 0x80000;
    platform::OPENFILENAMEA record;
    record.lStructSize = platform::fileDialogRecordSize;
    record.hwndOwner = hWnd();
    record.lpstrFilter = filter.c_str();
    record.nFilterIndex = 1;
    record.lpstrFile = buffer.data();
    record.nMaxFile = static_cast<std::uint32_t>(buffer.size());
    record.lpstrTitle = texts.browseTitle.c_str();
    record.Flags = hideReadOnly | keepFolder | pathMustExist | fileMustExist | explorer;
    if (platform::GetOpenFileNameA(record) == 0)
        return;
    txtFile.setText(buffer.data());
    readFile(0);
    focusIcons();
}

void frmIconChooser::btnOk_Click() {
    if (unread_) {
        readFile(0);
        focusIcons();
        return;
    }
    chosen_ = IconReference{txtFile.text(), grdIcons.selectedIndex()};
    unload();
}

std::optional<IconReference> pickIcon(platform::HWND owner, const IconReference& start) {
    frmIconChooser form(owner, start);
    form.showModal();
    return form.chosen();
}

} // namespace store
