#include "check/mainScene.h"
#include "check/hands.h"
#include "check/picture.h"
#include "check/screens.h"
#include "check/waiting.h"

#include <algorithm>
#include <climits>
#include <set>

namespace mainScene {

using Editor = Eagle::Editor;

static constexpr int gap = 25; // to the right end of the host's outer rectangle
static constexpr int top = 21; // from the top of the host's client area
static constexpr int rowHeight = 22;
static constexpr int separatedRow = 27; // from a row to the next where a separator was
static constexpr int noticeHeight = 90; // left free at the bottom of the screen
static constexpr int plain = 3;         // colours of a button that has no picture, under the mouse or not

template <typename Number>
static std::wstring number(Number value) {
    return std::to_wstring(value);
}

static std::wstring placeOf(const RECT& place) {
    return number(place.right - place.left) + L" x " + number(place.bottom - place.top) + L" at " +
           number(place.left) + L"," + number(place.top);
}

// The settings file that Kestrel is played with; also what it has written there.
class Settings {
  public:
    explicit Settings(std::wstring path) : path_(std::move(path)) {}

    [[nodiscard]] std::wstring value(const wchar_t* section, const std::wstring& key) const {
        wchar_t text[512] = {};
        GetPrivateProfileStringW(section, key.c_str(), L"", text, 512, path_.c_str());
        return text;
    }
    // The commands of the rows that can be clicked.
    [[nodiscard]] std::vector<std::wstring> commands(const wchar_t* section) const {
        std::vector<std::wstring> found;
        for (int row = 1; !value(section, number(row) + L"name").empty(); ++row) {
            if (value(section, number(row) + L"type") != L"2")
                found.push_back(value(section, number(row) + L"path"));
        }
        return found;
    }

  private:
    std::wstring path_;
};

struct Kind {
    const wchar_t* name;    // as the stand-in calls it
    const wchar_t* section; // of the settings
    const wchar_t* file;
    const wchar_t* key; // under which Kestrel remembers the file
};
static constexpr Kind kinds[] = {{L"board", L"board", L"C:\\work\\demo.brd", L"lastBoard"},
                                 {L"schematic", L"schem", L"C:\\work\\demo.sch", L"lastSCH"},
                                 {L"library", L"libr", L"C:\\work\\parts.lbr", L"lastLbr"}};

static const Kind& kindOf(const Editor& editor) {
    return *std::ranges::find_if(kinds, [&](const Kind& kind) { return editor.kind == kind.name; });
}

class Scene {
  public:
    Scene(const workplace::Workplace& place, const std::wstring& bits, Eyes& eyes, Notice& notice,
          Report& report)
        : bits_(bits), eyes_(eyes), notice_(notice), report_(report), eagle_(place, bits),
          settings_(place.path(bits + L"\\kestrel\\kestrel.ini")), kestrel_(openEditors(place)) {}

    // However the scene ends, Kestrel gets to take its icon out of the tray.
    ~Scene() {
        PostMessageW(mainWindow(), WM_CLOSE, 0, 0);
        for (int turn = 0; turn < 60 && kestrel_.runs(); ++turn)
            Sleep(50);
    }
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

    void play() {
        std::vector<Editor> without;
        for (const Editor& editor : editors_) {
            // The program is up once the first has its own.
            if (!appears(editor, editor.id == editors_.front().id ? waiting::limit : 20))
                without.push_back(editor);
        }
        if (!kestrel_.runs())
            throw waiting::Failure("kestrel.exe has ended with code " + std::to_string(kestrel_.exitCode()));
        // Each of those has been told of; what follows needs a toolbar.
        std::vector<Editor> with = editors_;
        std::erase_if(with, [&](const Editor& editor) {
            return std::ranges::any_of(without, [&](const Editor& other) { return other.id == editor.id; });
        });
        for (const Editor& editor : with)
            standsRight(editor);
        for (const Editor& editor : with)
            painted(editor, L"all buttons are painted");
        for (const Editor& editor : with)
            pictureOf(editor.window, editor.kind);
        for (const Editor& editor : with)
            typesTheCommand(editor);
        for (const Editor& editor : with) {
            painted(editor, L"all buttons are painted afterwards");
            pictureOf(editor.window, editor.kind + L"-clicked");
        }
        for (const Editor& editor : with) {
            const size_t count = toolbars(editor).size();
            report_.check(count == 1, editor.kind + L": still one toolbar, many ticks later", number(count));
        }
        for (const Kind& kind : kinds)
            remembers(kind);
        if (!with.empty())
            setupDialog(with.front());
        ends();
    }

  private:
    workplace::Process openEditors(const workplace::Workplace& place) {
        const RECT area = screens::plainWorkArea();
        const LONG wide = std::min(640L, (area.right - area.left) / 2);
        const LONG high = std::min(440L, (area.bottom - area.top - noticeHeight) / 2);
        const POINT corners[] = {{0, 0}, {wide, 0}, {wide / 2, high}};
        for (size_t i = 0; i < std::size(kinds); ++i) {
            const LONG left = area.left + corners[i].x;
            const LONG above = area.top + corners[i].y;
            editors_.push_back(
                eagle_.open(kinds[i].name, kinds[i].file, {left, above, left + wide, above + high}));
        }
        return place.start(bits_ + L"\\kestrel\\kestrel.exe");
    }

