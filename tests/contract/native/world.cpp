// The simulated desktop as the world of the contract tests.
#include "contract/world.h"

#include "contract/native/editor.h"
#include "desktop/desktop.h"
#include "desktop/keyboard.h"
#include "platform/codePage.h"
#include "platform/messages.h"

namespace contract {

namespace {

constexpr std::uint32_t otherProcess = 100;
constexpr const char* scratch = "C:\\scratch";

} // namespace

struct World::Impl {
    desktop::Session session;
    bool otherRuns = false;
    std::string server;
};

WorldKind worldKind() {
    return WorldKind::simulated;
}

World::World() : impl_(std::make_unique<Impl>()) {
    makeFolder(scratch);
}

World::~World() = default;

bool World::until(const std::function<bool()>& condition) {
    for (int step = 0; step < 100; ++step) {
        platform::doEvents();
        if (condition())
            return true;
        desktop::world().run(100);
    }
    return false;
}

std::string World::otherProgramName() {
    return "Other.exe";
}

platform::HWND World::openWindow(const std::string& title) {
    return openWindow(title, {60, 60, 460, 360});
}

platform::HWND World::openWindow(const std::string& title, platform::RECT rect, bool visible) {
    if (!impl_->otherRuns)
        desktop::world().startProcess(otherProgramName(), otherProcess);
    impl_->otherRuns = true;
    const platform::HWND opened = desktop::world().openWindow(title, rect, otherProcess);
    desktop::world().window(opened).visible = visible;
    return opened;
}

platform::HWND World::openGhost(const std::string& title) {
    const platform::HWND opened = openWindow(title);
    desktop::world().window(opened).className = desktop::ghostClass;
    return opened;
}

void World::closeWindow(platform::HWND window) {
    desktop::world().closeWindow(window);
}

void World::renameWindow(platform::HWND window, const std::string& title) {
    desktop::world().setTitle(window, title);
}

platform::HWND World::openEditor() {
    return openWindow("Editor");
}

std::string World::editorText(platform::HWND editor) {
    std::vector<platform::KeyStroke> strokes;
    for (const desktop::TypedKeys& typed : desktop::world().typed)
        if (typed.window == editor)
            strokes.insert(strokes.end(), typed.strokes.begin(), typed.strokes.end());
    return textAfter(strokes);
}

void World::clearEditor(platform::HWND /*editor*/) {
    desktop::world().typed.clear();
}

void World::killOtherProgram() {
    desktop::world().killProcess(otherProcess);
    impl_->otherRuns = false;
}

void World::hangOtherProgram(int /*milliseconds*/) {}

void World::wakeOtherProgram() {}

bool World::otherProgramHangs() {
    return false;
}

bool World::isSeen(platform::HWND window) {
    return desktop::world().isSeen(window);
}

platform::HWND World::foreground() {
    return desktop::world().foreground;
}

std::string World::path(const std::string& name) const {
    return std::string(scratch) + "\\" + name;
}

void World::makeFolder(const std::string& path) {
    desktop::world().writeFile(path, "");
    desktop::world().file(path)->directory = true;
}

void World::writeFile(const std::string& path, const std::string& content, FileMarks marks) {
    desktop::world().writeFile(path, content);
    desktop::File& file = *desktop::world().file(path);
    file.hidden = marks.hidden;
    file.system = marks.system;
    file.readOnly = marks.readOnly;
}

std::optional<std::string> World::readFile(const std::string& path) {
    return desktop::world().fileText(path);
}

void World::removeFile(const std::string& path) {
    desktop::world().removeFile(path);
}

void World::lockFile(const std::string& path) {
    desktop::world().file(path)->locked = true;
}

std::string World::dataFile(const std::string& name) {
    return std::string(TEST_DATA "/") + name;
}

std::string World::settingsPath() {
    return desktop::world().programFolder + "\\kestrel.ini";
}

void World::placeProgram(const std::string& path) {
    writeFile(path, "MZ");
}

std::optional<std::string> World::startedWith(const std::string& path) {
    std::optional<std::string> last;
    for (const desktop::ShellStart& start : desktop::world().started)
        if (desktop::pathKey(start.program) == desktop::pathKey(path))
            last = start.commandLine;
    return last;
}

void World::forgetStarts(const std::string& path) {
    std::erase_if(desktop::world().started, [&path](const desktop::ShellStart& start) {
        return desktop::pathKey(start.program) == desktop::pathKey(path);
    });
}

void World::needMoreRights(const std::string& path) {
    desktop::world().needMoreRights.insert(desktop::pathKey(path));
}

int World::questions() {
    return static_cast<int>(desktop::world().questions.size());
}

void World::answerQuestion(bool yes) {
    desktop::world().answerQuestion(yes);
}

void World::cutOff(const std::string& server, Waiting /*waiting*/) {
    impl_->server = server;
    desktop::world().cutOff(server);
}

void World::reconnect() {
    desktop::world().servers.at(impl_->server).away = false;
}

int World::asked() {
    return desktop::world().servers.at(impl_->server).asked;
}

std::int64_t World::clock() {
    return desktop::world().now;
}

void World::passTime(int milliseconds) {
    desktop::world().now += milliseconds;
}

IconFile World::iconFile(IconSource source) {
    constexpr int count = 3;
    const bool single = source == IconSource::ico;
    const std::string path = this->path(single                      ? "one.ico"
                                        : source == IconSource::exe ? "icons.exe"
                                                                    : "icons.dll");
    desktop::world().addIcons(path, single ? 1 : count);
    return {path, single ? 1 : count,
            [path](int index) { return std::optional(desktop::World::iconPicture(path, index)); }};
}

int World::openIcons() {
    return static_cast<int>(desktop::world().icons.size());
}

int World::pickIcon(const ChooserAnswer& answer, std::string& file, std::int32_t& index, ChooserCall& call) {
    desktop::world().chooserAnswers = {{answer.result, answer.file, answer.index}};
    const int result = platform::PickIconDlg(platform::HWND::none, file, index);
    const desktop::World::ChooserCall& made = desktop::world().chooserCalls.back();
    call = {made.file, made.length, made.index};
    return result;
}

void World::makeShortcut(const std::string& path, const std::string& target, const std::string& arguments) {
    desktop::world().addShortcut(path, target, arguments);
}

std::optional<std::string> World::clipboardText() {
    return desktop::world().clipboard;
}

void World::putIntoClipboard(std::u16string_view text) {
    desktop::world().clipboard = platform::toAnsi(text);
}

void World::holdClipboard(int milliseconds) {
    desktop::world().clipboardHeldUntil = desktop::world().now + milliseconds;
}

bool World::withoutPrinter() {
    desktop::world().noPrinter = true;
    return true;
}

void World::typeInto(forms::TextBox& box, std::string_view text) {
    desktop::typeInto(box, text);
}

std::string World::shownText(forms::TextBox& box) {
    return box.text();
}

} // namespace contract
