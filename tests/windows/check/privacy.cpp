#include "check/privacy.h"
#include "check/workplace.h"

#include <windows.h>

#include <lmcons.h>

#include <cwctype>
#include <vector>

static constexpr size_t shortestTitle = 4; // one that is shorter tells nothing and stands in many words

// As the text looks after it has been through the ANSI code page, with and without look-alike letters.
static std::wstring throughAnsi(const std::wstring& text, DWORD flags) {
    std::string narrow(text.size() * 4 + 1, '\0');
    const int size = WideCharToMultiByte(CP_ACP, flags, text.c_str(), static_cast<int>(text.size()),
                                         narrow.data(), static_cast<int>(narrow.size()), nullptr, nullptr);
    std::wstring result(narrow.size(), L'\0');
    result.resize(static_cast<size_t>(
        MultiByteToWideChar(CP_ACP, 0, narrow.data(), size, result.data(), static_cast<int>(result.size()))));
    return result;
}

static std::wstring variable(const wchar_t* name) {
    wchar_t value[MAX_PATH] = {};
    const DWORD length = GetEnvironmentVariableW(name, value, MAX_PATH);
    return length < MAX_PATH ? std::wstring(value, length) : std::wstring();
}

Privacy::Privacy() {
    wchar_t name[UNLEN + 1] = {};
    DWORD size = UNLEN + 1;
    if (GetUserNameW(name, &size))
        add(name, L"<user>");
    size = UNLEN + 1;
    if (GetComputerNameW(name, &size))
        add(name, L"<computer>");
    add(variable(L"USERNAME"), L"<user>");
    add(variable(L"COMPUTERNAME"), L"<computer>");
    add(variable(L"USERDOMAIN"), L"<domain>");
    const std::wstring profile = variable(L"USERPROFILE");
    addFolder(profile, L"<profile>");
    add(profile.substr(profile.find_last_of(L'\\') + 1), L"<user>");
    addFolder(variable(L"OneDrive"), L"<OneDrive>");
}

void Privacy::add(const std::wstring& secret, const std::wstring& name) {
    if (secret.empty())
        return;
    names_.emplace(secret, name);
    names_.emplace(throughAnsi(secret, 0), name);
    if (GetACP() != CP_UTF8)
        names_.emplace(throughAnsi(secret, WC_NO_BEST_FIT_CHARS), name);
}

void Privacy::addFolder(const std::wstring& folder, const std::wstring& name) {
    add(folder, name);
    for (const auto form : {GetShortPathNameW, GetLongPathNameW}) {
        wchar_t path[MAX_PATH] = {};
        const DWORD length = form(folder.c_str(), path, MAX_PATH);
        if (length > 0 && length < MAX_PATH)
            add(path, name);
    }
}

static BOOL CALLBACK collect(HWND window, LPARAM list) {
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

void Privacy::addTitles() {
    std::vector<HWND> windows;
    EnumWindows(collect, reinterpret_cast<LPARAM>(&windows));
    for (const HWND window : windows) {
        wchar_t title[512] = {};
        const int length = InternalGetWindowText(window, title, 512);
        if (length >= static_cast<int>(shortestTitle) && IsWindowVisible(window) &&
            !workplace::isOurs(window))
            add(title, L"<title>");
    }
}

static bool isLetter(const std::wstring& text, size_t at) {
    return at < text.size() && (iswalnum(text[at]) || text[at] == L'_');
}

// Upper and lower case are the same; a part of a word is left alone.
static size_t findWhole(const std::wstring& text, const std::wstring& word, size_t from) {
    for (; from + word.size() <= text.size(); ++from) {
        if (CompareStringOrdinal(text.c_str() + from, static_cast<int>(word.size()), word.c_str(),
                                 static_cast<int>(word.size()), TRUE) == CSTR_EQUAL &&
            !(from > 0 && isLetter(text, from - 1) && isLetter(word, 0)) &&
            !(isLetter(text, from + word.size()) && isLetter(word, word.size() - 1)))
            return from;
    }
    return std::wstring::npos;
}

std::wstring Privacy::hidden(std::wstring text) const {
    for (const auto& [secret, name] : names_) {
        for (size_t at = 0; (at = findWhole(text, secret, at)) != std::wstring::npos; at += name.size())
            text.replace(at, secret.size(), name);
    }
    return text;
}