    std::vector<Toolbar> toolbars(const Editor& editor) { return eyes_.look(editor.window).toolbars(); }

    // Throws if there is none, since it is needed.
    Toolbar toolbar(const Editor& editor) {
        const std::vector<Toolbar> found = toolbars(editor);
        if (found.empty() || found[0].buttons.empty())
            throw waiting::Failure("a toolbar is missing that is to be clicked");
        return found[0];
    }

    static LONG lowest(const Toolbar& toolbar) {
        LONG bottom = 0;
        for (const Button& button : toolbar.buttons)
            bottom = std::max(bottom, button.place.bottom);
        return bottom;
    }

    // Finished: as high as its buttons, and the same at two looks.
    bool atRest(const Editor& editor) {
        const std::vector<Toolbar> one = toolbars(editor);
        const std::vector<Toolbar> other = toolbars(editor);
        return one.size() == 1 && other.size() == 1 && !one[0].buttons.empty() &&
               lowest(one[0]) == one[0].form.client.bottom &&
               EqualRect(&one[0].form.place, &other[0].form.place);
    }

    bool appears(const Editor& editor, int seconds) {
        const ULONGLONG begin = GetTickCount64();
        const bool come =
            waiting::until([&] { return !kestrel_.runs() || atRest(editor); }, seconds) && kestrel_.runs();
        const std::vector<Toolbar> found = toolbars(editor);
        std::wstring seen =
            number(found.size()) + L" toolbars after " + number(GetTickCount64() - begin) + L" ms";
        if (!found.empty())
            seen += L", " + placeOf(found[0].form.place) + L" with its lowest button at " +
                    number(lowest(found[0]));
        if (!kestrel_.runs())
            seen += L"; kestrel.exe has ended with code " + number(kestrel_.exitCode());
        report_.check(come, editor.kind + L": a toolbar appears", seen);
        if (!come)
            pictureOf(editor.window, editor.kind + L"-without");
        return come;
    }

    void standsRight(const Editor& editor) {
        const Look look = eyes_.look(editor.window);
        const Window& host = look.windows.front();
        const std::wstring name = editor.kind + L": ";
        const std::vector<Toolbar> found = look.toolbars();
        if (!report_.check(found.size() == 1, name + L"one toolbar stands in the window",
                           number(found.size())))
            return;
        const Window& form = found[0].form;
        const LONG right = host.place.right - host.place.left - (form.place.right - host.client.left);
        report_.check(right == gap, name + L"it stands 25 pixels from the right end", number(right));
        const LONG above = form.place.top - host.client.top;
        report_.check(above == top, name + L"it stands 21 pixels from the top", number(above));
        const size_t configured = settings_.commands(kindOf(editor).section).size();
        report_.check(found[0].buttons.size() == configured + 1,
                      name + L"all configured buttons and \"Config\" are there",
                      number(found[0].buttons.size()));
        std::set<LONG> rows;
        for (const Button& button : found[0].buttons)
            rows.insert(button.place.top);
        std::wstring seen = number(lowest(found[0]) - (rows.empty() ? 0 : *rows.rbegin()));
        bool right22 = !rows.empty() && lowest(found[0]) - *rows.rbegin() == rowHeight;
        for (auto row = rows.begin(); row != rows.end() && std::next(row) != rows.end(); ++row) {
            const LONG step = *std::next(row) - *row;
            seen += L", step " + number(step);
            right22 = right22 && (step == rowHeight || step == separatedRow);
        }
        report_.check(right22, name + L"a row is 22 pixels high, and 27 down where a separator was", seen);
    }

    // Colours in the plainest button.
    int fewestColours(const Editor& editor) {
        int fewest = INT_MAX;
        for (const Toolbar& toolbar : toolbars(editor)) {
            for (const Button& button : toolbar.buttons)
                fewest = std::min(fewest, picture::colours(toolbar.bar.onScreen(button.place)));
        }
        return fewest == INT_MAX ? 0 : fewest;
    }

    void painted(const Editor& editor, const std::wstring& words) {
        int fewest = 0;
        const bool all = waiting::until([&] { return (fewest = fewestColours(editor)) > plain; }, 10);
        report_.check(all, editor.kind + L": " + words, number(fewest) + L" colours in the plainest of them");
    }

    void pictureOf(HWND window, const std::wstring& name) {
        const std::wstring path = report_.picture(bits_ + L"-" + name);
        if (!picture::save(window, path))
            report_.line(L"         which cannot be written");
    }

    // Windows may have opened the editor behind the window that was in front.
    void click(const Editor& editor, const RECT& place) {
        if (!hands::reach(editor.window, place)) {
            notice_.comeToFront();
            SetForegroundWindow(editor.window);
        }
        hands::click(editor.window, place);
    }

