// What the shell opens on a server: in its order, on one thread, and not waited for while it hangs.
#include "contract/windows/deadServer.h"
#include "contract/windows/importHook.h"
#include "contract/world.h"
#include "platform/files.h"
#include "platform/programs.h"
#include "platform/shell32.h"
#include "runtime/errorOf.h"
#include "runtime/runtimeError.h"
#include "win32/platform/hosts.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <shellapi.h>

#include <atomic>
#include <cstdint>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace {

using contract::DeadServer;
using contract::World;

constexpr DWORD halfAMinute = 30'000;
constexpr std::int64_t patience = 3'000; // milliseconds
constexpr std::int64_t slack = 1'500;    // on a machine with much else to do

/// A question of the system for the user, up from its making to its end.
class Question {
  public:
    Question()
        : window_(CreateWindowExA(WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, "Static", "question",
                                  WS_POPUP | WS_VISIBLE, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr)) {}
    ~Question() { DestroyWindow(window_); }
    Question(const Question&) = delete;
    Question& operator=(const Question&) = delete;

  private:
    HWND window_;
};

/// What the shell does before it is let go.
enum class Meanwhile {
    hangs,          ///< for which the clock runs ahead
    asks,           ///< the user, until its question is answered
    asksOutOfSight, ///< on a desktop that nobody else sees
};

/// The shell from its making to its end: it opens everything, but not before it is let go.
class SlowShell {
  public:
    explicit SlowShell(Meanwhile meanwhile) {
        meanwhile_ = meanwhile;
        answer_ = CreateEventA(nullptr, TRUE, FALSE, nullptr);
        go_ = CreateEventA(nullptr, TRUE, FALSE, nullptr);
        begun_ = 0;
        answered_ = 0;
        standing_ = 0;
        most_ = 0;
        opened_.clear();
        threads_.clear();
    }
    ~SlowShell() {
        letGo();
        while (standing_ > 0)
            Sleep(1);
        CloseHandle(go_);
        CloseHandle(answer_);
    }
    SlowShell(const SlowShell&) = delete;
    SlowShell& operator=(const SlowShell&) = delete;

    /// Its questions are answered.
    static void answer() { SetEvent(answer_); }
    static void letGo() {
        answer();
        SetEvent(go_);
    }
    static int answered() { return answered_; }
    static int begun() { return begun_; }
    static int mostAtOnce() { return most_; }
    static std::vector<std::wstring> opened() {
        const std::lock_guard<std::mutex> locked(lock_);
        return opened_;
    }
    static std::size_t threads() {
        const std::lock_guard<std::mutex> locked(lock_);
        return threads_.size();
    }

  private:
    static BOOL WINAPI open(SHELLEXECUTEINFOW* call) {
        ++begun_;
        const int now = ++standing_;
        for (int before = most_; before < now && !most_.compare_exchange_weak(before, now);) {
        }
        if (meanwhile_ == Meanwhile::asks) {
            const Question question;
            WaitForSingleObject(answer_, halfAMinute);
        }
        std::optional<contract::Hanging> hanging;
        if (meanwhile_ == Meanwhile::hangs)
            hanging.emplace();
        ++answered_;
        WaitForSingleObject(go_, halfAMinute);
        hanging.reset();
        {
            const std::lock_guard<std::mutex> locked(lock_);
            opened_.emplace_back(call->lpFile);
            threads_.insert(GetCurrentThreadId());
        }
        constexpr std::intptr_t done = 42;
        call->hInstApp = reinterpret_cast<HINSTANCE>(done);
        --standing_;
        return TRUE;
    }

    static inline std::atomic<Meanwhile> meanwhile_;
    static inline HANDLE answer_ = nullptr;
    static inline HANDLE go_ = nullptr;
    static inline std::atomic<int> begun_;
    static inline std::atomic<int> answered_;
    static inline std::atomic<int> standing_;
    static inline std::atomic<int> most_;
    static inline std::mutex lock_;
    static inline std::vector<std::wstring> opened_;
    static inline std::set<DWORD> threads_;
    contract::ImportHook hook_{"ShellExecuteExW", reinterpret_cast<void*>(open)};
};

std::intptr_t open(const std::string& file) {
    return platform::ShellExecuteA(platform::HWND::none, "Open", file.c_str(), "", "",
                                   platform::showNormally);
}

HANDLE WINAPI noMemoryForThread(SECURITY_ATTRIBUTES* /*rights*/, SIZE_T /*stack*/,
                                LPTHREAD_START_ROUTINE /*routine*/, void* /*parameter*/, DWORD /*flags*/,
                                DWORD* /*number*/) {
    throw runtime::RuntimeError(runtime::ErrorNumber::outOfMemory);
}

