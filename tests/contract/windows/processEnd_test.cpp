// The end of the program destroys nothing of its own.
#include "contract/windows/endedProcess.h"
#include "contract/windows/files.h"
#include "contract/windows/importHook.h"
#include "contract/windows/ownProcess.h"
#include "platform/programs.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <cstdlib>
#include <string>

namespace contract {

namespace {

using Leave = void(__cdecl*)(int);
Leave leave = nullptr;
bool byLibrary = false;

void __cdecl leaveByLibrary(int code) {
    byLibrary = true;
    leave(code);
}

/// Written when the library destroys what is static.
std::string mark() {
    return ownPath() + ".destroyed";
}

struct Static {
    ~Static() { writeWholeFile(mark(), ""); }
};

VOID WINAPI leaveBesideLibrary(UINT code) {
    TerminateProcess(GetCurrentProcess(), byLibrary ? code : endedBesideLibrary);
}

} // namespace

int endedProcessMain() {
    static const Static there;
    static const ImportHook library("_exit", reinterpret_cast<void*>(&leaveByLibrary));
    static const ImportHook system("ExitProcess", reinterpret_cast<void*>(&leaveBesideLibrary));
    const void* const original = library.original();
    if (original == nullptr)
        return endedBesideLibrary;
    leave = reinterpret_cast<Leave>(reinterpret_cast<std::uintptr_t>(original));
    platform::endProgram();
}

} // namespace contract

TEST_SUITE_BEGIN("contract/windows/processEnd");

TEST_CASE("the end of the program leaves by way of the library and destroys nothing static") {
    DeleteFileA(contract::mark().c_str());
    const int code = contract::exitCodeOfOwn(contract::endedProcessArgument);
    // The only one that Wine shows: its library destroys nothing at such an end.
    CHECK(code == 0);
    CHECK(!contract::readWholeFile(contract::mark()));
}

TEST_SUITE_END();