    // A hand that types has left the mouse: over a button its tool tip would cover others for seconds.
    static void leaveToolbar(const Editor& editor) {
        RECT place = {};
        GetWindowRect(editor.window, &place);
        place.right = (place.left + place.right) / 2; // toolbars stand at the right end
        hands::point(place);
    }

    void typesTheCommand(const Editor& editor) {
        const std::wstring name = editor.kind + L": ";
        const std::wstring command = settings_.commands(kindOf(editor).section).front();
        const size_t before = eagle_.executed(editor).size();
        const Toolbar found = toolbar(editor);
        click(editor, found.bar.onScreen(found.buttons.front().place));
        executes(editor, before, command, name + L"a click types the command and Enter");
        leaveToolbar(editor);
        Look look;
        const bool there = waiting::until(
            [&] {
                look = eyes_.look(editor.window);
                return look.foreground == editor.window && look.focus == look.field();
            },
            10);
        report_.check(there, name + L"the editor's command field has the keyboard",
                      std::wstring(look.foreground == editor.window ? L"the editor" : L"another window") +
                          L" is in front, " +
                          (look.focus == look.field() ? L"the field" : L"another window") +
                          L" has the focus");
        if (there) {
            hands::type(L"display top");
            hands::press(VK_RETURN);
            executes(editor, before + 1, L"display top", name + L"what the user types next arrives there");
        }
    }

    void executes(const Editor& editor, size_t before, const std::wstring& command,
                  const std::wstring& words) {
        std::vector<std::wstring> commands;
        const bool come =
            waiting::until([&] { return (commands = eagle_.executed(editor)).size() > before; }, 20);
        std::wstring seen = come ? L"" : L"nothing";
        for (size_t i = before; i < commands.size(); ++i)
            seen += L"\"" + commands[i] + L"\" ";
        report_.check(commands.size() == before + 1 && commands.back() == command, words, seen);
    }

    void remembers(const Kind& kind) {
        std::wstring seen;
        const bool right =
            waiting::until([&] { return (seen = settings_.value(L"toolbar", kind.key)) == kind.file; }, 10);
        report_.check(right, std::wstring(kind.key) + L" tells the file", seen);
    }

    // Nobody sees it; closing it ends the program. nullptr if there is none.
    static HWND mainWindow() { return FindWindowW(L"KestrelForm", L"Kestrel Strip for EAGLE"); }

    // The setup dialog, in either language; nullptr if it is not up.
    static HWND dialog() {
        for (const wchar_t* title : {L"Configuration ", L"Konfiguration "}) {
            const HWND found = FindWindowW(L"KestrelForm", title);
            if (found && IsWindowVisible(found) && workplace::isOurs(found))
                return found;
        }
        return nullptr;
    }

    void setupDialog(const Editor& editor) {
        const Toolbar found = toolbar(editor);
        click(editor, found.bar.onScreen(found.buttons.back().place));
        HWND shown = nullptr;
        const bool come = waiting::until(
            [&] { return (shown = dialog()) != nullptr && GetForegroundWindow() == shown; }, 20);
        report_.check(come, L"a click on \"Config\" opens the setup dialog",
                      !shown ? L"no dialog"
                      : come ? L"it is in front"
                             : L"it is not in front");
        if (!shown)
            return;
        waiting::pause(500); // its pages paint themselves in their own time
        pictureOf(shown, L"setup");
        hands::press(VK_ESCAPE);
        const bool gone = waiting::until([&] { return !dialog(); }, 20);
        report_.check(gone, L"Esc closes it", gone ? L"it is gone" : L"it stays");
    }

    void ends() {
        report_.check(kestrel_.runs(), L"Kestrel goes on", kestrel_.runs() ? L"it runs" : L"it has ended");
        const HWND main = mainWindow();
        PostMessageW(main, WM_CLOSE, 0, 0);
        const bool ended = waiting::until([&] { return !kestrel_.runs(); }, 20);
        report_.check(ended && kestrel_.exitCode() == 0, L"Kestrel ends when its main window is closed",
                      !main   ? L"no main window"
                      : ended ? L"exit code " + number(kestrel_.exitCode())
                              : L"it goes on");
        for (const Editor& editor : editors_) {
            const bool alone =
                IsWindow(editor.window) && IsWindowEnabled(editor.window) && toolbars(editor).empty();
            report_.check(alone, editor.kind + L": the window is left without a toolbar, and can be used",
                          alone ? L"so it is" : L"not so");
        }
        eagle_.order({L"quit"});
        const bool quit = waiting::until([&] { return !eagle_.process().runs(); }, 20);
        report_.check(quit, L"the stand-in ends as well", quit ? L"it has ended" : L"it goes on");
    }

    const std::wstring& bits_;
    Eyes& eyes_;
    Notice& notice_;
    Report& report_;
    Eagle eagle_;
    Settings settings_;
    std::vector<Editor> editors_;
    workplace::Process kestrel_;
};

void play(const workplace::Workplace& place, const std::wstring& bits, Eyes& eyes, Notice& notice,
          Report& report) {
    notice.comeToFront();
    Scene(place, bits, eyes, notice, report).play();
}

} // namespace mainScene
