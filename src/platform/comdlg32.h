// The common file dialogs of the platform. None throws.
#pragma once

#include "platform/types.h"

#include <cstdint>

namespace platform {

/// The dialogs' record, with the platform's field names; fields that the program leaves 0 are left out.
struct OPENFILENAMEA {
    std::uint32_t lStructSize = 0;
    HWND hwndOwner = HWND::none;
    const char* lpstrFilter = nullptr; ///< pairs of display text and pattern, ended by two NULs
    std::uint32_t nFilterIndex = 0;    ///< counted from 1
    char* lpstrFile = nullptr;         ///< in: start name; out: chosen path
    std::uint32_t nMaxFile = 0;        ///< size of that buffer in characters
    const char* lpstrInitialDir = nullptr;
    const char* lpstrTitle = nullptr;
    std::uint32_t Flags = 0;
    const char* lpstrDefExt = nullptr;
};
inline constexpr std::uint32_t fileDialogRecordSize = 76;

/// Non-zero when the user confirmed; 0 on cancel and on failure.
int GetOpenFileNameA(OPENFILENAMEA& record);
int GetSaveFileNameA(OPENFILENAMEA& record);

} // namespace platform