/// Programs of a server that need more rights than ours, from its making to its end.
class MoreRightsThere {
  private:
    static BOOL WINAPI create(const wchar_t* /*name*/, wchar_t* /*line*/, SECURITY_ATTRIBUTES* /*process*/,
                              SECURITY_ATTRIBUTES* /*thread*/, BOOL /*inherit*/, DWORD /*flags*/,
                              void* /*environment*/, const wchar_t* /*folder*/, STARTUPINFOW* /*start*/,
                              PROCESS_INFORMATION* /*made*/) {
        SetLastError(win32::elevationRequired);
        return FALSE;
    }
    static DWORD WINAPI search(const wchar_t* /*folders*/, const wchar_t* file, const wchar_t* /*ending*/,
                               DWORD /*size*/, wchar_t* found, wchar_t** /*name*/) {
        const std::wstring whole = file;
        whole.copy(found, whole.size());
        return static_cast<DWORD>(whole.size());
    }
    static DWORD WINAPI attributes(const wchar_t* /*file*/) { return FILE_ATTRIBUTE_NORMAL; }

    contract::ImportHook create_{"CreateProcessW", reinterpret_cast<void*>(create)};
    contract::ImportHook search_{"SearchPathW", reinterpret_cast<void*>(search)};
    contract::ImportHook attributes_{"GetFileAttributesW", reinterpret_cast<void*>(attributes)};
};

/// A thread that has just found no more openings, and stands there from the making to the end.
class StandingAtEnd {
  public:
    StandingAtEnd() {
        lastWork_ = 0;
        stands_ = false;
        go_ = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    }
    ~StandingAtEnd() {
        lastWork_ = 0;
        SetEvent(go_);
        while (stands_)
            Sleep(1);
        CloseHandle(go_);
    }
    StandingAtEnd(const StandingAtEnd&) = delete;
    StandingAtEnd& operator=(const StandingAtEnd&) = delete;

    /// To be called at the end of the last work, on its thread.
    static void workEnds() { lastWork_ = GetCurrentThreadId(); }
    static bool stands() { return stands_; }

  private:
    static void WINAPI release(SRWLOCK* lock) {
        release_(lock);
        if (lastWork_ != GetCurrentThreadId())
            return;
        stands_ = true;
        WaitForSingleObject(go_, halfAMinute);
        stands_ = false;
    }

    static inline std::atomic<DWORD> lastWork_;
    static inline std::atomic<bool> stands_;
    static inline HANDLE go_ = nullptr;
    static inline decltype(&ReleaseSRWLockExclusive) release_ = nullptr;
    contract::ImportHook hook_{"ReleaseSRWLockExclusive", &release, release_};
};

} // namespace

TEST_SUITE_BEGIN("contract/windows/openings");

