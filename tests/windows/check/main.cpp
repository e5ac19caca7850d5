// kestrel-check.exe: plays the contract tests and the main scene on the Windows that it stands on, with its
// own mouse and keyboard, and leaves kestrel-check.txt and pictures two folders above itself, beside
// check.cmd.
//
//   kestrel-check [win32|win64]... [OPTION OF THE CONTRACT TESTS]...
//
// Without the name of a bitness it plays the main scene in all that it can, a 64-bit one both, a 32-bit one
// its own, and the contract tests in its own, which is the system's: they are the longest part, and what they
// ask Windows for is the same in both. Started with arguments it does not wait at its end for its last line
// to be read. Exit code: 0 if every check passed, 1 if not, 2 if nothing was played.
#include "check/clipboard.h"
#include "check/console.h"
#include "check/contractSuite.h"
#include "check/hands.h"
#include "check/machine.h"
#include "check/mainScene.h"
#include "check/notice.h"
#include "check/privacy.h"
#include "check/report.h"
#include "check/traces.h"
#include "check/waiting.h"
#include "check/workplace.h"
#include "common/text.h"

#include <tlhelp32.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <optional>

static constexpr const wchar_t* ownBits = sizeof(void*) == 8 ? L"win64" : L"win32";
static constexpr int secondsToRead = 20; // the last line, before the console goes
static HANDLE over = nullptr;            // set when everything has been cleared away

struct Order {
    std::vector<std::wstring> bits;   // of the main scene
    std::vector<std::wstring> suites; // those of the contract tests among them
    std::wstring options;
};

static Order orderFrom(int count, wchar_t** arguments) {
    Order order;
    for (int i = 1; i < count; ++i) {
        const std::wstring word = arguments[i];
        if (word == L"win32" || word == L"win64")
            order.bits.push_back(word);
        else
            order.options += word.find(L' ') == std::wstring::npos ? L" " + word : L" \"" + word + L"\"";
    }
    order.suites = order.bits;
    if (order.bits.empty()) {
        order.suites = {ownBits};
        order.bits = sizeof(void*) == 8 ? std::vector<std::wstring>{L"win32", L"win64"} : order.suites;
    }
    return order;
}

// The name of a program that must not run, if it does, in this user's session.
static std::wstring intruder() {
    std::wstring found;
    DWORD own = 0;
    ProcessIdToSessionId(GetCurrentProcessId(), &own);
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32W entry = {};
    entry.dwSize = sizeof entry;
    for (BOOL more = Process32FirstW(snapshot, &entry); more; more = Process32NextW(snapshot, &entry)) {
        DWORD session = own;
        ProcessIdToSessionId(entry.th32ProcessID, &session);
        for (const wchar_t* name : {L"eagle.exe", L"kestrel.exe"}) {
            if (session == own && _wcsicmp(entry.szExeFile, name) == 0)
                found = name;
        }
    }
    CloseHandle(snapshot);
    return found;
}

// Runs a part. False if the user has stopped it; what broke it off otherwise is a failed check.
static bool played(Report& report, const std::wstring& title, const std::function<void()>& part) {
    report.line(L"");
    report.line(L"== " + title);
    try {
        part();
    } catch (const waiting::Stopped&) {
        report.check(false, title + L" is played to its end", L"a key of the user's has stopped it");
        return false;
    } catch (const std::exception& failure) {
        report.check(false, title + L" is played to its end", text::widen(failure.what()));
    }
    return true;
}

static void playAll(const Order& order, const std::wstring& kit, Privacy& privacy, Report& report,
                    Notice& notice) {
    const workplace::Workplace place;
    privacy.addFolder(place.folder(), L"<folder>");
    std::optional<Eyes> eyes;
    bool goesOn = played(report, L"the copy in a temporary folder", [&] {
        for (const std::wstring& bits : order.bits)
            place.copy(kit + L"\\" + bits, bits);
        place.copy(kit + L"\\" + ownBits, L"eyes");
        eyes.emplace(place, L"eyes");
        hands::awaitRest();
        report.check(true, L"the programs stand there and the witness sees", L"so it is");
    });
    const KeptClipboard clipboard;
    privacy.add(clipboard.text(), L"<clipboard>");
    for (const std::wstring& bits : order.bits) {
        const std::wstring number = bits == L"win32" ? L"32" : L"64";
        const std::wstring name = number + L" bits";
        if (goesOn && eyes) {
            notice.say(L"The main scene, " + name + L" / Die Hauptszene, " + number + L" Bit");
            goesOn = played(report, L"the main scene, " + name,
                            [&] { mainScene::play(place, bits, *eyes, notice, report); });
        }
        if (goesOn && eyes && std::ranges::find(order.suites, bits) != order.suites.end()) {
            notice.say(L"The contract tests, " + name + L" / Die Einzeltests, " + number + L" Bit");
            goesOn = played(report, L"the contract tests, " + name,
                            [&] { contractSuite::run(place, bits, order.options, notice, privacy, report); });
        }
    }
    report.line(L"");
    eyes.reset();
    const bool gone = place.clear();
    report.check(gone, L"the temporary folder goes", gone ? L"it is gone" : L"something stays in it");
}

