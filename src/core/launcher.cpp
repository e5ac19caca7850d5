#include "core/launcher.h"

#include "core/windoInf.h"
#include "platform/dialogs.h"
#include "platform/programs.h"
#include "platform/user32.h"
#include "runtime/characters.h"
#include "runtime/text.h"
#include "store/eaglePath.h"
#include "store/mends.h"
#include "store/settings.h"
#include "store/state.h"
#include "store/textCatalogue.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace core {

namespace {

namespace key = store::key;

constexpr const char* controlPanel = "control panel";

std::string setting(const char* name) {
    return store::getini(store::section::toolbar, name);
}

/// The files to reopen: 1 board, 2 schematic, 4 library. With any of them a running EAGLE is searched by
/// file.
std::int32_t filesToReopen() {
    return store::getNumber(store::section::toolbar, key::winEAGLE);
}

void tellWrongPath() {
    platform::msgBox(store::LoadResString(1058 + store::languageOffset) + "\r\n" +
                         store::LoadResString(1059 + store::languageOffset),
                     platform::criticalStyle, store::LoadResString(3930 + store::languageOffset));
}

/// Windows that have been told to come back from their icons. They do so when they come to it: told twice,
/// one that was maximised before would become smaller.
using Restored = std::vector<platform::HWND>;

/// Brings the window that the latest title search has found to the front.
void activateFound(Restored& restored) {
    // Kept: the search looks for a title that holds the text, the activation for one that begins with it.
    // EAGLE numbers its titles, and none that does is error 5; or another program's window comes to the
    // front.
    if (!store::mended(store::Mend::frontSequence)) {
        platform::appActivate(searchTitle);
        return;
    }
    if (platform::IsIconic(foundWindow) && std::ranges::find(restored, foundWindow) == restored.end()) {
        platform::ShowWindow(foundWindow, platform::restoreWindow);
        restored.push_back(foundWindow);
    }
    platform::BringWindowToTop(foundWindow);
}

/// The window of the file that is named in the settings; where there is none, a window of the kind whose name
/// stands in that setting.
void bringFileToFront() {
    Restored restored;
    const platform::HWND window = findWindowByTitle(setting(key::eagleFile));
    if (window != platform::HWND::none) {
        platform::BringWindowToTop(window);
        // Kept: a window that is maximised becomes smaller by this.
        if (!store::mended(store::Mend::frontSequence))
            platform::ShowWindow(window, platform::restoreWindow);
        activateFound(restored);
        return;
    }
    const std::string file = setting(key::eagleFile);
    for (const char* kind : {"board", "schematic", "library"}) {
        if (runtime::findText(file, kind) == std::string::npos)
            continue;
        if (findWindowByTitle(kind) != platform::HWND::none)
            activateFound(restored);
        return;
    }
}

/// In this order, which leaves the board on top.
void bringEditorsToFront() {
    Restored restored;
    for (const char* kind : {"library", "schematic", "board"})
        if (findWindowByTitle(kind) != platform::HWND::none)
            activateFound(restored);
}

void bringToFront() {
    platform::BringWindowToTop(findWindowByTitle(controlPanel));
    if (filesToReopen() != 0)
        bringFileToFront();
    else
        bringEditorsToFront();
}

/// The name under a key, trimmed, if its file is to be reopened; empty otherwise.
std::string lastFile(std::int32_t bit, const char* name) {
    if ((filesToReopen() & bit) == 0)
        return {};
    return std::string(runtime::trim(setting(name)));
}

void start() {
    std::string tail;
    if (filesToReopen() != 0)
        tail = commandLineTail(
            {lastFile(1, key::lastBoard), lastFile(2, key::lastSCH), lastFile(4, key::lastLBR)});
    platform::shell(setting(key::eaglePath) + tail, platform::normalWithFocus);
}

} // namespace

std::string commandLineTail(const std::array<std::string, 3>& names) {
    const auto& [board, schematic, library] = names;
    const auto count =
        std::count_if(names.begin(), names.end(), [](const std::string& name) { return !name.empty(); });
    if (count == 0)
        return {};
    // Kept: one file follows the quote at once, with several a blank stands between. No name gets quotes.
    if (count == 1)
        return " -C \"window fit;\"" + board + schematic + library;
    if (library.empty())
        return " -C \"edit " + schematic + ";\" " + board;
    if (count == 2)
        return " -C \"open " + library + ";\" " + board + schematic;
    return " -C \"open " + library + "; edit " + schematic + ";\" " + board;
}

void startEagle() {
    if (!store::isEaglePath(setting(key::eaglePath))) {
        tellWrongPath();
        return;
    }
    const platform::HWND running = findWindowByTitle(controlPanel);
    if (store::getFlag(store::section::toolbar, key::oneEAGLE) && running != platform::HWND::none)
        bringToFront();
    else
        start();
}

} // namespace core
