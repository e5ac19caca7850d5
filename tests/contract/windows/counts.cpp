#include "contract/windows/counts.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <psapi.h>
#include <winternl.h>

#include <vector>

namespace contract {

namespace {

/// As the system documents it for SystemHandleInformation.
struct HandleEntry {
    USHORT process;
    USHORT backTrace;
    UCHAR type;
    UCHAR attributes;
    USHORT value;
    void* object;
    ULONG access;
};

struct HandleTable {
    ULONG count;
    HandleEntry entries[1];
};

BOOL CALLBACK countWindow(HWND /*window*/, LPARAM counter) {
    ++*reinterpret_cast<int*>(counter);
    return TRUE;
}

} // namespace

int openHandles() {
    constexpr auto handleInformation = static_cast<SYSTEM_INFORMATION_CLASS>(16);
    std::vector<char> buffer(1U << 20U);
    ULONG needed = 0;
    REQUIRE(NtQuerySystemInformation(handleInformation, buffer.data(), static_cast<ULONG>(buffer.size()),
                                     &needed) == 0);
    const auto* const table = reinterpret_cast<const HandleTable*>(buffer.data());
    int own = 0;
    for (ULONG index = 0; index < table->count; ++index)
        if (table->entries[index].process == static_cast<USHORT>(GetCurrentProcessId()))
            ++own;
    return own;
}

int openWindows() {
    int own = 0;
    EnumThreadWindows(GetCurrentThreadId(), countWindow, reinterpret_cast<LPARAM>(&own));
    return own;
}

std::size_t heapBytes() {
    std::vector<HANDLE> heaps(256);
    heaps.resize(GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data()));
    std::size_t taken = 0;
    for (const HANDLE heap : heaps) {
        PROCESS_HEAP_ENTRY entry{};
        HeapLock(heap);
        while (HeapWalk(heap, &entry) != FALSE)
            if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0)
                taken += entry.cbData + entry.cbOverhead;
        HeapUnlock(heap);
    }
    return taken;
}

std::size_t privateBytes() {
    PROCESS_MEMORY_COUNTERS_EX counters{};
    counters.cb = sizeof counters;
    const BOOL told = K32GetProcessMemoryInfo(
        GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&counters), sizeof counters);
    return told == FALSE ? 0 : counters.PrivateUsage;
}

} // namespace contract