TEST_CASE("an opening that hangs costs three seconds once, and its server counts as missing") {
    World world;
    world.cutOff("opening1.invalid");
    world.reconnect(); // it tells of each file that it is not there, at once
    const std::string file = "\\\\opening1.invalid\\tools\\tool.exe";
    const SlowShell shell(Meanwhile::hangs);
    const std::int64_t begin = World::clock();
    for (int minute = 0; minute < 2; ++minute) {
        for (int row = 0; row < 10; ++row) {
            CHECK(open(file) <= 32);
            CHECK(platform::dir(file).empty());
            CHECK(platform::iconCount(file.c_str()) == 0);
        }
        CHECK(world.asked() == 1);
        CHECK(SlowShell::begun() == 1);
        CHECK(World::clock() - begin - minute * 61'000 < patience + slack);
        world.passTime(61'000);
    }
    SlowShell::letGo();
    // Late, but it has answered. What was refused meanwhile does not come.
    std::size_t tries = 0;
    CHECK(World::until([&] {
        ++tries;
        return open(file) > 32;
    }));
    CHECK(SlowShell::opened().size() <= 1 + tries);
    CHECK(SlowShell::mostAtOnce() == 1);
}

TEST_CASE("the addresses of a server's files cost three seconds once") {
    World world;
    world.cutOff("opening7.invalid");
    world.reconnect();
    const SlowShell shell(Meanwhile::hangs);
    const std::int64_t begin = World::clock();
    for (int row = 0; row < 10; ++row)
        CHECK(open("file://opening7.invalid/tools/page.html") <= 32);
    CHECK(World::clock() - begin < patience + slack);
    CHECK(SlowShell::begun() == 1);
}

TEST_CASE("an opening that asks the user is not waited for, and its server is there meanwhile") {
    World world;
    world.cutOff("opening2.invalid");
    world.reconnect();
    const std::string folder = "\\\\opening2.invalid\\tools\\";
    const SlowShell shell(Meanwhile::asks);
    const std::int64_t begin = World::clock();
    CHECK(open(folder + "a.exe") <= 32);
    CHECK(open(folder + "b.exe") <= 32);
    CHECK(open(folder + "c.exe") <= 32);
    CHECK(World::clock() - begin < patience);
    CHECK(SlowShell::begun() == 1);
    const int before = world.asked();
    CHECK(platform::dir(folder + "*.exe").empty());
    CHECK(world.asked() == before + 1);
    SlowShell::letGo();
    CHECK(World::until([] { return SlowShell::opened().size() == 3; }));
    CHECK(SlowShell::opened() == std::vector<std::wstring>{L"\\\\opening2.invalid\\tools\\a.exe",
                                                           L"\\\\opening2.invalid\\tools\\b.exe",
                                                           L"\\\\opening2.invalid\\tools\\c.exe"});
    CHECK(SlowShell::threads() == 1);
    CHECK(SlowShell::mostAtOnce() == 1);
}

TEST_CASE("behind an opening that hangs once its question is answered nothing piles up") {
    World world;
    world.cutOff("opening5.invalid");
    world.reconnect();
    const std::string folder = "\\\\opening5.invalid\\tools\\";
    const SlowShell shell(Meanwhile::asks);
    CHECK(open(folder + "a.exe") <= 32);
    SlowShell::answer();
    REQUIRE(World::until([] { return SlowShell::answered() == 1; }));
    CHECK(open(folder + "b.exe") <= 32); // it may come to its end yet
    world.passTime(static_cast<int>(patience));
    for (int click = 0; click < 5; ++click)
        CHECK(open(folder + "c.exe") <= 32);
    SlowShell::letGo();
    REQUIRE(World::until([] { return SlowShell::opened().size() == 2; }));
    open(folder + "d.exe");
    REQUIRE(World::until([] { return SlowShell::opened().size() > 2; }));
    const std::vector<std::wstring> opened = SlowShell::opened();
    CHECK(opened[0].ends_with(L"a.exe"));
    CHECK(opened[1].ends_with(L"b.exe"));
    CHECK(opened[2].ends_with(L"d.exe"));
}

TEST_CASE("programs that need more rights are asked for one at a time, and nobody waits") {
    World world;
    world.cutOff("opening6.invalid");
    world.reconnect();
    const MoreRightsThere there;
    const SlowShell shell(Meanwhile::asksOutOfSight);
    const std::string folder = "\\\\opening6.invalid\\tools\\";
    const std::int64_t begin = World::clock();
    CHECK(runtime::errorOf([&] { platform::shell(folder + "a.exe", platform::normalWithFocus); }) == 0);
    REQUIRE(World::until([] { return SlowShell::begun() == 1; }));
    CHECK(World::clock() - begin < patience);
    world.passTime(61'000); // the user has left his desk
    for (const char* const program : {"b.exe", "c.exe", "d.exe", "e.exe"})
        CHECK(runtime::errorOf([&] { platform::shell(folder + program, platform::normalWithFocus); }) == 0);
    CHECK(SlowShell::begun() == 1);
    SlowShell::letGo();
    CHECK(World::until([] { return SlowShell::opened().size() == 5; }));
    CHECK(SlowShell::opened().back().ends_with(L"e.exe"));
    CHECK(SlowShell::mostAtOnce() == 1);
    CHECK(SlowShell::threads() == 1);
}

TEST_CASE("where no memory is left for a thread the next opening has one") {
    const World world;
    const char* const path = "\\\\opening3.invalid\\tools\\tool.exe";
    {
        const contract::ImportHook noMemory("CreateThread", reinterpret_cast<void*>(noMemoryForThread));
        CHECK(runtime::errorOf([&] { win32::askHostInTurn(path, [] { return true; }); }) == 7);
    }
    bool done = false;
    CHECK(win32::askHostInTurn(path, [&done] { return done = true; }));
    CHECK(done);
}

TEST_CASE("what is wanted while the last opening's thread ends is opened") {
    const World world;
    const char* const path = "\\\\opening4.invalid\\tools\\tool.exe";
    const StandingAtEnd end;
    std::atomic<bool> answered = false;
    CHECK_FALSE(win32::askHostInTurn(path, [&answered] { // not waited for, since it asks the user
        {
            const Question question;
            while (!answered)
                Sleep(1);
        }
        StandingAtEnd::workEnds();
        return true;
    }));
    answered = true;
    REQUIRE(World::until([] { return StandingAtEnd::stands(); }));
    bool done = false;
    CHECK(win32::askHostInTurn(path, [&done] { return done = true; }));
    CHECK(done);
}

TEST_SUITE_END();
