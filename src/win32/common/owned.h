// Objects of the system that are given back with their owner, also where memory runs out while one is in use:
// that is an error of the program's, and some of its routines go on after it.
#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

namespace win32 {

struct GivingBack {
    void operator()(HBITMAP bitmap) const { DeleteObject(bitmap); }
    void operator()(HICON icon) const { DestroyIcon(icon); }
    void operator()(HMODULE library) const { FreeLibrary(library); }
    /// A kernel object. One that could not be opened is none, also where the system has another value for it.
    void operator()(HANDLE opened) const { CloseHandle(opened); }
    /// Any other goes by a call that does not stand here.
    template <typename Other>
    void operator()(Other* handle) const = delete;
};

template <typename Handle>
using Owned = std::unique_ptr<std::remove_pointer_t<Handle>, GivingBack>;

} // namespace win32