static std::wstring above(const std::wstring& path) {
    return path.substr(0, path.rfind(L'\\'));
}

static int failed(const std::wstring& english, const std::wstring& german) {
    console::say(english, german);
    return 2;
}

static std::wstring today() {
    SYSTEMTIME now;
    GetLocalTime(&now);
    wchar_t date[32] = {};
    std::swprintf(date, std::size(date), L"%04d-%02d-%02d", now.wYear, now.wMonth, now.wDay);
    return date;
}

static int check(const Order& order) {
    if (const std::wstring found = intruder(); !found.empty())
        return failed(L"Please close " + found + L" first: this check would disturb it.",
                      L"Bitte zuerst " + found + L" beenden: diese Pr\u00FCfung w\u00FCrde es st\u00F6ren.");
    wchar_t own[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, own, MAX_PATH);
    const std::wstring kit = above(above(own));

    Privacy privacy;
    Report report(above(kit), privacy);
    if (!report.opened())
        return failed(L"kestrel-check.txt cannot be written here.\r\n"
                      L"Please unpack the zip into a folder of yours.",
                      L"kestrel-check.txt l\u00E4sst sich hier nicht schreiben.\r\n"
                      L"Bitte das Zip in einen eigenen Ordner auspacken.");
    console::say(L"Kestrel " KESTREL_VERSION L": a check of the program on this Windows.",
                 L"Kestrel " KESTREL_VERSION L": eine Pr\u00FCfung des Programms auf diesem Windows.");
    console::say(L"It uses mouse and keyboard for some two minutes.\r\n"
                 L"Please leave both alone; any key stops it.",
                 L"Sie braucht etwa zwei Minuten lang Maus und Tastatur.\r\n"
                 L"Bitte beide ruhen lassen; jede Taste bricht ab.");
    report.line(L"Kestrel " KESTREL_VERSION L", checked on " + today());
    machine::describe(report);
    try {
        const HWND front = GetForegroundWindow();
        const hands::KeptPointer pointer;
        Notice notice;
        playAll(order, kit, privacy, report, notice);
        traces::remove();
        if (!waiting::stopped())
            notice.comeToFront();
        SetForegroundWindow(front);
    } catch (const std::exception& failure) {
        report.check(false, L"the check is played to its end", text::widen(failure.what()));
    }
    const int code = report.finish();
    const bool stopped = waiting::stopped();
    console::say(std::wstring(code == 0 ? L"All is well."
                              : stopped ? L"Stopped."
                                        : L"Something is wrong.") +
                     L" kestrel-check.txt and its pictures stand beside check.cmd.",
                 std::wstring(code == 0 ? L"Alles in Ordnung."
                              : stopped ? L"Abgebrochen."
                                        : L"Etwas stimmt nicht.") +
                     L" kestrel-check.txt und die Bilder liegen neben check.cmd.");
    return code;
}

// The console is closed, or the user logs off: what was made is removed first.
static BOOL WINAPI consoleEnds(DWORD) {
    waiting::stop();
    WaitForSingleObject(over, 20'000);
    return TRUE;
}

int wmain(int count, wchar_t** arguments) {
    over = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    SetConsoleCtrlHandler(consoleEnds, TRUE);
    int code = 2;
    try {
        code = check(orderFrom(count, arguments));
    } catch (const std::exception& failure) {
        const std::wstring why = text::widen(failure.what());
        failed(L"The check cannot be played: " + why,
               L"Die Pr\u00FCfung l\u00E4sst sich nicht spielen: " + why);
    } catch (const waiting::Stopped&) {
        failed(L"Stopped.", L"Abgebrochen.");
    }
    SetEvent(over);
    if (count == 1)
        Sleep(secondsToRead * 1000);
    return code;
}
