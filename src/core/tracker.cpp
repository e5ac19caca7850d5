// One tick: which windows of EAGLE's are there, and what each of them still needs.
#include "core/editorSearch.h"
#include "core/hauptform.h"
#include "core/placement.h"
#include "core/windoInf.h"
#include "platform/awareness.h"
#include "platform/programs.h"
#include "platform/refusals.h"
#include "platform/user32.h"
#include "runtime/characters.h"
#include "runtime/runtimeError.h"
#include "store/mends.h"
#include "store/settings.h"
#include "store/state.h"

#include <algorithm>

namespace core {

namespace {

using store::EditorKind;

/// Of each editor kind, the key that its latest file is written to.
constexpr std::array<const char*, 3> keysWritten = {store::key::lastBoard, store::key::lastSCH,
                                                    store::key::lastLbrWritten};

/// Outer width in the pixels that the host sees; 0 for a window that has just died.
std::int32_t hostWidth(platform::HWND host) {
    platform::RECT rect;
    platform::GetWindowRect(host, rect);
    return rect.right - rect.left;
}

} // namespace

void Hauptform::setWindow() {
    idleTest();
    EditorSearch search; // of this tick alone: nothing is kept for the next one
    bool changed = false;
    for (const EditorKind kind : store::editorKinds)
        changed |= trackKind(kind, search);
    // A host behind the front one of its kind has its turn. Where one has come to another resolution, others
    // mostly have too: the scale of their screen has been changed.
    changed |= followNext();
    if (changed)
        followAll();
}

void Hauptform::idleTest() {
    if (isEagleRunning() != 0) {
        idleCount = 0;
        return;
    }
    if (!store::getFlag(store::section::toolbar, store::key::autoToolbar))
        idleCount = 0;
    ++idleCount;
    constexpr std::int16_t patience = 25;
    if (idleCount > patience) {
        delSystray();
        platform::endProgram();
    }
}

/// Whether the host in front has another resolution than a toolbar in it had.
bool Hauptform::trackKind(EditorKind kind, EditorSearch& search) {
    const platform::HWND host = search.front(kind);
    platform::HWND& asked = front_[static_cast<std::size_t>(kind)];
    asked = platform::HWND::none;
    // No other window of the kind is tried when the front one is no editor.
    if (host == platform::HWND::none)
        return false;
    const platform::InAwarenessOf seen(host);
    bool found = false;
    const std::size_t scanned = scan(kind, host, found);
    if (found) {
        toolbars::frmToolbar& known = *toolbarsOf(kind)[scanned];
        asked = host;
        const bool changed = followResolution(known);
        placeCalculator(static_cast<std::size_t>(known.milIndex), host);
        return changed;
    }
    // The library scan makes a new toolbar with each tick, by design. While the system takes none, one a
    // second will do.
    if (kind == EditorKind::library && platform::refusedLately())
        return false;
    search.forget(); // what is made raises its host, also if the host then refuses it
    placeCalculator(addToolbar(kind, host, scanned), host);
    // Further toolbars may stand in the host, if it is a library.
    const Toolbars& list = toolbarsOf(kind);
    const forms::Resolution now = list.back()->resolution();
    return std::ranges::any_of(list, [&](const auto& other) {
        return other->hWnd() != platform::HWND::none && other->eagHND == host && other->resolution() != now;
    });
}

/// Index of the toolbar that stands in the host, or the first index beyond the bound.
std::size_t Hauptform::scan(EditorKind kind, platform::HWND host, bool& found) {
    const Toolbars& list = toolbarsOf(kind);
    // Kept: the library scan ends where the schematic list does. The settings file is read only where that
    // makes a difference: each tick scans.
    const bool elsewhere = kind == EditorKind::library && toolbarsSCH.size() != list.size() &&
                           !store::mended(store::Mend::libraries);
    const std::size_t bound = (elsewhere ? toolbarsSCH : list).size();
    for (std::size_t index = 0; index < bound; ++index)
        if (index < list.size() && list[index]->eagHND == host) {
            found = true;
            return index;
        }
    return bound;
}

void Hauptform::rememberFile(EditorKind kind, platform::HWND host) {
    std::string name = parseFileFromTitle(host);
    std::string& last = lastOpened[static_cast<std::size_t>(kind)];
    if (name == last || name.empty())
        return;
    if (kind == EditorKind::library)
        if (const std::size_t bracket = runtime::findLastText(name, "("); bracket != std::string::npos) {
            // Kept: only a library's name is cut. The character before the bracket goes too, blank or not; a
            // name that begins with the bracket has none.
            if (bracket == 0 && store::mended(store::Mend::noEnd))
                return;
            if (bracket == 0)
                throw runtime::RuntimeError(runtime::ErrorNumber::invalidCall);
            const std::string_view before(name.data(), bracket);
            name.resize(runtime::sizeOfCharacters(before, runtime::characterCount(before) - 1));
        }
    store::setini(store::section::toolbarWritten, keysWritten[static_cast<std::size_t>(kind)], name);
    last = name;
}

/// Gives the index in `calculators` that the placing is to use.
std::size_t Hauptform::addToolbar(EditorKind kind, platform::HWND host, std::size_t scanned) {
    rememberFile(kind, host);
    Toolbars& list = toolbarsOf(kind);
    list.push_back(std::make_unique<toolbars::frmToolbar>(kind));
    toolbars::frmToolbar& toolbar = *list.back();
    toolbar.setResolution(forms::Resolution(platform::dpiOf(host)));
    toolbar.loadVarBar();
    toolbar.eagHND = host;
    toolbar.show();
    toolbar.oldParent = platform::SetParent(toolbar.window(), host);
    const ToolbarPlace place =
        placeToolbar(hostWidth(host), toolbar.width(), toolbar.height(), toolbar.resolution());
    platform::MoveWindow(toolbar.window(), place.x, place.y, place.width, place.height, true);
    toolbar.Form_Resize();
    return store::unitCalcActive == 0 ? scanned : addCalculator(toolbar, host);
}

std::size_t Hauptform::addCalculator(toolbars::frmToolbar& toolbar, platform::HWND host) {
    calculators.push_back(std::make_unique<calculator::frmMil>());
    calculator::frmMil& added = *calculators.back();
    added.setResolution(toolbar.resolution());
    // Kept: a calculator begins with mil and mm, whatever the settings say.
    if (store::mended(store::Mend::afterSave))
        added.loadResources();
    // Not to be seen before it has its place: the host would show for a while what stood elsewhere.
    added.fraMil.setVisible(false);
    added.show();
    added.setWidth(1);
    added.fraMil.setTop(0);
    platform::SetParent(added.fraMil.hWnd(), host);
    const std::size_t index = calculators.size() - 1;
    toolbar.milIndex = static_cast<std::int32_t>(index);
    windowTable[1] = static_cast<std::int32_t>(host);
    return index;
}

/// A host may have been moved to another screen, or the user has changed the screen's resolution. Whether it
/// has another one than its toolbar.
bool Hauptform::followResolution(toolbars::frmToolbar& toolbar) {
    const platform::HWND host = toolbar.eagHND;
    const int dpi = platform::dpiOf(host);
    const forms::Resolution now(dpi);
    if (dpi == 0 || now == toolbar.resolution())
        return false;
    const platform::InAwarenessOf seen(host);
    toolbar.followResolution(now);
    const auto index = static_cast<std::size_t>(toolbar.milIndex);
    if (index < calculators.size() && calculators[index] != nullptr)
        calculators[index]->setResolution(now);
    placeCalculator(index, host);
    return true;
}

/// The next toolbar in turn that has a window follows its host: however many there are, a tick asks one.
/// Those in front whose toolbar has been found have been asked.
bool Hauptform::followNext() {
    std::size_t number = 0;
    for (const EditorKind kind : store::editorKinds)
        for (const auto& toolbar : toolbarsOf(kind))
            if (number++ >= turn_ && toolbar->hWnd() != platform::HWND::none &&
                toolbar->eagHND != front_[static_cast<std::size_t>(kind)]) {
                turn_ = number;
                return followResolution(*toolbar);
            }
    turn_ = 0;
    return false;
}

void Hauptform::followAll() {
    for (const EditorKind kind : store::editorKinds)
        for (const auto& toolbar : toolbarsOf(kind))
            if (toolbar->hWnd() != platform::HWND::none)
                followResolution(*toolbar);
}

void Hauptform::placeCalculator(std::size_t index, platform::HWND host) {
    // Without a calculator at this index there is nothing to place.
    if (index >= calculators.size() || calculators[index] == nullptr)
        return;
    calculator::frmMil& placed = *calculators[index];
    placed.fraMil.setLeft(calculatorLeft(hostWidth(host), index != 0, placed.resolution()));
    placed.fraMil.setVisible(true);
}

} // namespace core
