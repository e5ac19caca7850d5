// The walk over the processes.
#include "contract/world.h"
#include "platform/kernel32.h"
#include "runtime/text.h"

#include <doctest/doctest.h>

#include <vector>

namespace {

using contract::World;

constexpr std::uint32_t processes = 2; // what a snapshot is to hold

struct Seen {
    std::uint32_t id;
    std::string exe; ///< lower case
};

std::vector<Seen> walk() {
    std::vector<Seen> all;
    const platform::HANDLE snapshot = platform::CreateToolhelp32Snapshot(processes, 0);
    platform::PROCESSENTRY32 entry;
    entry.dwSize = platform::processRecordSize;
    for (bool more = platform::Process32First(snapshot, entry); more;
         more = platform::Process32Next(snapshot, entry))
        all.push_back({entry.th32ProcessID, runtime::lowerCase(entry.szExeFile)});
    return all;
}

int countOf(const std::string& exe) {
    int count = 0;
    for (const Seen& process : walk())
        count += process.exe == runtime::lowerCase(exe) ? 1 : 0;
    return count;
}

} // namespace

TEST_SUITE_BEGIN("contract/processes");

TEST_CASE("a program is in the walk under its bare file name as long as it runs") {
    World world;
    const int before = countOf(World::otherProgramName());
    world.openWindow("window");
    CHECK(countOf(World::otherProgramName()) == before + 1);
    world.killOtherProgram();
    CHECK(World::until([&] { return countOf(World::otherProgramName()) == before; }));
}

TEST_CASE("a walk can be begun anew and sees the same") {
    World world;
    world.openWindow("window");
    const platform::HANDLE snapshot = platform::CreateToolhelp32Snapshot(processes, 0);
    platform::PROCESSENTRY32 first;
    first.dwSize = platform::processRecordSize;
    REQUIRE(platform::Process32First(snapshot, first));
    platform::PROCESSENTRY32 again = first;
    platform::Process32Next(snapshot, again);
    REQUIRE(platform::Process32First(snapshot, again));
    CHECK(again.th32ProcessID == first.th32ProcessID);
    CHECK(std::string(again.szExeFile) == first.szExeFile);
    CHECK(again.dwSize == platform::processRecordSize);
}

TEST_CASE("a record without its size is refused") {
    World world;
    world.openWindow("window");
    const platform::HANDLE snapshot = platform::CreateToolhelp32Snapshot(processes, 0);
    platform::PROCESSENTRY32 entry;
    CHECK_FALSE(platform::Process32First(snapshot, entry));
    CHECK_FALSE(platform::Process32Next(snapshot, entry));
}

TEST_SUITE_END();
