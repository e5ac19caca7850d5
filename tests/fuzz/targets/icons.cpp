// Icon references, files that are looked at for icons, the bytes of such files, what a chooser is given, and
// pixels of icons.
#include "fuzz/targets/targets.h"

#include "desktop/desktop.h"
#include "forms/iconDirectory.h"
#include "runtime/runtimeError.h"
#include "store/frmIconChooser.h"
#include "store/iconExtract.h"
#include "store/iconPicture.h"
#include "store/iconReference.h"

namespace fuzz {

namespace {

using runtime::ErrorNumber;

bool known(const runtime::RuntimeError& error) {
    return error.number == ErrorNumber::subscriptOutOfRange || error.number == ErrorNumber::typeMismatch ||
           error.number == ErrorNumber::overflow;
}

void reference(const std::string& text) {
    try {
        const auto icon = store::IconReference::parse(text);
        expect(icon.file == text.substr(0, icon.file.size()), "a reference begins with its file", text);
        expect(text.find(',') != std::string::npos, "a reference has a comma", text);
        if (icon.file.find(',') == std::string::npos)
            expect(store::IconReference::parse(icon.text()) == icon, "a reference is written as it is read",
                   text);
    } catch (const runtime::RuntimeError& error) {
        expect(known(error), "a reference fails with one of three errors", text);
    }
}

void pixel(std::size_t onBlack, std::size_t onWhite) {
    const auto grey = [](std::size_t value) {
        return static_cast<std::uint32_t>(value | value << 8U | value << 16U);
    };
    const std::uint32_t seen = store::pixelSeen(grey(onBlack), grey(onWhite));
    const std::uint32_t opacity = seen >> 24U;
    if (onBlack <= onWhite) {
        expect(opacity == 0xFF - (onWhite - onBlack), "an icon's pixel lets through what it does not cover");
        // On black it gives what was seen there, as exactly as a byte can tell.
        const std::uint32_t shown = ((seen & 0xFFU) * opacity + 127) / 0xFF;
        expect(shown <= onBlack + 1 && onBlack <= shown + 1, "an icon's pixel is what was drawn on black");
    }
}

void chooser(Reader& reader) {
    desktop::World& desk = desktop::world();
    const std::string start = reader.text();
    const std::string typed = reader.text();
    const auto row = static_cast<int>(reader.below(12)) - 1;
    desk.modalScripts = {[&](forms::Form& form) {
        auto& shown = dynamic_cast<store::frmIconChooser&>(form);
        if (!typed.empty())
            shown.txtFile.edited(typed);
        shown.btnOk.click();
        if (row >= 0 && row < shown.grdIcons.count())
            shown.grdIcons.selected(row);
        shown.btnOk.click();
        shown.btnCancel.click();
    }};
    try {
        const std::string chosen = store::chooseIconFile(start, platform::HWND::none);
        if (!chosen.empty())
            reference(chosen);
    } catch (const runtime::RuntimeError& error) {
        expect(known(error), "a chooser begins with a reference or one of three errors", start);
        desk.modalScripts.clear();
    }
    desk.chooserCalls.clear();
}

/// What is read of the bytes of an .ico file, and of those of an icon in a library.
void bytes(std::string_view input) {
    const forms::IcoFile file(input.begin(), input.end());
    for (const int side : {16, 20, 32, 48, 300}) {
        const int best = forms::bestIconSide(file, side);
        expect(best == side || (best > 0 && best <= 256), "an icon is at most 256 pixels wide");
    }
    const auto found = forms::iconFilePictures(file);
    if (!found)
        return;
    const std::size_t count = found->pictures.size();
    expect(count > 0 && found->directory.size() == 6 + 14 * count,
           "a directory has an entry for each picture");
    expect((found->directory[4] | std::size_t{found->directory[5]} << 8U) == count,
           "a directory tells how many");
    for (const auto& place : found->pictures)
        expect(place.size >= 40 && place.first <= file.size() && place.size <= file.size() - place.first,
               "a picture stands in its file");
    const int best = forms::bestIconSide(found->directory, 16);
    expect(best > 0 && best <= 256, "the directory of a file tells the best side");
}

} // namespace

void icons(std::string_view input) {
    static const bool made = [] {
        desktop::world().addIcons("C:\\x.ico", 3);
        desktop::world().addIcons("C:\\kestrel\\a.dll", 9);
        return true;
    }();
    expect(made, "files with icons");
    Reader reader(input);
    const std::size_t what = reader.below(16);
    if (what == 0) {
        chooser(reader);
    } else if (what == 1) {
        const auto index = static_cast<std::int32_t>(reader.below(16)) - 2;
        const std::string file = reader.text();
        forms::PictureBox box;
        box.setPosition({0, 0, 270, 270});
        const forms::Picture before = box.image();
        const std::size_t open = desktop::world().icons.size();
        store::extractIconToPicture(file, index, box);
        const bool drawn = desktop::world().icons.size() > open;
        expect(drawn || box.image() == before, "what is not drawn leaves the surface", file);
        desktop::world().icons.clear();
    } else if (what == 2) {
        pixel(reader.below(256), reader.below(256));
    } else if (what == 3) {
        bytes(reader.rest());
    } else {
        reference(std::string(reader.rest()));
    }
}

} // namespace fuzz
