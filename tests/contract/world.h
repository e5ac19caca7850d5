// The world that the contract tests run in: the simulated desktop in the native test program, a real system
// in contract-tests.exe. The tests act on the program's own seams (platform::, forms::); what other programs
// and the user do, and what a test needs to know of its surroundings, stands here and is defined once for
// each.
//
// Texts are in Windows-1252. Rectangles are in screen pixels unless said otherwise.
#pragma once

#include "forms/picture.h"
#include "forms/textBox.h"
#include "platform/types.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace contract {

enum class WorldKind { simulated, wine, windows };
WorldKind worldKind();

struct FileMarks {
    bool hidden = false;
    bool system = false;
    bool readOnly = false;
};

enum class IconSource { ico, exe, dll };

/// A file that has icons.
struct IconFile {
    std::string path;
    int count = 0; ///< it has at least these; exactly these unless it is a library of the system
    /// The icon's picture of 16 by 16 pixels, where it is known.
    std::function<std::optional<forms::Picture>(int index)> picture;
};

/// How the program waits for a server that does not answer.
enum class Waiting {
    byClock, ///< its clock runs ahead, so that the test does not take as long; the simulated one always does
    truly,
};

/// What the shell's icon chooser is called with, and what it does then: gives a result and leaves these
/// characters at the beginning of its buffer.
struct ChooserCall {
    std::u16string file; ///< up to its NUL
    std::size_t size;    ///< of the buffer, in characters
    std::int32_t index;
};
struct ChooserAnswer {
    int result;
    std::u16string file;
    std::int32_t index;
};

/// A fresh start, and the end of all that a test has made. One at a time.
class World {
  public:
    World();
    ~World();
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    /// Serves the program's messages until the condition holds. False if it does not come true in time.
    static bool until(const std::function<bool()>& condition);

    // --- another program: a process of its own, which starts with its first window ---
    /// Bare file name of its executable.
    static std::string otherProgramName();
    /// Opens one of its windows on top of the order. What a real display shows of it covers none of the last
    /// few that were opened so: the order stays.
    platform::HWND openWindow(const std::string& title);
    /// The same at a given place. Another one that it overlaps may come to the top once more, a moment later.
    platform::HWND openWindow(const std::string& title, platform::RECT rect, bool visible = true);
    /// Opens a window of the class that the system gives its pictures of windows that hang.
    platform::HWND openGhost(const std::string& title);
    void closeWindow(platform::HWND window);
    void renameWindow(platform::HWND window, const std::string& title);
    /// Opens a window with an edit field of several lines that has the keyboard focus.
    platform::HWND openEditor();
    /// What stands in that edit field; lines end in CR LF.
    std::string editorText(platform::HWND editor);
    void clearEditor(platform::HWND editor);
    /// The process is ended from outside, its windows with it.
    void killOtherProgram();
    /// The thread of its windows sleeps, from before the return on. The simulated desktop has no such state:
    /// nothing there waits for another program.
    void hangOtherProgram(int milliseconds);
    /// It goes on before that time is up.
    void wakeOtherProgram();
    /// Whether it still sleeps: what has just been done cannot have waited for it then.
    bool otherProgramHangs();

    /// Whether a window and all that it stands in are shown.
    static bool isSeen(platform::HWND window);

    /// The window in front, whoever's it is.
    static platform::HWND foreground();

    // --- files ---
    /// Full path of a name in the scratch folder, which is empty at the start. The name may hold folders.
    std::string path(const std::string& name) const;
    void makeFolder(const std::string& path);
    void writeFile(const std::string& path, const std::string& content, FileMarks marks = {});
    std::optional<std::string> readFile(const std::string& path);
    void removeFile(const std::string& path);
    /// Another program opens the file for itself alone, until the end of this world.
    void lockFile(const std::string& path);
    /// A shortcut of the shell; its target may be missing.
    void makeShortcut(const std::string& path, const std::string& target, const std::string& arguments);
    /// A file of tests/data, as a path of the machine that the tests were built on or run on.
    static std::string dataFile(const std::string& name);
    /// The settings file beside the program; absent at the start.
    static std::string settingsPath();

    // --- a server of the network ---
    /// From here on it does not answer: what is asked of it, by "\\\\server\\share\\...", takes half a minute
    /// and fails. One at a time; no two tests have one of the same name, since the program remembers it.
    void cutOff(const std::string& server, Waiting waiting = Waiting::byClock);
    /// It answers again; nothing is on it.
    void reconnect();
    /// How often it was asked.
    int asked();
    /// The clock that the program reads, in milliseconds.
    static std::int64_t clock();
    /// The clock goes on by so much, once the server has been cut off.
    void passTime(int milliseconds);

    // --- programs that can be started ---
    /// Puts a program there that does nothing but tell that it was started.
    void placeProgram(const std::string& path);
    /// The command line that the program at this path was last started with; none if it was not.
    std::optional<std::string> startedWith(const std::string& path);
    /// As if it had not been started.
    void forgetStarts(const std::string& path);
    /// The program at this path needs more rights than ours: from here on the system asks the user.
    void needMoreRights(const std::string& path);
    /// How often the user was asked.
    int questions();
    /// What the user says to the question that is up, or to the next.
    void answerQuestion(bool yes);

    // --- icons ---
    IconFile iconFile(IconSource source);
    /// Icons of this process that have not been given back.
    static int openIcons();
    /// platform::PickIconDlg in a shell whose icon chooser answers so; `call` gets what that was called with.
    static int pickIcon(const ChooserAnswer& answer, std::string& file, std::int32_t& index,
                        ChooserCall& call);

    // --- clipboard and printer ---
    /// What another program reads from the clipboard as plain text; none if there is no text.
    std::optional<std::string> clipboardText();
    /// What another program may put there: these characters, with a NUL at the end or without.
    static void putIntoClipboard(std::u16string_view text);
    /// Another program opens the clipboard, and closes it after this time.
    void holdClipboard(int milliseconds);
    /// Sees to it that there is no printer; false if there is one that cannot be taken away.
    static bool withoutPrinter();

    // --- the user and a text box ---
    /// Types into a box on a form that is shown.
    void typeInto(forms::TextBox& box, std::string_view text);
    /// The text that the box shows.
    static std::string shownText(forms::TextBox& box);

  private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace contract
