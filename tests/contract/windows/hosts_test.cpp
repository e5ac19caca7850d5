// Which host a path belongs to, and the one thread that it has.
#include "win32/platform/hosts.h"

#include "contract/windows/deadServer.h"
#include "contract/windows/importHook.h"
#include "contract/windows/moreRights.h"
#include "contract/world.h"
#include "platform/executable.h"
#include "platform/files.h"
#include "platform/programs.h"
#include "platform/shell32.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <tlhelp32.h>

#include <string>

namespace {

using contract::DeadServer;
using contract::World;
using win32::askHost;
using win32::hostOf;

int ownThreads() {
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 entry{};
    entry.dwSize = sizeof entry;
    int count = 0;
    for (BOOL more = Thread32First(snapshot, &entry); more != FALSE; more = Thread32Next(snapshot, &entry))
        count += entry.th32OwnerProcessID == GetCurrentProcessId() ? 1 : 0;
    CloseHandle(snapshot);
    return count;
}

int questions = 0; ///< about drives

UINT WINAPI typeAsked(const char* /*root*/) {
    ++questions;
    return DRIVE_FIXED;
}

DWORD WINAPI deviceAsked(const char* /*name*/, char* /*target*/, DWORD /*size*/) {
    ++questions;
    return 0;
}

/// A drive letter for a device or a folder, as the system has it for mapped drives.
class Letter {
  public:
    explicit Letter(const char* target) {
        for (char letter = 'M'; letter < 'Z' && name_.empty(); ++letter) {
            const std::string name{letter, ':'};
            char taken[MAX_PATH] = {};
            if (QueryDosDeviceA(name.c_str(), taken, MAX_PATH) == 0)
                name_ = name;
        }
        REQUIRE(DefineDosDeviceA(DDD_RAW_TARGET_PATH, name_.c_str(), target) != FALSE);
    }
    ~Letter() { DefineDosDeviceA(DDD_REMOVE_DEFINITION, name_.c_str(), nullptr); }
    Letter(const Letter&) = delete;
    Letter& operator=(const Letter&) = delete;

    std::string path(const char* rest) const { return name_ + rest; }
    std::string name() const { return {static_cast<char>(name_[0] - 'A' + 'a'), ':'}; }

  private:
    std::string name_;
};

constexpr UINT japanese = 932;

} // namespace

TEST_SUITE_BEGIN("contract/windows/hosts");

TEST_CASE("the host of a path on the network is its server, however it is written") {
    const World world;
    CHECK(hostOf("\\\\Server\\share\\x.exe") == "server");
    CHECK(hostOf("//SERVER/share/x.exe") == "server");
    CHECK(hostOf("\\/Server/share\\x.exe") == "server");
    CHECK(hostOf("\"\\\\Server\\share\\x y.exe\" /a") == "server");
    CHECK(hostOf("\\\\?\\UNC\\Server\\share\\x.exe") == "server");
    CHECK(hostOf("\\\\Server") == "server");
}

TEST_CASE("the address of a file has the host of its path") {
    World world;
    CHECK(hostOf("file://Server/share/x.exe") == "server");
    CHECK(hostOf("FILE:////Server/share/x.exe") == "server");
    CHECK(hostOf("file://///Server/share/x.exe") == "server");
    CHECK(hostOf("file:\\\\Server\\share\\x.exe") == "server");
    CHECK(hostOf("\"file://Server/share/x y.html\"") == "server");
    CHECK(hostOf("file:///" + world.path("x.exe")).empty());
    CHECK(hostOf("file:" + world.path("x.exe")).empty());
    CHECK(hostOf("file://localhost/" + world.path("x.exe")).empty());
    CHECK(hostOf("file:///Q|/nosuch/drive.txt").empty());
    CHECK(hostOf("file:").empty());
    const Letter letter("\\Device\\LanmanRedirector\\;M:000000000001a2b3\\Server\\share");
    CHECK(hostOf("file:///" + letter.path("/x.exe")) == "server");
    CHECK(hostOf("file://localhost/" + letter.path("/x.exe")) == "server");
}

TEST_CASE("a server's name goes on behind a character that ends in a backslash's byte" *
          doctest::skip(GetACP() != japanese)) {
    const std::string server = "\x95\x5Csrv"; // its first character is U+8868
    CHECK(hostOf("\\\\" + server + "\\share\\x.exe") == server);
}

TEST_CASE("a fixed drive and one that is not there have none") {
    World world;
    CHECK(hostOf(world.path("x.exe")).empty());
    CHECK(hostOf("\\\\?\\" + world.path("x.exe")).empty());
    CHECK(hostOf("\"" + world.path("x.exe") + "\" /a").empty());
    CHECK(hostOf("relative.exe").empty());
    CHECK(hostOf("").empty());
    CHECK(hostOf("Q:\\nosuch\\drive.txt").empty());
}

TEST_CASE("the type of the drive that the program runs from is asked for once") {
    const World world;
    const std::string file = platform::programFolder() + "\\execute.txt";
    REQUIRE(hostOf(file).empty());
    const contract::ImportHook types("GetDriveTypeA", reinterpret_cast<void*>(typeAsked));
    const contract::ImportHook devices("QueryDosDeviceA", reinterpret_cast<void*>(deviceAsked));
    questions = 0;
    CHECK(hostOf(file).empty());
    CHECK(hostOf("\"" + file + "\" /a").empty());
    CHECK(questions == 0);
    (void)hostOf("Q:\\nosuch\\drive.txt");
    CHECK(questions == 1);
}

