// The simulated desktop: windows with their order, titles and rectangles, processes, files, the shell, the
// user and the clock, all in memory and deterministic. The platform operations of the tests act on it.
//
// A test resets it, arranges what is there, drives the program's routines or lets time pass, and looks at
// what has happened. Nothing here waits for real time.
#pragma once

#include "forms/form.h"
#include "forms/menu.h"
#include "forms/timer.h"
#include "platform/comdlg32.h"
#include "platform/kernel32.h"
#include "platform/keyStroke.h"
#include "platform/shell32.h"
#include "platform/shortcut.h"
#include "runtime/runtimeError.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace desktop {

using platform::HWND;
using platform::RECT;

/// Thrown by the program's immediate end, through everything up to the routine that let the program run.
struct ProgramEnded {};

/// A modal form or the clock cannot go on: nothing is left that could end it.
struct Stuck : std::logic_error {
    using std::logic_error::logic_error;
};

inline constexpr std::uint32_t programProcess = 1;

/// Of the pictures that the system shows in place of windows that hang.
inline constexpr const char* ghostClass = "Ghost";

/// Frame of an ordinary window of another program, in pixels.
inline constexpr int frameSide = 4;
inline constexpr int frameTop = 23;

/// What a program knows of the screens: nothing, how fine the main one is, or all.
enum class Awareness { unaware, system, perMonitor };

struct Screen {
    int dpi = 96;
    RECT workArea{}; ///< of one beside the main one; screen pixels
};

struct Window {
    HWND handle = HWND::none;
    std::string title;
    std::string className = "Window";
    RECT rect; ///< outer; screen pixels, or client pixels of the parent for a child; as the window sees them
    Awareness awareness = Awareness::unaware;
    std::size_t screen = 0; ///< where it stands; that of its top-level window counts
    HWND parent = HWND::none;
    HWND owner = HWND::none;
    bool visible = true;
    bool enabled = true;
    bool minimised = false;
    bool elevated = false; ///< its program has more rights than ours: nothing of ours gets in or moves it
    bool busy = false;     ///< its program does not come to what it is told to show
    bool dying = false;    ///< dies when something is about to go into it
    bool refused = false;  ///< was to go into a host and could not: not seen, whatever it is told
    bool toBeSeen = false; ///< what it was told meanwhile
    bool redraw = true;    ///< as switched by message 11
    std::uint32_t process = 0;
    int frameWidth = 2 * frameSide; ///< outer size less client size
    int frameHeight = frameTop + frameSide;
    std::vector<HWND> children; ///< top of their order first
    /// Set for a window of the program's own: told of its new place, of its new size and of its death.
    std::function<void(const Window&)> moved;
    std::function<void(const Window&)> resized;
    /// And that its screen has so many pixels to an inch, with a place that the system suggests.
    std::function<void(int dpi, const RECT& suggested)> dpiChanged;
    std::function<void(const Window&)> destroyed;
};

struct Process {
    std::uint32_t id;
    std::string exe;
};

struct File {
    std::string content;
    bool directory = false; ///< one that is read-only takes no new files
    bool hidden = false;
    bool system = false;
    bool readOnly = false;
    bool locked = false;    ///< held by another program: neither opened nor deleted
    std::string storedName; ///< bare name in its stored case
};

struct MessageBox {
    std::string text;
    int style;
    std::string title;
};

struct InputBox {
    std::string prompt;
    std::string title;
};

/// What a file dialog was called with. Texts as far as their end by the platform's rules.
struct FileDialog {
    bool save;
    HWND owner;
    std::string filter; ///< whole list with its NULs
    std::string file;   ///< start name
    std::uint32_t maxFile;
    std::string initialDir;
    std::string title;
    std::uint32_t flags;
    std::string defaultExt;
    std::uint32_t structSize;
    std::uint32_t filterIndex;
};

struct ShellStart {
    std::string commandLine;
    int windowStyle;
    std::string program; ///< path of the file that was found for it
};

struct ShellExecution {
    HWND owner;
    std::string verb;
    std::string file;
    std::string parameters;
    std::string folder;
    int command;
};

struct HelpCall {
    HWND owner;
    std::string file;
    std::uint32_t command;
    std::uintptr_t data;
};

