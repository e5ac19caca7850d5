#include "eagle/eagle.h"
#include "common/journal.h"
#include "eagle/editor.h"

#include <windows.h>

#include <map>
#include <sstream>

namespace eagle {

static void openFile(const std::wstring& file, bool german) {
    if (const auto kind = kinds::fromFile(file))
        editor::open(*kind, kinds::title(*kind, file, german), german);
}

void start(const commandLine::Start& start, bool german) {
    const std::vector<int> before = editor::openIds();
    if (!start.file.empty())
        openFile(start.file, german);
    const std::vector<int> after = editor::openIds();
    if (start.command.empty())
        return;
    if (after.size() > before.size())
        editor::execute(*editor::find(after.back()), start.command);
    else
        runCommands(start.command, german);
}

void runCommands(const std::wstring& commands, bool german) {
    std::wistringstream parts(commands);
    for (std::wstring part; std::getline(parts, part, L';');) {
        const size_t begin = part.find_first_not_of(L' ');
        if (begin == std::wstring::npos)
            continue;
        part = part.substr(begin);
        if (part.starts_with(L"edit ") || part.starts_with(L"open "))
            openFile(part.substr(5), german);
        else if (part == L"quit")
            PostQuitMessage(0);
    }
}

using orders::Order;
using Action = void (*)(const Order&);

static void withEditor(const Order& order, void (*action)(const Order&, editor::Editor&)) {
    editor::Editor* found = editor::find(static_cast<int>(order.numberAt(0)));
    if (!found)
        return orders::failed(order, L"no such window");
    action(order, *found);
}

static bool isGerman(const std::wstring& word) {
    return word == L"de";
}

// open KIND en|de FILE; answers with the window's id and handle
static void orderOpen(const Order& order) {
    const auto kind = kinds::fromName(order.word(0));
    if (!kind)
        return orders::failed(order, L"no such kind");
    const bool german = isGerman(order.word(1));
    const editor::Editor& opened = editor::open(*kind, kinds::title(*kind, order.word(2), german), german);
    orders::done(order, std::to_wstring(opened.id));
}

// openas KIND en|de TITLE; the title as it stands
static void orderOpenAs(const Order& order) {
    const auto kind = kinds::fromName(order.word(0));
    if (!kind)
        return orders::failed(order, L"no such kind");
    const editor::Editor& opened = editor::open(*kind, order.word(2), isGerman(order.word(1)));
    orders::done(order, std::to_wstring(opened.id));
}

// many COUNT KIND; files are numbered
static void orderMany(const Order& order) {
    const auto kind = kinds::fromName(order.word(1));
    if (!kind)
        return orders::failed(order, L"no such kind");
    for (int i = 1; i <= order.numberAt(0); ++i) {
        const std::wstring file = L"C:\\work\\many" + std::to_wstring(i) + kinds::facts(*kind).extension;
        editor::open(*kind, kinds::title(*kind, file, false), false);
    }
    orders::done(order);
}

// title ID TITLE
static void orderTitle(const Order& order) {
    withEditor(order, [](const Order& o, editor::Editor& e) {
        SetWindowTextW(e.frame, o.word(1).c_str());
        orders::done(o);
    });
}

// close ID, as the close box does it
static void orderClose(const Order& order) {
    withEditor(order, [](const Order& o, editor::Editor& e) {
        SendMessageW(e.frame, WM_CLOSE, 0, 0);
        orders::done(o);
    });
}

// place ID LEFT TOP WIDTH HEIGHT, in screen pixels
static void orderPlace(const Order& order) {
    withEditor(order, [](const Order& o, editor::Editor& e) {
        MoveWindow(e.frame, static_cast<int>(o.numberAt(1)), static_cast<int>(o.numberAt(2)),
                   static_cast<int>(o.numberAt(3)), static_cast<int>(o.numberAt(4)), TRUE);
        orders::done(o);
    });
}

// raise ID: to the top and to the foreground
static void orderRaise(const Order& order) {
    withEditor(order, [](const Order& o, editor::Editor& e) {
        BringWindowToTop(e.frame);
        SetForegroundWindow(e.frame);
        orders::done(o);
    });
}

// show ID VALUE: a value of ShowWindow, 6 minimised, 9 restored, 0 hidden, 5 shown
static void orderShow(const Order& order) {
    withEditor(order, [](const Order& o, editor::Editor& e) {
        ShowWindow(e.frame, static_cast<int>(o.numberAt(1)));
        orders::done(o);
    });
}

// Wakes the window thread while it hangs.
static HANDLE awake() {
    static const HANDLE event = CreateEventW(nullptr, FALSE, FALSE, nullptr); // lives as long as the program
    return event;
}

// hang MILLISECONDS: the window thread answers nothing as long, or until it is woken
static void orderHang(const Order& order) {
    ResetEvent(awake());
    journal::write("hangs", {order.word(0)});
    WaitForSingleObject(awake(), static_cast<DWORD>(order.numberAt(0)));
    orders::done(order);
}

void wake() {
    SetEvent(awake());
}

// quit: the orderly end
static void orderQuit(const Order& order) {
    for (const int id : editor::openIds())
        DestroyWindow(editor::find(id)->frame);
    orders::done(order);
    PostQuitMessage(0);
}

void obey(const Order& order) {
    static const std::map<std::wstring, Action> actions = {
        {L"open", orderOpen},   {L"openas", orderOpenAs}, {L"many", orderMany},   {L"title", orderTitle},
        {L"close", orderClose}, {L"place", orderPlace},   {L"raise", orderRaise}, {L"show", orderShow},
        {L"hang", orderHang},   {L"quit", orderQuit},
    };
    const auto found = actions.find(order.verb);
    if (found == actions.end())
        orders::failed(order, L"unknown verb");
    else
        found->second(order);
}

} // namespace eagle
