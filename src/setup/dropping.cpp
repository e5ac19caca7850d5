// Files that are dropped on a list: programs become entries, an icon file becomes the selected entry's icon.
#include "setup/frmSetup.h"

#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/shortcut.h"
#include "runtime/characters.h"
#include "runtime/text.h"
#include "store/iconReference.h"
#include "store/rowText.h"

#include <algorithm>
#include <array>

namespace setup {

namespace {

/// Files that are taken at once. More have been dropped by mistake.
constexpr std::size_t mostFiles = 100;
constexpr std::array<std::string_view, 5> programs = {"exe", "bat", "cmd", "com", "pif"};
constexpr std::string_view shortcuts = "lnk";
constexpr std::string_view icons = "ico";

/// In lower case, without its dot.
std::string extension(const std::string& path) {
    const std::size_t dot = runtime::findLastText(path, ".");
    return dot == std::string::npos ? std::string() : runtime::lowerCase(path.substr(dot + 1));
}

/// Whether a path is a file's and can be stored: whole, and as an icon too. A question mark stands for a
/// character that the code page lacks.
bool isUsable(const std::string& path) {
    return path.find_first_of("?*") == std::string::npos && store::fitsButton(path) &&
           store::fitsIcon(store::IconReference{path}.text()) && !platform::dir(path).empty();
}

/// The program that a file is or, as a shortcut without arguments, leads to; empty if it is or does neither.
std::string programOf(const std::string& path) {
    std::string program = path;
    if (extension(path) == shortcuts) {
        const auto shortcut = platform::readShortcut(path);
        program = shortcut && shortcut->arguments.empty() ? shortcut->target : std::string();
    }
    const bool runs = std::find(programs.begin(), programs.end(), extension(program)) != programs.end();
    return runs && isUsable(program) ? program : std::string();
}

} // namespace

void frmSetup::filesDropped(std::int16_t Index, const std::vector<std::string>& files) {
    const bool taken = files.size() == 1 && extension(files.front()) == icons
                           ? iconDropped(Index, files.front())
                           : programsDropped(Index, files);
    if (!taken)
        platform::beep();
}

/// All or none.
bool frmSetup::programsDropped(std::int16_t list, const std::vector<std::string>& files) {
    if (files.empty() || files.size() > mostFiles || !hasRoom(list, files.size()))
        return false;
    std::vector<std::string> found;
    for (const std::string& file : files) {
        found.push_back(programOf(file));
        if (found.back().empty())
            return false;
    }
    beginProgram(list);
    for (const std::string& program : found)
        addProgram(list, program);
    endProgram(list);
    return true;
}

bool frmSetup::iconDropped(std::int16_t list, const std::string& file) {
    // Enabled where the selected entry has an icon.
    const auto page = static_cast<std::size_t>(list);
    if (lstApps[page].listIndex() < 0 || !btnIcon[page].enabled() || !isUsable(file))
        return false;
    useIcon(list, store::IconReference{file}.text());
    return true;
}

} // namespace setup