struct TypedKeys {
    HWND window; ///< the one that was in front
    std::vector<platform::KeyStroke> strokes;
    bool wait;
    /// Plain characters as they are, Enter as a line feed.
    std::string text() const;
};

struct IconFile {
    std::vector<forms::Picture> small;
};

/// What the system makes for us as long as it has room.
enum class Creation { window, icon, picture };

class World {
  public:
    World();
    ~World();

    // --- windows
    // -----------------------------------------------------------------------------------------------
    /// Opens a window of another program on top of the others and in front.
    HWND openWindow(const std::string& title, RECT rect = {0, 0, 1024, 768}, std::uint32_t process = 100);
    HWND addWindow(Window window);
    /// The window does not answer: the system hides it and shows a picture of it in its place. Gives the
    /// picture.
    HWND makeGhost(HWND hung);
    /// It answers again: the picture goes, with what stood in it.
    void endGhost(HWND ghost, HWND awake);
    /// All windows of this one's program take no message for so long. Whoever asks one waits for it, until
    /// the system knows that it hangs; what it is told without being asked it does when it wakes.
    void hang(HWND window, std::int64_t milliseconds);
    bool hangs(HWND window);
    /// Asks a window as the program does, at the cost of time.
    bool answers(HWND window);
    /// Now, or when the window's program wakes.
    void whenAwake(HWND window, const std::function<void()>& change);
    /// Before a window comes, goes or moves the program asks the hosts that its windows stand in, once for a
    /// hang, and is parted from those that do not answer.
    void partFromSilentHosts();
    /// What the system carries out in the thread of the window: not at once, unless the input of the two is
    /// joined. Then it waits for as long as that one hangs.
    void leaveTo(HWND window, const std::function<void()>& change);
    /// Was to come in front and did not answer; whoever can wait brings it there. Forgotten with the next
    /// event.
    HWND owedKeyboard = HWND::none;
    /// The window dies with all that stands in it.
    void closeWindow(HWND handle);
    Window* find(HWND handle);
    Window& window(HWND handle);
    void setTitle(HWND handle, const std::string& title) { window(handle).title = title; }
    /// Outer size in pixels; the program's own windows hear of it.
    void resizeWindow(HWND handle, int width, int height);
    void raise(HWND handle);
    /// Shows or hides a window, unless it was refused.
    void show(HWND handle, bool visible);
    /// Whether the user could see a window: it and all that it stands in are shown.
    bool isSeen(HWND handle);
    /// The top-level window that a window stands in, or is.
    HWND rootOf(HWND handle);
    /// The system has to choose a window that comes in front, and none of the program's can.
    void bringOthersToFront();
    /// Puts a window of ours into another one, or onto the desktop. False if the system refuses: the parent
    /// has died, has more rights, or stands in the window itself.
    bool put(HWND child, HWND parent);
    /// Client area's corner on the screen.
    RECT screenRect(HWND handle);
    /// Top-level windows, top of the order first.
    std::vector<HWND> order;
    HWND foreground = HWND::none;
    std::function<void(HWND)> onTitleRead; ///< runs when a title is read
    std::function<void(HWND)> onSetParent; ///< runs when something is about to go into a window
    /// The next window made gets this handle instead of a new one.
    HWND nextHandle = HWND::none;
    /// All windows, those in other windows too.
    std::size_t windowCount() const { return windows_.size(); }

    /// How many more of a kind it makes; any number of those that are not named.
    std::map<Creation, int> room;
    /// One of them is to be made. False if there is no room.
    bool creates(Creation kind);
    /// When a window was refused last, to be made or to go into a host.
    std::optional<std::int64_t> lastRefusal;

    // --- processes
    // ---------------------------------------------------------------------------------------------
    std::vector<Process> processes;
    void startProcess(const std::string& exe, std::uint32_t id = 100) { processes.push_back({id, exe}); }
    /// The process goes, with all its windows.
    void killProcess(std::uint32_t id);
    bool snapshotFails = false;
    int openSnapshots = 0;

