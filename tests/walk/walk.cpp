#include "walk/walk.h"

#include "core/frmMenu.h"
#include "desktop/faults.h"
#include "store/state.h"

#include <algorithm>
#include <array>

namespace programWalk {

namespace {

constexpr std::uint32_t steady = 7;  // the process of an EAGLE that runs all the time
constexpr std::uint32_t another = 8; // of one that crashes now and then
constexpr std::uint32_t other = 9;   // of something else
constexpr std::int64_t tick = 200;   // milliseconds
constexpr std::size_t mostHosts = 12;
constexpr std::size_t mostNoted = 40;

constexpr std::array names = {"grid", "drc", "ratsnest", "window fit", "move"};

/// A few rows of each list, all of which can be read.
std::string listText(fuzz::Random& random, const char* section, std::vector<Row>& rows) {
    std::string text = "[" + std::string(section) + "]\r\n";
    const std::size_t count = random.below(6);
    for (std::size_t row = 1; row <= count; ++row) {
        const bool separator = random.below(5) == 0;
        const std::string number = std::to_string(row);
        const std::string name = separator ? "----" : names[random.below(names.size())];
        const auto add = [&](const char* field, const std::string& value) {
            text.append(number).append(field).append("=").append(value).append("\r\n");
        };
        add("name", name);
        add("path", separator ? "" : name);
        add("tooltip", separator ? "" : "tip");
        add("param", "");
        add("icon", separator || random.below(2) == 0 ? "" : "C:\\i.dll,1");
        add("dialog", std::to_string(separator ? 0 : random.below(3)));
        add("type", std::to_string(separator ? 2 : random.below(2)));
        rows.push_back({name, separator});
    }
    return text;
}

} // namespace

Walk::Walk(std::uint32_t seed) : seed_(seed), random_(seed), desk_(program_.desk()) {
    expected_.mended = !one(4);
    expected_.calculatorsOn = !one(4);
    std::string text = "[global]\r\nlanguage=" + std::string(one(2) ? "10000" : "0") +
                       "\r\nmend=" + (expected_.mended ? "1" : "0") +
                       "\r\n[Unit]\r\nVisible=" + (expected_.calculatorsOn ? "1" : "0") +
                       "\r\n[Toolbar]\r\nautoToolbar=" + std::string(one(2) ? "1" : "0") +
                       "\r\nEAGLEpath=C:\\EAGLE\\eagle.exe\r\n";
    constexpr std::array sections = {"board", "schem", "libr"};
    for (std::size_t kind = 0; kind < kinds; ++kind)
        text += listText(random_, sections[kind], expected_.rows[kind]);
    desk_.writeSettings(text);
    expected_.settings = parsed(text);
    desk_.writeFile("C:\\EAGLE\\eagle.exe", "MZ");
    desk_.writeFile("C:\\tools\\run.exe", "MZ");
    desk_.addIcons("C:\\tools\\run.exe", 1);
    desk_.addIcons("C:\\i.dll", 4);
    desk_.startProcess("explorer.exe", other);
    desk_.startProcess("eagle.exe", steady);
    desk_.startProcess("EAGLE.EXE", another);
    desktop::faults().onCall = [this](const std::string& call) {
        if (call == "CreateToolhelp32Snapshot")
            expected_.tickBegins();
        else if (call == "EnumWindows")
            expected_.looks();
    };
    rule(program_.start(), "the program starts");
    icons_ = desk_.nextIcon;
}

Walk::~Walk() {
    desktop::faults().onCall = nullptr;
}

const std::vector<Walk::Event>& Walk::events() {
    static const std::vector<Event> all = {
        {"time passes", &Walk::timePasses, 300},
        {"open", &Walk::open, 60},
        {"close", &Walk::close, 40},
        {"rename", &Walk::rename, 50},
        {"move", &Walk::move, 80},
        {"raise", &Walk::raise, 80},
        {"minimise", &Walk::minimise, 30},
        {"hang", &Walk::hang, 20},
        {"EAGLE crashes or starts", &Walk::eagleCrashes, 4},
        {"ghosts", &Walk::ghosts, 10},
        {"click", &Walk::click, 60},
        {"mouse over", &Walk::mouseOver, 60},
        {"calculate", &Walk::calculate, 60},
        {"request", &Walk::request, 10},
        {"tray", &Walk::tray, 20},
        {"shell restarts", &Walk::shellRestarts, 4},
    };
    return all;
}

void Walk::note(const std::string& text) {
    latest_.back() += " " + text;
}

void Walk::act(const std::function<void()>& code) {
    rule(desk_.event(code), "the program runs on");
}

void Walk::step() {
    static const std::size_t sum = [] {
        std::size_t weights = 0;
        for (const Event& event : events())
            weights += event.weight;
        return weights;
    }();
    std::size_t chosen = random_.below(sum);
    const Event* event = events().data();
    for (; chosen >= event->weight; ++event)
        chosen -= event->weight;
    latest_.push_back(std::to_string(played_) + " " + event->name);
    if (latest_.size() > mostNoted)
        latest_.pop_front();
    (this->*event->does)();
    expected_.tickEnds();
    expected_.sweep();
    check();
    desk_.calls.clear();
    desk_.settingsPaths.clear();
    desk_.typed.clear();
    desk_.started.clear();
    desk_.executed.clear();
    desk_.fileDialogs.clear();
    desk_.inputBoxes.clear();
    desk_.helpCalls.clear();
    desk_.chooserCalls.clear();
    desk_.activations.clear();
    desk_.inputAnswers.clear();
    desk_.fileAnswers.clear();
    desk_.chooserAnswers.clear();
}

int Walk::play(int events) {
    const int end = played_ + events;
    while (played_ < end && wrong_.empty()) {
        ++played_;
        try {
            step();
        } catch (const std::exception& error) {
            rule(false, "nothing is thrown to the outside", error.what());
        }
    }
    return played_ - (end - events);
}

std::string Walk::report() const {
    if (wrong_.empty())
        return {};
    std::string text = "seed " + std::to_string(seed_) + ", event " + std::to_string(played_) + ": " + wrong_;
    for (const std::string& event : latest_)
        text += "\n    " + event;
    return text;
}

// --- what happens

void Walk::timePasses() {
    for (std::size_t ticks = 1 + random_.below(3); ticks > 0 && wrong_.empty(); --ticks) {
        desk_.run(tick);
        ++waited_;
    }
    rule(!desk_.ended, "the program runs on");
}

std::string Walk::title() {
    static const std::array files = {"a", "b", "c", "d", "long name"};
    const std::string file = files[random_.below(files.size())];
    switch (random_.below(20)) {
    case 0:
        return "Letter to " + file;
    case 1:
        return "";
    case 2:
        return "Control Panel - C:\\eagle - EAGLE 6.5";
    case 3:
        return "EAGLE: Board - " + file + ".brd - none";
    case 4:
        return "BOARD - upper.brd - EAGLE";
    case 5:
        return "Board - Schematic - both - EAGLE";
    case 6:
        return "Board -";
    case 7:
        return std::string(250, 'x') + " Board - far.brd - EAGLE";
    case 8:
        return "1 Schaltplan - " + file + ".sch - EAGLE";
    case 9:
        return "Bibliothek - " + file + ".lbr (R0402) - EAGLE";
    case 10:
        return "Library - " + file + ".lbr - EAGLE";
    case 11:
    case 12:
    case 13:
    case 14:
        return "2 Schematic - C:\\x\\" + file + ".sch - EAGLE 6.5";
    default:
        return "1 Board - " + file + ".brd - EAGLE 6.5";
    }
}

desktop::RECT Walk::place() {
    const int left = static_cast<int>(random_.below(900)) - 100;
    const int top = static_cast<int>(random_.below(600));
    return {left, top, left + 150 + static_cast<int>(random_.below(1200)),
            top + 100 + static_cast<int>(random_.below(700))};
}

Host* Walk::anyHost() {
    return expected_.hosts.empty() ? nullptr : &expected_.hosts[random_.below(expected_.hosts.size())];
}

void Walk::open() {
    if (expected_.hosts.size() >= mostHosts)
        return;
    Host host;
    host.title = title();
    host.process = one(6) ? other : !killed_ && one(2) ? another : steady;
    host.handle = desk_.openWindow(host.title, place(), host.process);
    host.refuses = one(30);
    desktop::Window& window = desk_.window(host.handle);
    (one(3) ? window.dying : window.elevated) = host.refuses;
    note(std::to_string(static_cast<std::uintptr_t>(host.handle)) + " " + host.title);
    expected_.hosts.push_back(host);
}

void Walk::close() {
    const Host* host = anyHost();
    if (host == nullptr)
        return;
    note(host->title);
    desk_.closeWindow(host->handle);
}

void Walk::rename() {
    Host* host = anyHost();
    if (host == nullptr)
        return;
    host->title = title();
    note(std::to_string(static_cast<std::uintptr_t>(host->handle)) + " " + host->title);
    desk_.setTitle(host->handle, host->title);
}

void Walk::move() {
    if (const Host* host = anyHost())
        desk_.window(host->handle).rect = place();
}

void Walk::raise() {
    const Host* host = anyHost();
    if (host == nullptr)
        return;
    desk_.raise(host->handle);
    desk_.foreground = host->handle;
}

void Walk::minimise() {
    if (const Host* host = anyHost()) {
        bool& minimised = desk_.window(host->handle).minimised;
        minimised = !minimised;
    }
}

void Walk::hang() {
    constexpr std::array<std::int64_t, 5> lengths = {100, 700, 3'000, 8'000, 20'000};
    const Host* host = anyHost();
    if (host == nullptr || desk_.hangs(host->handle))
        return;
    const std::int64_t length = lengths[random_.below(lengths.size())];
    note(std::to_string(length) + " " + host->title);
    desk_.hang(host->handle, length);
}

void Walk::eagleCrashes() {
    killed_ = !killed_;
    if (killed_)
        desk_.killProcess(another);
    else
        desk_.startProcess("EAGLE.EXE", another);
}

/// The system shows pictures of windows that hang, and takes them away again.
void Walk::ghosts() {
    for (const Host& host : expected_.hosts)
        if (desk_.hangs(host.handle) && !ghosts_.contains(host.handle))
            ghosts_[host.handle] = desk_.makeGhost(host.handle);
        else if (const auto ghost = ghosts_.find(host.handle); ghost != ghosts_.end() && one(2)) {
            desk_.endGhost(ghost->second, host.handle);
            ghosts_.erase(ghost);
        }
    std::erase_if(ghosts_, [this](const auto& pair) {
        if (desk_.find(pair.first) != nullptr)
            return false;
        desk_.closeWindow(pair.second);
        return true;
    });
}

toolbars::frmToolbar* Walk::anyToolbar(std::size_t& kind, std::size_t& index) {
    std::vector<std::pair<std::size_t, std::size_t>> live;
    for (kind = 0; kind < kinds; ++kind)
        for (index = 0; index < expected_.bars[kind].size(); ++index)
            if (const Bar& bar = expected_.bars[kind][index]; !bar.dead && !bar.refused)
                live.emplace_back(kind, index);
    if (live.empty())
        return nullptr;
    std::tie(kind, index) = live[random_.below(live.size())];
    return &program_.toolbar(static_cast<store::EditorKind>(kind), index + 1);
}

void Walk::click() {
    std::size_t kind = 0;
    std::size_t index = 0;
    toolbars::frmToolbar* toolbar = anyToolbar(kind, index);
    if (toolbar == nullptr)
        return;
    const std::size_t buttons = toolbar->toolbar.buttons().size();
    const std::size_t button = one(4) ? buttons - 1 : random_.below(buttons);
    note(std::to_string(button) + " of the toolbar in " +
         std::to_string(static_cast<std::uintptr_t>(toolbar->eagHND)));
    if (!one(3)) {
        desk_.inputAnswers = {"answer"};
        desk_.fileAnswers = {std::string("C:\\a b\\c.scr")};
    }
    if (button + 1 == buttons) {
        expectSetup(kind);
        if (!expected_.mended)
            expected_.bars[kind][index].heightKnown = false;
    }
    act([&] { toolbar->toolbar.clickButton(button); });
    rule(desk_.modalScripts.empty(), "the setup has come up");
    for (const desktop::TypedKeys& typed : desk_.typed)
        rule(typed.window == toolbar->eagHND, "a command goes to the window of its toolbar");
}

void Walk::mouseOver() {
    std::size_t kind = 0;
    std::size_t index = 0;
    if (toolbars::frmToolbar* toolbar = anyToolbar(kind, index))
        act([&] { toolbar->Toolbar_MouseMove(); });
}

void Walk::calculate() {
    constexpr std::array texts = {"1", "2.54", "1e3", "", "x", "-0.5", "100000"};
    const std::size_t index = random_.below(expected_.calculators.size());
    if (index == 0 || expected_.calculators[index].dead)
        return;
    calculator::frmMil& form = *program_.form().calculators[index];
    const std::size_t side = random_.below(2);
    act([&] {
        form.txtSize[side].edited(texts[random_.below(texts.size())]);
        form.txtSize_KeyUp(side);
    });
    rule(!form.txtSize[1 - side].text().empty(), "a calculator shows a length");
}

void Walk::request() {
    const std::string file = desk_.programFolder + "\\execute.txt";
    if (desk_.file(file) != nullptr)
        return;
    desk_.writeFile(file, "C:\\tools\\run.exe \"a b\"");
    waited_ = 0;
}

void Walk::tray() {
    constexpr std::array entries = {0, 1, 3, 4, 4};
    int entry = entries[random_.below(entries.size())];
    // Without the mends an EAGLE whose titles begin with a number ends the program.
    if (entry == 3 && !expected_.mended)
        entry = 4;
    note(std::to_string(entry));
    if (entry == 4)
        expectSetup(kinds);
    desk_.onMenu = [entry](forms::Menu& menu) { menu.onClick(entry); };
    constexpr float rightReleased = 0x1E4B;
    act([&] { program_.form().txtTooltip_MouseMove(rightReleased); });
    desk_.onMenu = nullptr;
    rule(desk_.modalScripts.empty(), "the setup has come up");
}

void Walk::shellRestarts() {
    desk_.trayIcon.reset();
    act([&] { program_.form().Form_TaskbarCreated(); });
}

} // namespace programWalk
