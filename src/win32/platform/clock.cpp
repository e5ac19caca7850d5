#include "platform/clock.h"

#include "platform/codePage.h"
#include "runtime/runtimeError.h"

#include <windows.h>

#include <oleauto.h>

namespace {

std::string formatted(double date, ULONG part) {
    BSTR text = nullptr;
    if (FAILED(VarBstrFromDate(date, LOCALE_USER_DEFAULT, part, &text)))
        throw runtime::RuntimeError(runtime::ErrorNumber::invalidCall);
    const std::u16string wide(reinterpret_cast<const char16_t*>(text), SysStringLen(text));
    SysFreeString(text);
    return platform::toAnsi(wide);
}

} // namespace

namespace platform {

double now() {
    SYSTEMTIME time{};
    GetLocalTime(&time);
    time.wMilliseconds = 0;
    double date = 0;
    SystemTimeToVariantTime(&time, &date);
    return date;
}

std::string dateText(double date) {
    return formatted(date, VAR_DATEVALUEONLY);
}

std::string timeText(double date) {
    return formatted(date, VAR_TIMEVALUEONLY);
}

} // namespace platform
