#include "witness/windowTree.h"
#include "common/text.h"
#include "witness/remoteToolbar.h"

#include <windows.h>

#include <commctrl.h>
#include <tlhelp32.h>

#include <initializer_list>
#include <set>
#include <string>
#include <vector>

namespace windowTree {

static std::string line(const char* name, std::initializer_list<long long> numbers,
                        const std::wstring* words) {
    std::string result = name;
    for (const long long number : numbers)
        result += '\t' + std::to_string(number);
    if (words)
        result += '\t' + text::escaped(*words);
    return result + '\n';
}

static long long number(HWND window) {
    return static_cast<long long>(reinterpret_cast<UINT_PTR>(window));
}

static BOOL CALLBACK collect(HWND window, LPARAM list) {
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

static std::wstring classOf(HWND window) {
    wchar_t name[128] = {};
    GetClassNameW(window, name, 128);
    return name;
}

// The title as the system keeps it; the window's thread is not asked.
static std::wstring titleOf(HWND window) {
    std::wstring title(20000, L'\0');
    title.resize(
        static_cast<size_t>(InternalGetWindowText(window, title.data(), static_cast<int>(title.size()))));
    return title;
}

// Looks at windows once; remembers which processes do not answer, so that each costs one wait only.
class Look {
  public:
    std::string window(HWND window) {
        RECT place = {};
        RECT client = {};
        GetWindowRect(window, &place);
        GetClientRect(window, &client);
        MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&client), 2);
        DWORD process = 0;
        GetWindowThreadProcessId(window, &process);
        const HWND above = GetAncestor(window, GA_PARENT);
        const HWND parent = above == GetDesktopWindow() ? nullptr : above;
        const std::wstring className = classOf(window);

        std::string result =
            line("window", {number(window), number(parent), number(GetWindow(window, GW_OWNER)), process},
                 &className);
        result.pop_back();
        const std::wstring words = textOf(window, className, process);
        result += line("",
                       {GetWindowLongW(window, GWL_STYLE), GetWindowLongW(window, GWL_EXSTYLE),
                        IsWindowVisible(window), IsWindowEnabled(window), place.left, place.top, place.right,
                        place.bottom, client.left, client.top, client.right, client.bottom},
                       &words);
        if (className == L"ToolbarWindow32" && !silent_.contains(process))
            result += buttons(window);
        if (className == L"SysTreeView32" && !silent_.contains(process))
            result += items(window, process);
        return result;
    }

  private:
    // What stands in a field can only be told by its owner.
    std::wstring textOf(HWND window, const std::wstring& className, DWORD process) {
        const bool field = className == L"Edit" || className == L"EDIT" || className == L"ComboBox";
        if (!field || silent_.contains(process))
            return titleOf(window);
        std::wstring words(4096, L'\0');
        DWORD_PTR length = 0;
        if (!SendMessageTimeoutW(window, WM_GETTEXT, words.size(), reinterpret_cast<LPARAM>(words.data()),
                                 SMTO_ABORTIFHUNG, 300, &length)) {
            silent_.insert(process);
            return titleOf(window);
        }
        words.resize(length);
        return words;
    }

    std::string items(HWND tree, DWORD process) {
        DWORD_PTR count = 0;
        if (!SendMessageTimeoutW(tree, TVM_GETCOUNT, 0, 0, SMTO_ABORTIFHUNG, 300, &count)) {
            silent_.insert(process);
            return {};
        }
        return line("tree", {number(tree), static_cast<long long>(count)}, nullptr);
    }

    static std::string buttons(HWND toolbar) {
        std::string result;
        long long index = 0;
        for (const remoteToolbar::Button& button : remoteToolbar::buttons(toolbar)) {
            result += line("button",
                           {number(toolbar), index++, button.place.left, button.place.top, button.place.right,
                            button.place.bottom, button.state, button.style},
                           nullptr);
        }
        return result;
    }

    std::set<DWORD> silent_;
};

static std::string focus() {
    const HWND foreground = GetForegroundWindow();
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(foreground, nullptr), &info);
    return line("focus", {number(foreground), number(info.hwndFocus)}, nullptr);
}

static std::string processes() {
    std::string result;
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32W entry = {};
    entry.dwSize = sizeof entry;
    for (BOOL more = Process32FirstW(snapshot, &entry); more; more = Process32NextW(snapshot, &entry)) {
        const std::wstring name = entry.szExeFile;
        result += line("process", {entry.th32ProcessID}, &name);
    }
    CloseHandle(snapshot);
    return result;
}

std::string dump(HWND only) {
    std::vector<HWND> windows;
    if (!only)
        EnumWindows(collect, reinterpret_cast<LPARAM>(&windows));
    else if (IsWindow(only))
        windows.push_back(only);
    Look look;
    std::string result;
    for (const HWND window : windows) {
        result += look.window(window);
        std::vector<HWND> children;
        EnumChildWindows(window, collect, reinterpret_cast<LPARAM>(&children));
        for (const HWND child : children)
            result += look.window(child);
    }
    return result + focus() + processes();
}

} // namespace windowTree