TEST_CASE("a mapped letter has its server, with any redirector, and a letter for a folder that folder's") {
    const World world;
    for (const char* target : {"\\Device\\LanmanRedirector\\;M:000000000001a2b3\\Server\\share",
                               "\\Device\\Mup\\;LanmanRedirector\\;M:000000000001a2b3\\Server\\share\\folder",
                               "\\??\\UNC\\Server\\share"}) {
        const Letter letter(target);
        CHECK_MESSAGE(hostOf(letter.path("\\tools\\x.exe")) == "server", target);
        CHECK_MESSAGE(hostOf("\"" + letter.path("\\tools\\x.exe\" /a")) == "server", target);
    }
    const Letter folder("\\??\\C:\\windows");
    CHECK(hostOf(folder.path("\\x.exe")).empty());
    const Letter itself("\\??\\M:\\x");
    CHECK(hostOf(itself.path("\\x.exe")).size() < 3);
}

TEST_CASE("a drive whose medium can be taken out is a host by itself") {
    const World world;
    for (const char* target : {"\\Device\\CdRom7", "\\Device\\Floppy3"}) {
        const Letter letter(target);
        CHECK_MESSAGE(hostOf(letter.path("\\x.exe")) == letter.name(), target);
    }
}

TEST_CASE("a path on a fixed drive is asked for on our own thread") {
    World world;
    DWORD thread = 0;
    CHECK(askHost(world.path("x"), [&thread] {
        thread = GetCurrentThreadId();
        return true;
    }));
    CHECK(thread == GetCurrentThreadId());
}

TEST_CASE("a server that does not answer has one thread, after a minute as well") {
    World world;
    world.cutOff("dead10.invalid");
    const int before = ownThreads();
    for (int minute = 0; minute < 2; ++minute) {
        for (int row = 0; row < 10; ++row) {
            const std::string path = "\\\\dead10.invalid\\tools\\tool.exe";
            CHECK(platform::dir(path).empty());
            CHECK(platform::iconCount(path.c_str()) == 0);
            CHECK(platform::ShellExecuteA(platform::HWND::none, "Open", path.c_str(), "", "", 1) <= 32);
        }
        CHECK(DeadServer::waiting() == 1);
        CHECK(ownThreads() == before + 1);
        world.passTime(61'000);
    }
    CHECK(DeadServer::mostAtOnce() == 1);
    CHECK(world.asked() == 1);
}

TEST_CASE("a late answer ends the minute") {
    World world;
    world.cutOff("dead11.invalid");
    const std::string path = "\\\\dead11.invalid\\tools\\tool.exe";
    CHECK(platform::dir(path).empty());
    world.reconnect();
    CHECK(World::until([&] {
        CHECK(platform::dir(path).empty());
        return world.asked() == 2;
    }));
}

TEST_CASE("a host that answers slowly is asked for all, one that fails slowly until three seconds are up") {
    World world;
    world.cutOff("dead12.invalid"); // for a clock that goes by itself
    int done = 0;
    const auto second = [&world, &done](bool answers) {
        ++done;
        world.passTime(1'000);
        return answers;
    };
    for (int time = 0; time < 10; ++time)
        CHECK(askHost("\\\\slow.invalid\\share\\x", [&second] { return second(true); }));
    CHECK(done == 10);
    done = 0;
    for (int time = 0; time < 10; ++time)
        askHost("\\\\failing.invalid\\share\\x", [&second] { return second(false); });
    CHECK(done == 3);
    world.passTime(58'000);
    CHECK_FALSE(askHost("\\\\failing.invalid\\share\\x", [&second] { return second(true); }));
    world.passTime(2'000);
    CHECK(askHost("\\\\failing.invalid\\share\\x", [&second] { return second(true); }));
    CHECK(done == 4);
}

TEST_CASE("a host that has failed slowly has no more than what is left of its three seconds") {
    World world;
    world.cutOff("dead13.invalid");
    const std::int64_t begin = World::clock();
    askHost("\\\\dying.invalid\\share\\x", [&world] {
        world.passTime(2'500);
        return false;
    });
    CHECK_FALSE(askHost("\\\\dying.invalid\\share\\x", [] {
        Sleep(2'500);
        return false;
    }));
    CHECK(World::clock() - begin >= 3'000);
    CHECK(World::clock() - begin < 3'500);
}

TEST_CASE("no system box comes up for a drive without a medium, and programs that are started have their own "
          "mode") {
    World world;
    CHECK((GetErrorMode() & SEM_FAILCRITICALERRORS) != 0);
    const std::string program = world.path("tool.exe");
    world.placeProgram(program);
    world.needMoreRights(world.path("other.exe")); // to see how this one is started
    platform::shell(program, platform::normalWithFocus);
    REQUIRE(World::until([&] { return world.startedWith(program).has_value(); }));
    CHECK(world.readFile(program + ".mode") == "0");
    // Under Wine a program has that mode anyway.
    CHECK((contract::MoreRights::startFlags() & CREATE_DEFAULT_ERROR_MODE) != 0);
}

TEST_SUITE_END();