    // --- files (paths compare without case)
    // -----------------------------------------------------------------------
    void writeFile(const std::string& path, const std::string& content);
    /// The settings file beside the program.
    void writeSettings(const std::string& content);
    std::string settings();
    std::optional<std::string> fileText(const std::string& path);
    File* file(const std::string& path);
    void removeFile(const std::string& path);
    std::map<std::string, File> files;
    std::string programFolder = "C:\\kestrel";
    std::string currentDirectory = "C:\\work";
    std::deque<runtime::RuntimeError> directoryFailures; ///< of the next looks for the current folder
    int settingsReads = 0;
    std::vector<std::string>
        settingsPaths; ///< that the settings file was read and written by, as they were given

    // --- servers of the network ("\\\\name\\share\\..."), by their names in lower case
    // --------------------------------
    struct Server {
        bool away = false;
        int asked = 0;                 ///< how often
        std::int64_t missingUntil = 0; ///< as the program's side has it
    };
    std::map<std::string, Server> servers;
    /// The server takes half a minute to say that it is not there. The platform's operations wait 3 s of that
    /// once, and ask nothing of it for a minute.
    void cutOff(const std::string& server);
    /// A path of such a server is asked for, at the cost of time. False if it is not to be had.
    bool reach(const std::string& path);

    /// A shortcut file, whether its target is there or not.
    void addShortcut(const std::string& path, const std::string& target, const std::string& arguments = {});
    std::map<std::string, platform::Shortcut> shortcuts; ///< by path keys

    // --- icons
    // -------------------------------------------------------------------------------------------------
    /// A file with `count` icons, each of one colour that is its own.
    void addIcons(const std::string& path, int count);
    static forms::Picture iconPicture(const std::string& path, int index);
    std::map<std::string, IconFile> iconFiles;
    std::map<std::uintptr_t, forms::Picture> icons; ///< handles that have not been given back
    std::uintptr_t nextIcon = 0x1000;
    /// Result, chosen file and index of the icon chooser's next calls; without one it answers -1.
    struct ChosenIcon {
        int result;
        std::u16string file;
        int index;
    };
    std::deque<ChosenIcon> chooserAnswers;
    struct ChooserCall {
        HWND owner;
        std::u16string file;
        std::size_t length;
        int index;
    };
    std::vector<ChooserCall> chooserCalls;

    // --- the user
    // ------------------------------------------------------------------------------------------------
    std::vector<MessageBox> messageBoxes;
    std::deque<int> messageAnswers;  ///< without one: OK
    std::function<void()> onMessage; ///< runs while a message is up
    /// A message that comes up for the tenth time without an answer ends the test.
    int unansweredMessages = 0;
    std::vector<InputBox> inputBoxes;
    std::deque<std::string> inputAnswers; ///< without one: Cancel
    std::vector<FileDialog> fileDialogs;
    std::deque<std::optional<std::string>> fileAnswers; ///< none is Cancel
    std::vector<ShellStart> started;
    std::deque<runtime::RuntimeError> shellFailures;
    std::vector<ShellExecution> executed;
    /// Programs that need more rights than ours, as path keys: the system asks the user.
    std::set<std::string> needMoreRights;
    std::vector<ShellExecution> questions;
    /// The user's answer to the last question. A no has no trace.
    void answerQuestion(bool yes);
    std::vector<HelpCall> helpCalls;
    int helpFailures = 0; ///< so many of the next calls of the help viewer fail
    std::vector<TypedKeys> typed;
    std::vector<std::string> activations; ///< titles that were activated
    std::vector<HWND> disabledHosts;      ///< by dialogs that are up
    /// Owners that a dialog of the system found disabled. It leaves them so, and when it goes none of the
    /// program's windows can come in front: the system chooses another program's.
    std::vector<HWND> foundDisabled;
    std::function<void()> onFileDialog; ///< runs while one is up, or the shell's icon chooser
    int beeps = 0;
    std::optional<platform::NOTIFYICONDATA> trayIcon;
    bool trayRefuses = false;
    /// What the user does with a menu that opens; without it the menu closes again.
    std::function<void(forms::Menu&)> onMenu;
    int menusOpened = 0;
    void menuOpened(forms::Menu& menu) {
        ++menusOpened;
        if (onMenu)
            onMenu(menu);
    }

