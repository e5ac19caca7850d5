#include "check/machine.h"
#include "check/report.h"
#include "check/screens.h"
#include "common/text.h"

#include <string>

namespace machine {

FARPROC find(const wchar_t* library, const char* name) {
    wchar_t folder[MAX_PATH] = {};
    GetSystemDirectoryW(folder, MAX_PATH);
    const HMODULE loaded = LoadLibraryW((std::wstring(folder) + L"\\" + library).c_str());
    return loaded ? GetProcAddress(loaded, name) : nullptr;
}

static std::wstring number(long long value) {
    return std::to_wstring(value);
}

static std::wstring version() {
    using GetVersion = LONG(WINAPI*)(OSVERSIONINFOEXW*);
    using WineVersion = const char*(CDECL*)();
    OSVERSIONINFOEXW info = {};
    info.dwOSVersionInfoSize = sizeof info;
    if (const auto getVersion = routine<GetVersion>(L"ntdll.dll", "RtlGetVersion"))
        getVersion(&info);
    std::wstring told = number(info.dwMajorVersion) + L"." + number(info.dwMinorVersion) + L"." +
                        number(info.dwBuildNumber) + L" " + info.szCSDVersion +
                        (info.wProductType == VER_NT_WORKSTATION ? L"workstation" : L"server");
    if (const auto wine = routine<WineVersion>(L"ntdll.dll", "wine_get_version"))
        told += L", in truth Wine " + text::widen(wine());
    return told;
}

static std::wstring processor() {
    SYSTEM_INFO info = {};
    GetNativeSystemInfo(&info);
    switch (info.wProcessorArchitecture) {
    case PROCESSOR_ARCHITECTURE_INTEL:
        return L"x86";
    case PROCESSOR_ARCHITECTURE_AMD64:
        return L"x64";
    default:
        return L"architecture " + number(info.wProcessorArchitecture);
    }
}

static std::wstring rectangle(const RECT& place) {
    return number(place.right - place.left) + L" x " + number(place.bottom - place.top) + L" at " +
           number(place.left) + L"," + number(place.top);
}

static bool elevated() {
    HANDLE token = nullptr;
    TOKEN_ELEVATION elevation = {};
    DWORD size = 0;
    if (OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token)) {
        GetTokenInformation(token, TokenElevation, &elevation, sizeof elevation, &size);
        CloseHandle(token);
    }
    return elevation.TokenIsElevated != 0;
}

static bool highContrast() {
    HIGHCONTRASTW contrast = {};
    contrast.cbSize = sizeof contrast;
    SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0);
    return (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

static bool composed() {
    using IsEnabled = HRESULT(WINAPI*)(BOOL*);
    BOOL on = FALSE;
    const auto isEnabled = routine<IsEnabled>(L"dwmapi.dll", "DwmIsCompositionEnabled");
    return isEnabled && isEnabled(&on) == S_OK && on;
}

static bool themed() {
    using IsActive = BOOL(WINAPI*)();
    const auto isActive = routine<IsActive>(L"uxtheme.dll", "IsThemeActive");
    return isActive && isActive();
}

static const wchar_t* yesNo(bool is) {
    return is ? L"yes" : L"no";
}

void describe(Report& report) {
    DWORD lock = 0;
    SystemParametersInfoW(SPI_GETFOREGROUNDLOCKTIMEOUT, 0, &lock, 0);
    report.line(L"Windows: " + version() + L", " + processor());
    report.line(L"Languages: of the user's interface " + number(GetUserDefaultUILanguage()) +
                L", of formats " + number(GetUserDefaultLCID()) + L", for programs without Unicode " +
                number(GetSystemDefaultLCID()));
    report.line(L"Code pages: ANSI " + number(GetACP()) + L", OEM " + number(GetOEMCP()));
    int count = 0;
    for (const screens::Screen& screen : screens::all()) {
        report.line(L"Screen " + number(++count) + L": " + rectangle(screen.whole) + L", work area " +
                    rectangle(screen.work) + L", " + number(screen.dpi) + L" dpi (" +
                    number(screen.dpi * 100 / 96) + L" %)" + (screen.primary ? L", primary" : L""));
    }
    report.line(std::wstring(L"Themes: ") + yesNo(themed()) + L"; composition: " + yesNo(composed()) +
                L"; high contrast: " + yesNo(highContrast()));
    report.line(std::wstring(L"Mouse buttons swapped: ") + yesNo(GetSystemMetrics(SM_SWAPBUTTON) != 0) +
                L"; remote: " + yesNo(GetSystemMetrics(SM_REMOTESESSION) != 0) + L"; administrator: " +
                yesNo(elevated()) + L"; foreground lock: " + number(lock) + L" ms");
}

} // namespace machine
