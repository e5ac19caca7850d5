// A real system, or Wine, as the world of the contract tests.
#include "contract/world.h"

#include "contract/windows/deadServer.h"
#include "contract/windows/files.h"
#include "contract/windows/icons.h"
#include "contract/windows/moreRights.h"
#include "contract/windows/orders.h"
#include "contract/windows/otherProgram.h"
#include "forms/form.h"
#include "platform/keySender.h"
#include "platform/keyStroke.h"
#include "platform/messages.h"
#include "runtime/characters.h"
#include "win32/platform/iconChooser.h"

#include <doctest/doctest.h>

#include <winspool.h>

#include <algorithm>
#include <vector>

namespace contract {

namespace {

constexpr ULONGLONG patience = 30'000; // milliseconds

platform::HWND handleFrom(const std::string& answer) {
    return platform::HWND{static_cast<std::uintptr_t>(std::stoull(answer))};
}

std::string wordOf(platform::HWND window) {
    return std::to_string(static_cast<std::uintptr_t>(window));
}

HWND native(platform::HWND window) {
    return reinterpret_cast<HWND>(window);
}

/// Whether a condition comes true and stays so. A window manager may move the keyboard once more, a moment
/// after a window has come or gone.
bool settles(const std::function<bool()>& condition) {
    constexpr ULONGLONG quiet = 200; // milliseconds
    ULONGLONG since = GetTickCount64();
    return World::until([&] {
        if (!condition())
            since = GetTickCount64();
        return GetTickCount64() - since >= quiet;
    });
}

/// Whether a window is in front and has the keyboard, once that has settled. Asked for again now and then, as
/// a user clicks again: a window manager may give the keyboard to nobody when a window of another test goes.
bool comesToFront(HWND window, const std::function<bool()>& hasFocus, const std::function<void()>& ask) {
    constexpr ULONGLONG again = 2'000; // milliseconds
    ask();
    ULONGLONG asked = GetTickCount64();
    return settles([&] {
        const bool there = GetForegroundWindow() == window && hasFocus();
        if (!there && GetTickCount64() - asked >= again) {
            ask();
            asked = GetTickCount64();
        }
        return there;
    });
}

/// Side by side, in three columns and three rows of an ordinary screen, then from the first place on again.
///
/// Under Wine a window that the display tells to paint itself is put above those that it overlaps in the
/// order, since it is to be seen there. The display does so when its window manager comes to it, on a busy
/// machine long after the next window has been opened.
platform::RECT placeOf(int number) {
    constexpr int columns = 3;
    constexpr int places = 9;
    const int left = 60 + 420 * (number % columns);
    const int top = 60 + 320 * (number % places / columns);
    return {left, top, left + 400, top + 300};
}

/// What a started program leaves beside itself: its command line.
std::string reportOf(const std::string& program) {
    return program + ".started";
}

// A chooser's own parameters have no room for these.
const ChooserAnswer* chooserAnswer = nullptr;
ChooserCall* chooserCall = nullptr;

int WINAPI answeringChooser(HWND /*owner*/, wchar_t* file, UINT size, int* index) {
    auto* const buffer = reinterpret_cast<char16_t*>(file);
    *chooserCall = {buffer, size, *index};
    std::ranges::copy(chooserAnswer->file, buffer);
    *index = chooserAnswer->index;
    return chooserAnswer->result;
}

} // namespace

struct World::Impl {
    std::string scratch = scratchFolder();
    OtherProgram other;
    int placed = 0; ///< windows of it that have got a place of their own
    std::vector<HANDLE> locks;
    std::optional<DeadServer> server;
    std::optional<MoreRights> rights;
};

WorldKind worldKind() {
    const HMODULE system = GetModuleHandleA("ntdll.dll");
    return GetProcAddress(system, "wine_get_version") != nullptr ? WorldKind::wine : WorldKind::windows;
}

World::World() : impl_(std::make_unique<Impl>()) {
    removeFolder(impl_->scratch);
    CreateDirectoryA(impl_->scratch.c_str(), nullptr);
    removeWholeFile(settingsPath());
}

World::~World() {
    impl_->server.reset();
    impl_->rights.reset();
    impl_->other.end();
    for (const HANDLE lock : impl_->locks)
        CloseHandle(lock);
    removeWholeFile(settingsPath());
    // A program that was started may still be running.
    until([this] { return removeFolder(impl_->scratch); });
}

bool World::until(const std::function<bool()>& condition) {
    const ULONGLONG begin = GetTickCount64();
    do {
        platform::doEvents();
        if (condition())
            return true;
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    } while (GetTickCount64() - begin < patience);
    return false;
}

std::string World::otherProgramName() {
    const std::string own = ownPath();
    return own.substr(own.find_last_of('\\') + 1);
}

platform::HWND World::openWindow(const std::string& title) {
    return openWindow(title, placeOf(impl_->placed++));
}

platform::HWND World::openWindow(const std::string& title, platform::RECT rect, bool visible) {
    std::ostringstream order;
    order << "open " << rect.left << ' ' << rect.top << ' ' << rect.right << ' ' << rect.bottom << ' '
          << (visible ? 1 : 0) << ' ' << asWord(title);
    return handleFrom(impl_->other.order(order.str()));
}

platform::HWND World::openGhost(const std::string& title) {
    return handleFrom(impl_->other.order("openGhost " + asWord(title)));
}

void World::closeWindow(platform::HWND window) {
    impl_->other.order("close " + wordOf(window));
}

void World::renameWindow(platform::HWND window, const std::string& title) {
    impl_->other.order("rename " + wordOf(window) + " " + asWord(title));
}

platform::HWND World::openEditor() {
    const platform::HWND editor = handleFrom(impl_->other.order("openEditor"));
    REQUIRE(comesToFront(
        native(editor), [&] { return impl_->other.order("editorHasFocus " + wordOf(editor)) == "1"; },
        [&] { SetForegroundWindow(native(editor)); }));
    return editor;
}

std::string World::editorText(platform::HWND editor) {
    return fromWord(impl_->other.order("editorText " + wordOf(editor)));
}

void World::clearEditor(platform::HWND editor) {
    impl_->other.order("clearEditor " + wordOf(editor));
}

void World::killOtherProgram() {
    impl_->other.end();
}

void World::hangOtherProgram(int milliseconds) {
    OtherProgram::awaitNext();
    impl_->other.order("hang " + std::to_string(milliseconds));
}

void World::wakeOtherProgram() {
    impl_->other.order("wake");
}

bool World::otherProgramHangs() {
    return impl_->other.order("hangs") == "1";
}

bool World::isSeen(platform::HWND window) {
    return IsWindowVisible(native(window)) != FALSE;
}

platform::HWND World::foreground() {
    return platform::HWND{reinterpret_cast<std::uintptr_t>(GetForegroundWindow())};
}

std::string World::path(const std::string& name) const {
    return impl_->scratch + "\\" + name;
}

void World::makeFolder(const std::string& path) {
    CreateDirectoryA(path.c_str(), nullptr);
}

void World::writeFile(const std::string& path, const std::string& content, FileMarks marks) {
    writeWholeFile(path, content);
    const DWORD attributes = (marks.hidden ? FILE_ATTRIBUTE_HIDDEN : 0U) |
                             (marks.system ? FILE_ATTRIBUTE_SYSTEM : 0U) |
                             (marks.readOnly ? FILE_ATTRIBUTE_READONLY : 0U);
    if (attributes != 0)
        SetFileAttributesA(path.c_str(), attributes);
}

std::optional<std::string> World::readFile(const std::string& path) {
    return readWholeFile(path);
}

void World::removeFile(const std::string& path) {
    removeWholeFile(path);
}

void World::lockFile(const std::string& path) {
    const HANDLE lock =
        CreateFileA(path.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    REQUIRE(lock != INVALID_HANDLE_VALUE);
    impl_->locks.push_back(lock);
}

std::string World::dataFile(const std::string& name) {
    return dataFolder() + "\\" + name;
}

std::string World::settingsPath() {
    const std::string own = ownPath();
    return own.substr(0, own.find_last_of('\\')) + "\\kestrel.ini";
}

void World::placeProgram(const std::string& path) {
    REQUIRE(CopyFileA(ownPath().c_str(), path.c_str(), FALSE) != FALSE);
}

std::optional<std::string> World::startedWith(const std::string& path) {
    return readWholeFile(reportOf(path));
}

void World::forgetStarts(const std::string& path) {
    removeWholeFile(reportOf(path));
}

void World::needMoreRights(const std::string& path) {
    impl_->rights.emplace(path);
}

int World::questions() {
    return MoreRights::questions();
}

void World::answerQuestion(bool yes) {
    MoreRights::answer(yes);
}

void World::cutOff(const std::string& server, Waiting waiting) {
    impl_->server.emplace(server, waiting);
}

void World::reconnect() {
    DeadServer::revive();
}

int World::asked() {
    return DeadServer::calls();
}

std::int64_t World::clock() {
    return contract::clock();
}

void World::passTime(int milliseconds) {
    contract::passTime(milliseconds);
}

IconFile World::iconFile(IconSource source) {
    static const char* const names[] = {"brd.ico", "sch.ico", "lbr.ico"};
    const auto pictureOf = [](int index) { return std::optional(pictureIn(dataFile(names[index]), 16)); };
    switch (source) {
    case IconSource::ico:
        return {dataFile(names[0]), 1, pictureOf};
    case IconSource::exe:
        return {ownPath(), 3, pictureOf};
    case IconSource::dll:
        break;
    }
    char folder[MAX_PATH] = {};
    GetSystemDirectoryA(folder, MAX_PATH);
    return {std::string(folder) + "\\shell32.dll", 3, [](int) { return std::optional<forms::Picture>(); }};
}

int World::openIcons() {
    return openIconHandles();
}

int World::pickIcon(const ChooserAnswer& answer, std::string& file, std::int32_t& index, ChooserCall& call) {
    chooserAnswer = &answer;
    chooserCall = &call;
    return win32::callIconChooser(answeringChooser, nullptr, file, index);
}

std::optional<std::string> World::clipboardText() {
    const std::string answer = impl_->other.order("clipboardText");
    return answer == "none" ? std::nullopt : std::optional(fromWord(answer));
}

void World::holdClipboard(int milliseconds) {
    REQUIRE(impl_->other.order("holdClipboard " + std::to_string(milliseconds)) == "done");
}

bool World::withoutPrinter() {
    char name[MAX_PATH] = {};
    DWORD size = sizeof name;
    return GetDefaultPrinterA(name, &size) == FALSE;
}

void World::typeInto(forms::TextBox& box, std::string_view text) {
    const HWND form = native(box.form()->hWnd());
    REQUIRE(comesToFront(
        form, [&] { return GetFocus() == native(box.hWnd()); },
        [&] {
            SetForegroundWindow(form);
            box.setFocus();
        }));
    std::vector<platform::KeyStroke> strokes;
    for (const char32_t character : runtime::toUtf32(text))
        strokes.push_back({.character = character});
    platform::sendKeys(strokes, false);
}

std::string World::shownText(forms::TextBox& box) {
    const HWND field = native(box.hWnd());
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(field)) + 1, '\0');
    text.resize(static_cast<std::size_t>(GetWindowTextA(field, text.data(), static_cast<int>(text.size()))));
    return text;
}

} // namespace contract