    // --- program
    // -------------------------------------------------------------------------------------------------
    bool otherInstance = false;
    bool ended = false;
    int messagePumps = 0;
    std::function<void()> onPump; ///< runs where pending messages are let run
    /// Calls of the platform in order, as far as tests look at order: "SetParent 5 3" and the like.
    std::vector<std::string> calls;
    std::function<void(const std::string& call)> onCall; ///< what happens meanwhile elsewhere
    void note(const std::string& call) {
        calls.push_back(call);
        if (onCall)
            onCall(call);
    }

    // --- system, printer, clipboard
    // ----------------------------------------------------------------------------------
    std::string executableName = "kestrel";
    platform::OSVERSIONINFOA version{0, 6, 1, 7601, 2, "Service Pack 1"};
    bool versionFails = false;
    int versionReads = 0;
    double startDate = 38845.5; ///< date and time of day at which `now` is 0: 8 May 2006, noon
    /// The first is the main one.
    std::vector<Screen> screens = {Screen{}};
    /// How the program's thread sees them; at first as its manifest says.
    Awareness awareness = Awareness::perMonitor;
    /// How often the system has changed the view of the program, since a window of it went into one of
    /// another view.
    int awarenessResets = 0;
    /// Whether the view of each screen is the older one, in which the system draws frames as the main screen
    /// has them.
    bool framesOfMainScreen = false;
    int dpiSeen(Awareness by, HWND window);
    int resolutionsAsked = 0; ///< how often the program has asked for one of a window
    /// A top-level window comes to stand on a screen, at a corner that the user has chosen. One that knows of
    /// screens hears if they differ.
    void moveToScreen(HWND window, std::size_t screen, int left, int top);
    /// Number of the screen that a place is on; the main one's if on none.
    std::size_t screenAt(const RECT& place) const;
    RECT workAreaAt(const RECT& place) const;
    int screenWidth = 1280; ///< pixels
    int screenHeight = 1024;
    platform::RECT workArea{0, 0, 1280, 984}; ///< with a task bar at the bottom
    bool waitingPointer = false;
    std::optional<std::string> clipboard;          ///< its plain text
    std::int64_t clipboardHeldUntil = 0;           ///< another program holds it up to this time
    bool noPrinter = false;                        ///< or one that fails
    std::vector<std::string> printing;             ///< lines of the job that goes on
    std::vector<std::vector<std::string>> printed; ///< jobs that have been ended

    // --- time and modal forms
    // ------------------------------------------------------------------------------------
    std::int64_t now = 0; ///< milliseconds
    /// Lets time pass; timers fire in order. Returns early once the program has ended.
    void run(std::int64_t milliseconds);
    /// Runs code of the program as an event from the outside; returns false if the program has ended by it.
    bool event(const std::function<void()>& code);
    /// What the user does once the next modal form is up.
    std::deque<std::function<void(forms::Form&)>> modalScripts;
    std::vector<forms::Form*> modalForms; ///< those that are up
    struct TimerState {
        forms::Timer* timer;
        std::int64_t due;
    };
    std::vector<TimerState> timers;
    /// Fires the timer that is due first if it is due by `limit`; false if none is.
    bool fireNext(std::int64_t limit);
    /// Serves the program's own messages until a condition holds, or for so long.
    void serveUntil(const std::function<bool()>& condition, std::int64_t milliseconds);

  private:
    struct Hang {
        std::int64_t since;
        std::int64_t until;
        bool missed;                                ///< was asked in vain
        std::vector<std::function<void()>> changes; ///< that wait for its end
    };
    /// Whether a window of ours stands in one of this program.
    bool isJoined(std::uint32_t process);
    /// Programs whose time has come wake.
    void wake();
    /// A top-level window stands on a screen; it hears so if it saw another number of pixels to an inch
    /// before.
    void comeTo(HWND window, std::size_t screen, int before);
    std::map<std::uint32_t, Hang> hangs_;
    std::map<HWND, Window> windows_;
    std::uintptr_t nextWindow_ = 0x100;
};

/// The desktop that the platform operations act on; made anew by a Session.
World& world();

/// A fresh desktop for one test, and module variables as at the start of a process.
class Session {
  public:
    Session();
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
};

/// Path as a key: lower case, doubled separators folded.
std::string pathKey(const std::string& path);

} // namespace desktop
